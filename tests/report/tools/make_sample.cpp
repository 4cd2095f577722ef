// Makes the projects the report program's command-line tests read, in the folder given:
// demo.mdb, the demo workbook with a drawing "North" of lithology ore (two triangles) and
// limit studies at 0.5 and 1; cut.mdb, the same with a layer of DH-05 cut by Select-Cut
// after the triangles were entered.
#include <QGuiApplication>
#include <filesystem>
#include <iostream>

#include "platform/fault.h"
#include "platform/store.h"
#include "store/hole_lists.h"
#include "store/project_format.h"
#include "support/headless.h"
#include "support/session.h"

namespace {

void makeDemo(const std::string& path) {
  tri::Session s;
  s.dialogs.answerOpen(TRIRESERVE_SAMPLES "/demo-holes.xls").answerSave(path);
  s.run("Mnprolus_Click");
  s.state.ui.combo4.setListIndex(2);  // ore
  s.dialogs.answerInput("North");
  s.run("Mncizek_Click");
  // DH-01, DH-02, DH-04; then DH-02, DH-05, DH-04
  for (auto [x, y] : {std::pair{1108.0, 2001.0},
                      {1289, 2000},
                      {1153.4, 2067.9},
                      {1290, 2001},
                      {1250, 2079},
                      {1153, 2068}}) {
    s.click(x, y);
  }
  for (const char* limit : {"0.5", "1"}) {
    s.dialogs.answerInput(limit);
    s.run("Mnlimekle_Click");
  }
}

// Renames the first ore layer of hole DH-05 in log as Select-Cut does.
void cutLayer(const std::string& path) {
  tri::Database db = tri::Database::open(path);
  tri::Recordset log = db.openTable(tri::kLogTable);
  for (log.moveFirst(); !log.eof(); log.moveNext()) {
    if (log.text(tri::field::isim) != "DH-05") continue;
    for (int k = 1;; ++k) {
      const std::string lit = tri::numbered(tri::field::lit, k);
      if (log.text(lit) != "ore") continue;
      log.edit();
      log.set(lit, "orecev");
      log.update();
      return;
    }
  }
  throw std::runtime_error("no hole DH-05 in " + path);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: trireserve-report-sample FOLDER\n";
    return 2;
  }
  tri::prepareHeadlessQt();
  QGuiApplication app(argc, argv);
  const std::filesystem::path folder = argv[1];
  try {
    std::filesystem::remove_all(folder);
    std::filesystem::create_directories(folder);
    makeDemo((folder / "demo.mdb").string());
    std::filesystem::copy_file(folder / "demo.mdb", folder / "cut.mdb");
    cutLayer((folder / "cut.mdb").string());
  } catch (const tri::Fault& fault) {
    std::cerr << fault.message() << "\n";
    return 1;
  } catch (const std::exception& error) {
    std::cerr << error.what() << "\n";
    return 1;
  }
  return 0;
}
