// The report layer against the window's own figures: stored triangles and their totals,
// the grade-tonnage curve beside limit studies, the bench beside the all-triangle scan, the
// audit of a triangle whose corner log was cut, and the cut-off ranges and workbook limits.
#include <gtest/gtest.h>

#include <sstream>

#include "platform/sheet.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "report/bench_report.h"
#include "report/commands.h"
#include "report/figures.h"
#include "report/workbook_check.h"
#include "store/ondayaz.h"
#include "store/project_format.h"
#include "triangles/drawing_session.h"

namespace tri::report {
namespace {

// cluster.xls: four triangles over seven holes of one ore layer each (tenors 1.2 to 3.1).
struct Network : DrawingSession {
  Network() : DrawingSession("cluster.xls", "ore") {
    pickTriangle(550, 800, 600, 800, 550, 850);  // C-01 C-02 C-04
    pickTriangle(600, 800, 600, 850, 550, 850);  // C-02 C-05 C-04
    pickTriangle(600, 850, 650, 850, 600, 900);  // C-05 C-06 C-09
    pickTriangle(550, 850, 600, 850, 550, 900);  // C-04 C-05 C-08
  }
};

TEST(ReportFigures, TrianglesAreTheStoredRowsAndTheCurveMeetsEveryLimitStudy) {
  Network s;
  const std::vector<std::string> limits = {"1.4", "1.9", "2.6", "3.2"};
  for (const std::string& limit : limits) s.addLimit(limit);
  ReportProject project(s.path);
  const std::vector<StoredTriangle> own = project.readTriangles("Kuzey");
  ASSERT_EQ(own.size(), 4u);
  const StoredTable table = s.table("Kuzey");
  for (int t = 1; t <= 4; ++t) {
    const Summary stored = summaryOf(table, 4 * t + 1);
    const StoredTriangle& read = own[static_cast<size_t>(t - 1)];
    EXPECT_EQ(std::llround(read.tonnage * 1000), stored.tonaj);
    EXPECT_EQ(std::llround(read.reserve * 1000), stored.genelrezerv);
    EXPECT_EQ(std::llround(read.tenor * 1000), stored.geneltenor);
    EXPECT_EQ(std::llround(read.area * 1000), stored.ill);
  }

  const ProjectLogs logs = project.readLogs();
  std::vector<double> cutoffs = {0};
  for (const std::string& limit : limits) cutoffs.push_back(std::stod(limit));
  const std::vector<GradeTonnageRow> curve = gradeTonnage(own, logs, "ore", cutoffs);
  for (size_t i = 0; i < cutoffs.size(); ++i) {
    const std::string table = i == 0 ? "Kuzey" : limits[i - 1] + "Kuzey";
    const TableTotals totals = totalsOf(project.readTriangles(table));
    EXPECT_EQ(curve[i].tonnage, totals.tonnage) << table;
    EXPECT_EQ(curve[i].reserve, totals.reserve) << table;
    EXPECT_EQ(curve[i].cubage, totals.cubage) << table;
  }
  // Above every tenor nothing is ore, and the mean tenor has no value.
  EXPECT_EQ(curve.back().oreTriangles, 0);
  EXPECT_FALSE(curve.back().meanTenor);
  // A corner that drops out does not thin the mean length: the tonnage need not fall.
  EXPECT_EQ(curve.front().oreTriangles, 4);
  EXPECT_GT(curve[2].tonnage, curve.front().tonnage);
}

TEST(ReportFigures, TheFourAveragesDivideTheTableSumsOnce) {
  StoredTriangle a, b;
  a.area = 100, a.cubage = 2, a.tenor = 1, a.density = 2.5;
  b.area = 300, b.cubage = 1, b.tenor = 3, b.density = 3;
  const TableTotals t = totalsOf({a, b});
  EXPECT_DOUBLE_EQ(*t.areaTenor, (100 * 1 + 300 * 3) / 400.0);
  EXPECT_DOUBLE_EQ(*t.cubageTenor, (2 * 1 + 1 * 3) / 3.0);
  EXPECT_DOUBLE_EQ(*t.areaDensity, (100 * 2.5 + 300 * 3) / 400.0);
  EXPECT_DOUBLE_EQ(*t.cubageDensity, (2 * 2.5 + 1 * 3) / 3.0);
  EXPECT_FALSE(totalsOf({}).areaTenor);
}

TEST(ReportFigures, TheBenchIsWhatTheAllTriangleScanPrints) {
  Network s;
  s.state.scan.upkot = 306;
  s.state.scan.downkot = 298;
  s.canvas.setLogging(true);
  s.run("Mntrtum_Click");
  std::vector<std::string> printed;
  for (const CanvasOp& op : s.canvas.log()) {
    if (op.kind == CanvasOp::Kind::Text && (op.color == 65280 || op.color == 255)) {
      printed.push_back(op.text);
    }
  }
  ReportProject project(s.path);
  const std::vector<BenchRow> rows =
      benchScan(project, project.readTriangles("Kuzey"), {306, 298}, "ore", std::nullopt);
  std::vector<std::string> ours;
  for (const BenchRow& row : rows) {
    ours.push_back(numberText(roundHalfEven(row.means.tenor, 2)));
    ours.push_back(numberText(roundHalfEven(row.reserve / 1000, 2)));
  }
  EXPECT_EQ(ours, printed);
  EXPECT_NE(ours[0], "0");
}

TEST(ReportFigures, ExplainFindsTheCutMadeAfterTheTriangle) {
  DrawingSession s("worked_example.xls", "ore");
  s.pickABC();
  ReportProject before(s.path);
  const StoredTriangle t = before.readTriangles("Kuzey").front();
  Explanation e = explainTriangle(t, before.readLogs(), "ore", std::nullopt);
  EXPECT_EQ(ondayaz(e.reserve), kWorkedExample.genelrezerv);
  EXPECT_EQ(ondayaz(e.tonnage), kWorkedExample.tonaj);
  EXPECT_TRUE(e.causes.empty());
  {
    Database db = Database::open(s.path);
    Recordset log = db.openTable(kLogTable);
    log.moveFirst();
    log.moveNext();  // B
    log.edit();
    log.set("lit1", "orecev");
    log.update();
  }
  ReportProject after(s.path);
  e = explainTriangle(t, after.readLogs(), "ore", std::nullopt);
  EXPECT_EQ(e.corners[2].layers[0].verdict, LayerVerdict::CutBySelectCut);
  EXPECT_EQ(e.corners[2].length, 0);
  EXPECT_NE(ondayaz(e.reserve), kWorkedExample.genelrezerv);
  ASSERT_EQ(e.causes.size(), 2u);
  EXPECT_NE(e.causes[0].find("cut out by Select-Cut"), std::string::npos);
  EXPECT_NE(e.causes[1].find("no ore layer now"), std::string::npos);
}

TEST(ReportInput, CutoffRangesAndTheirFaults) {
  // A step that is no exact binary fraction still lands on the typed values.
  EXPECT_EQ(parseCutoffs("0:0.3:0.1"), (std::vector<double>{0, 0.1, 0.2, 0.3}));
  EXPECT_EQ(parseCutoffs("2:2:1"), (std::vector<double>{2}));
  EXPECT_EQ(parseCutoffs("0:1:0.25").size(), 5u);
  for (const char* bad : {"0:1", "a:1:0.1", "0:1:0", "0:1:-1", "1:0:0.1", "0:1:0.1:2"}) {
    EXPECT_THROW(parseCutoffs(bad), BadInput) << bad;
  }
}

TEST(ReportInput, AWorkbookOfMoreHolesThanAProjectHolds) {
  GridSheet sheet;
  for (int column = 1; column <= 1000; ++column) {
    sheet.setNumber(1, column, 10 * column);
    sheet.setNumber(2, column, 5);
    sheet.setText(3, column, "H" + std::to_string(column));
    for (int row = 4; row <= 7; ++row) sheet.setNumber(row, column, 100);
  }
  const std::vector<WorkbookFinding> findings = checkWorkbook(sheet);
  ASSERT_FALSE(findings.empty());
  EXPECT_EQ(findings.front().column, 1000);
  EXPECT_NE(findings.front().problem.find("more than 999 holes"), std::string::npos);
  EXPECT_EQ(columnLetters(1), "A");
  EXPECT_EQ(columnLetters(28), "AB");
}

}  // namespace
}  // namespace tri::report
