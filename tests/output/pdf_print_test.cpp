#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QProcess>
#include <cstdlib>

#include "platform/vbtext.h"
#include "support/session.h"

namespace tri {
namespace {

QString run(const QString& program, const QStringList& arguments) {
  QProcess process;
  process.start(program, arguments);
  EXPECT_TRUE(process.waitForFinished(60000)) << program.toStdString();
  EXPECT_EQ(process.exitCode(), 0) << program.toStdString();
  return QString::fromUtf8(process.readAllStandardOutput());
}

// The box of the pixels that are not white.
QRect inked(const QImage& image) {
  QRect box;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      if (qGray(image.pixel(x, y)) < 128) box |= QRect(x, y, 1, 1);
    }
  }
  return box;
}

// The tenor map of the sample project with its area-relative tenor, printed to a PDF on A4
// upright: the map is 26.46 cm wide at 1/2054.93, so it goes on the sheet at 1/3000, in the
// middle of the sheet's height. The page, turned into a picture by poppler, shows the
// map's ink where the placement puts it, and the overlay's text is in the document.
TEST(PdfPrinting, TheSampleTenorMapStandsOnTheSheetWithItsOverlay) {
  Session s;
  s.createProject(sample("demo-holes.xls"), "demo.mdb");
  s.state.ui.combo4.setListIndex(2);
  s.dialogs.answerInput("North");
  s.run("Mncizek_Click");
  const double picks[][2] = {{1204.9, 2155.4}, {1283.7, 2140.9}, {1240.9, 2241.1},
                             {1204.9, 2155.4}, {1240.9, 2241.1}, {1157.8, 2226.3},
                             {1283.7, 2140.9}, {1325.9, 2226.9}, {1240.9, 2241.1},
                             {1283.7, 2140.9}, {1375.9, 2155.8}, {1325.9, 2226.9}};
  for (const auto& p : picks) s.click(p[0], p[1]);
  s.run("Mnyuzdeten_Click");
  s.run("Mnorten_Click");
  s.click(1050.5, 2410);
  s.canvas.line(1000, 1900, 1500, 2500);  // ink from corner to corner of the plan
  const QRect canvasInk = inked(s.canvas.image());

  const std::string pdf = s.dir.file("plan.pdf");
  s.run("Mnyazdır_Click");
  s.state.ui.combo3.setListIndex(0);
  s.dialogs.answerButton(Answer::OK).answerButton(Answer::No).answerSave(pdf);
  s.run("Command1_Click");
  EXPECT_EQ(s.state.output.yeniolcek, 3000);

  const QString prefix = QString::fromStdString(s.dir.file("page"));
  run("pdftoppm", {"-r", "50", "-png", "-singlefile", QString::fromStdString(pdf), prefix});
  const QImage page(prefix + ".png");
  ASSERT_NEAR(page.width(), 413.4, 1);  // A4 at 50 dots an inch
  ASSERT_NEAR(page.height(), 584.6, 1);
  if (const char* keep = std::getenv("TRIRESERVE_KEEP_PAGE")) page.save(keep);
  // The map's box on the sheet: x = 0, y = (29.7 - ph) / 2, pw = 2054.93 x 26.4583 / 3000.
  const Output& o = s.state.output;
  const double pw = o.olcekpay * o.resimgen / 3000;
  const double ph = o.olcekpay * o.resimyuk / 3000;
  const double dots = 50 / 2.54;
  const double top = (29.7 - ph) / 2;
  const QRect ink = inked(page);
  EXPECT_NEAR(ink.left(), canvasInk.left() * pw / 1000 * dots, 2);
  EXPECT_NEAR(ink.right(), canvasInk.right() * pw / 1000 * dots, 2);
  EXPECT_NEAR(ink.top(), (top + canvasInk.top() * ph / 700) * dots, 2);
  EXPECT_NEAR(ink.bottom(), (top + canvasInk.bottom() * ph / 700) * dots, 2);
  const std::string tenor = numberText(roundHalfEven(s.state.views.overlays.alanortten, 2));
  EXPECT_TRUE(run("pdftotext", {QString::fromStdString(pdf), "-"})
                  .contains(QString::fromStdString("Area Relative Avg. Tenor: %" + tenor)));
  QFile::remove(prefix + ".png");
}

}  // namespace
}  // namespace tri
