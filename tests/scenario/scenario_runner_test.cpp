// The scenario runner: the exit codes of scenarios that do not run through.
#include <gtest/gtest.h>

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

TEST(ScenarioRunner, ADialogWithoutAnswerOrAFaultStopsTheRunSayingWhy) {
  Result unanswered = run("command Mnprojeac_Click\n");
  EXPECT_EQ(unanswered.code, kScenarioUnanswered);
  EXPECT_NE(unanswered.err.find("Select Project File"), std::string::npos) << unanswered.err;
  Result wrongKind = run("answer input Kuzey\ncommand Mnprojeac_Click\n");
  EXPECT_EQ(wrongKind.code, kScenarioUnanswered);
  EXPECT_NE(wrongKind.err.find("line 2"), std::string::npos) << wrongKind.err;

  TempDir dir;
  std::ofstream(dir.file("notes.mdb")) << "not a project\n";
  Result fault = run("answer file notes.mdb\ncommand Mnprojeac_Click\n", dir.path());
  EXPECT_EQ(fault.code, kScenarioFault);
  EXPECT_EQ(fault.out.rfind("Fault: Database error: ", 0), 0u) << fault.out;
  EXPECT_NE(fault.out.find("notes.mdb"), std::string::npos) << fault.out;
}

TEST(ScenarioRunner, BadStatementsUnmetExpectationsAndOtherOutput) {
  for (const char* bad : {"jump 3\n", "command NoSuchProcedure\n", "click 1 2\n",
                          "select Combo9 1\n", "answer button Maybe\n", "elevations 395\n"}) {
    EXPECT_EQ(run(bad).code, kScenarioBadStatement) << bad;
  }
  EXPECT_EQ(run("scroll 361\n").code, kScenarioBadStatement);
  EXPECT_EQ(run("expect-label 1 Ready\n").code, kScenarioExpectation);
  // An answer that no dialog asked for means the scenario and the program disagree.
  EXPECT_EQ(run("answer input 5000\n").code, kScenarioExpectation);
  EXPECT_EQ(firstDifference("a\nb\n", "a\nb\n"), "");
  EXPECT_EQ(firstDifference("a\nb\n", "a\nc\n"), "line 2: got \"b\", expected \"c\"");
  EXPECT_EQ(firstDifference("a\n", "a\nc\n"), "line 2: got the end, expected \"c\"");
}

}  // namespace
}  // namespace tri
