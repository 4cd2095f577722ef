// The scenario runner: its statements and its exit codes.
#include <gtest/gtest.h>

#include <QImage>
#include <fstream>
#include <sstream>

#include "support/scenario.h"
#include "support/temp_dir.h"

namespace tri {
namespace {

struct Result {
  int code;
  std::string out;
  std::string err;
};

Result run(const std::string& script, const std::string& folder = ".") {
  std::istringstream in(script);
  std::ostringstream out, err;
  int code = runScenario(in, folder, out, err);
  return {code, out.str(), err.str()};
}

TEST(ScenarioRunner, ResizesPrintsLabelsAndSavesTheImage) {
  TempDir dir;
  Result r =
      run("resize 640 480   # a smaller canvas\n"
          "print-labels\n"
          "save-image picture.png\n",
          dir.path());
  ASSERT_EQ(r.code, kScenarioDone) << r.err;
  EXPECT_NE(r.out.find("Label1: \n"), std::string::npos);
  EXPECT_NE(r.out.find("Label13: "), std::string::npos);
  QImage image(QString::fromStdString(dir.file("picture.png")));
  EXPECT_EQ(image.width(), 640);
  EXPECT_EQ(image.height(), 480);
}

TEST(ScenarioRunner, ADialogWithoutAnswerStopsWithFourAndNamesThePrompt) {
  Result r = run("command Mnprojeac_Click\n");
  EXPECT_EQ(r.code, kScenarioUnanswered);
  EXPECT_NE(r.err.find("Select Project File"), std::string::npos) << r.err;

  Result wrongKind = run("answer input Kuzey\ncommand Mnprojeac_Click\n");
  EXPECT_EQ(wrongKind.code, kScenarioUnanswered);
  EXPECT_NE(wrongKind.err.find("line 2"), std::string::npos) << wrongKind.err;
}

TEST(ScenarioRunner, AFaultStopsWithThreeAndPrintsKindAndMessage) {
  TempDir dir;
  std::ofstream(dir.file("notes.mdb")) << "not a project\n";
  Result r = run("answer file notes.mdb\ncommand Mnprojeac_Click\n", dir.path());
  EXPECT_EQ(r.code, kScenarioFault);
  EXPECT_EQ(r.out.rfind("Fault: Database error: ", 0), 0u) << r.out;
  EXPECT_NE(r.out.find("notes.mdb"), std::string::npos) << r.out;
}

TEST(ScenarioRunner, CancellingTheOpenDialogAsksAgainAndCancelEnds) {
  Result r =
      run("answer file\n"
          "answer button OK\n"
          "answer file\n"
          "answer button Cancel\n"
          "command Mnprojeac_Click\n"
          "expect-label 1 \n");
  EXPECT_EQ(r.code, kScenarioDone) << r.err;
}

TEST(ScenarioRunner, BadStatementsAndUnmetExpectations) {
  EXPECT_EQ(run("jump 3\n").code, kScenarioBadStatement);
  EXPECT_EQ(run("command NoSuchProcedure\n").code, kScenarioBadStatement);
  EXPECT_EQ(run("click 1 2\n").code, kScenarioBadStatement);
  EXPECT_EQ(run("select Combo9 1\n").code, kScenarioBadStatement);
  EXPECT_EQ(run("answer button Maybe\n").code, kScenarioBadStatement);
  EXPECT_EQ(run("elevations 395\n").code, kScenarioBadStatement);
  EXPECT_EQ(run("expect-label 1 Ready\n").code, kScenarioExpectation);
  // An answer that no dialog asked for means the scenario and the program disagree.
  EXPECT_EQ(run("answer input 5000\n").code, kScenarioExpectation);
}

}  // namespace
}  // namespace tri
