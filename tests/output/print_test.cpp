#include <gtest/gtest.h>

#include <QImage>
#include <QProcess>
#include <fstream>
#include <sstream>

#include "output/print_layout.h"
#include "platform/fault.h"
#include "support/session.h"

namespace tri {
namespace {

TEST(PaperScale, RoundsUpAtTheFirstDigit) {
  const std::pair<double, double> cases[] = {
      {1234, 2000}, {9500, 10000}, {2000, 3000}, {3.2, 4}, {99999.9, 100000}};
  for (const auto& [q, scale] : cases) EXPECT_EQ(roundedPaperScale(q), scale) << q;
}

// A sheet of 20 by 30, a reduced map of 8 by 6 from a canvas 25 wide, a fitting one of 12
// by 10: each option's place by the two tables of a reduced map and the table of one that fits.
TEST(SheetPlace, EachOptionStandsAsItsTableHasIt) {
  const double widthFree[] = {6, 6, 12, 6, 0, 0, 0, 17, 12};
  const double heightFree[] = {12, 0, 3, 6, 3, 0, 0, 24, 24};
  const SheetPlace fitting[] = {{4, 10}, {4, 0},  {8, 10},   {4, 20}, {0, 10},
                                {0, 0},  {-8, 0}, {-8, -20}, {0, -20}};
  for (int option = 1; option <= 9; ++option) {
    const SheetPlace h = reducedPlace(option, Excess::Height, 20, 30, 8, 6, 25);
    EXPECT_EQ(h.x, widthFree[option - 1]) << option;
    EXPECT_EQ(h.y, 0) << option;
    const SheetPlace w = reducedPlace(option, Excess::Width, 20, 30, 8, 6, 25);
    EXPECT_EQ(w.x, 0) << option;
    EXPECT_EQ(w.y, heightFree[option - 1]) << option;
    const SheetPlace f = fittingPlace(option, 20, 30, 12, 10);
    EXPECT_EQ(f.x, fitting[option - 1].x) << option;
    EXPECT_EQ(f.y, fitting[option - 1].y) << option;
  }
  EXPECT_EQ(excessOf(30, 40, 20, 30), Excess::Height);  // a tie goes to the height
  EXPECT_EQ(excessOf(31, 40, 20, 30), Excess::Width);
}

// A printer that writes down what it is told.
struct LoggedPrinter : Printer, Printers {
  std::ostringstream log;
  int colorCapability() const override { return 1; }
  void setOrientation(int v) override { log << "orientation " << v << "\n"; }
  void setColorMode(int v) override { log << "color " << v << "\n"; }
  void setPrintQuality(int v) override { log << "quality " << v << "\n"; }
  void setCopies(int v) override { log << "copies " << v << "\n"; }
  void setPaperSize(int v) override { log << "paper " << v << "\n"; }
  void paintPicture(const Canvas&, double x, double y, double w, double h) override {
    log << "paint " << x << " " << y << " " << w << " " << h << "\n";
  }
  void endDoc() override { log << "end\n"; }
  std::vector<std::string> names() override { return {"Office"}; }
  Printer& printer(int index) override {
    if (index != 0) throw Fault(FaultKind::SubscriptOutOfRange, "Printers");
    return *this;
  }
};

// The canvas of 1000 by 700 pixels is 26.4583 by 18.5208 cm, all black, at 1/2000.
struct PrintSession : Session {
  PrintSession() {
    state.output.printers = &printer;
    state.frame.olcekx = 20;
    canvas.box(0, 0, 1000, 700, 0, true);
    run("Mnyazdır_Click");
    state.ui.combo3.setListIndex(0);
  }
  LoggedPrinter printer;
};

TEST(Printing, AMapWiderThanThePaperIsReducedToARoundScaleAndPlaced) {
  PrintSession s;  // A4 upright: the width goes past by 5.46 cm, so r = 26.4583 / 21
  s.dialogs.answerButton(Answer::OK, "Map exceeds A4 paper sizes.").answerButton(Answer::No);
  s.run("Command1_Click");
  EXPECT_EQ(s.state.output.yeniolcek, 3000);
  EXPECT_EQ(s.printer.log.str(),
            "orientation 1\ncolor 2\nquality 3\ncopies 1\npaper 9\n"
            "paint 0 8.67639 17.6389 12.3472\nend\n");
  // The preview takes the same place on its page of 10 pixels a centimetre; the question
  // was answered in this run.
  s.run("Command2_Click");
  const Canvas& page = *s.state.output.picture2;
  EXPECT_EQ(page.point(8, 15), 0);
  EXPECT_EQ(page.point(8, 5), rgb(255, 255, 255));
  EXPECT_TRUE(s.state.ui.visible("Frame1") && s.state.ui.visible("Picture2"));
}

TEST(Printing, AMapThatFitsKeepsItsScaleAndSize) {
  PrintSession s;
  s.state.ui.printLists = {0, 0, 1, 0, 0};  // A3 turned, 42 by 29.7; black; draft
  s.state.ui.printOption = 7;
  s.state.ui.text1 = " 2";
  s.run("Command1_Click");
  EXPECT_EQ(s.state.output.yeniolcek, 2000);
  EXPECT_EQ(s.printer.log.str(),
            "orientation 2\ncolor 1\nquality 1\ncopies 2\npaper 8\n"
            "paint -15.5417 0 26.4583 18.5208\nend\n");
}

TEST(Printing, YesAtTheQuestionClosesThePanelsWithoutPrinting) {
  PrintSession s;
  s.dialogs.answerButton(Answer::OK).answerButton(Answer::Yes);
  s.run("Command1_Click");
  for (const char* panel : {"Frame1", "Frame2", "Command1", "Combo3", "Picture2", "Command2"}) {
    EXPECT_FALSE(s.state.ui.visible(panel)) << panel;
  }
  EXPECT_TRUE(s.state.ui.visible("Picture1"));
  EXPECT_EQ(s.printer.log.str().find("paint"), std::string::npos);
}

TEST(Printing, NoPrinterChosenOrCopiesThatAreNoNumberStopTheProgram) {
  PrintSession s;
  s.state.ui.text1 = "two";
  for (FaultKind kind : {FaultKind::TypeMismatch, FaultKind::SubscriptOutOfRange}) {
    try {
      s.run("Command1_Click");
      ADD_FAILURE();
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.kind(), kind) << fault.message();
    }
    // Then the system's list, the "PDF file" alone, with no entry chosen.
    s.state.output.printers = nullptr;
    s.run("Mnyazdır_Click");
  }
}

TEST(SavePicture, AskesAgainForANameThenWritesABitmapOfTheCanvas) {
  Session s;
  const std::string path = s.dir.file("plan.jpg");
  s.dialogs.answerSave("").answerButton(Answer::Cancel, "You did not enter a name");
  s.run("Mnharitakaydet_Click");
  s.dialogs.answerSave("").answerButton(Answer::OK).answerSave(path);
  s.run("Mnharitakaydet_Click");
  std::ifstream file(path, std::ios::binary);
  char magic[2] = {};
  file.read(magic, 2);
  EXPECT_EQ(std::string(magic, 2), "BM");
  const QImage image(QString::fromStdString(path), "BMP");
  ASSERT_EQ(image.size(), QSize(1000, 700));
  EXPECT_EQ(image.pixel(500, 350), qRgb(255, 255, 255));
  s.dialogs.answerSave(s.dir.file("missing/plan.jpg"));
  try {
    s.run("Mnharitakaydet_Click");
    ADD_FAILURE();
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.message(), "cannot write the picture " + s.dir.file("missing/plan.jpg"));
  }
}

}  // namespace
}  // namespace tri
