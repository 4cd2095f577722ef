#include "canvas/frame.h"
#include "canvas/replay.h"
#include "canvas/selection.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "project/commands.h"
#include "project/project_commands.h"
#include "store/hole_lists.h"
#include "store/project_format.h"
#include "store/project_lists.h"

namespace tri {

void enableProjectMenuItems(State& s, bool on) {
  for (const char* item : {"Mnkaydir", "Mnolcekg", "Mntoprez", "MNolcek", "Mnorten", "Mnhorten",
                           "Mnkortyog", "Mnaortyog"}) {
    s.ui.enable(item, on);
  }
}

void addProject(State& s, const FileChoice& file) {
  Projects& pr = s.projects;
  const int p = pr.projeno + 1;
  pr.projead[p] = leftChars(file.title, charCount(file.title) - 4);
  pr.projeyol[p] = file.path;
  pr.projeno = p;
}

void selectNewProject(State& s) {
  Controls& ui = s.ui;
  const Projects& pr = s.projects;
  if (pr.projeno == 1) {
    ui.combo1.clear();
    ui.combo2.clear();
    ui.combo4.clear();
    ui.combo5.clear();
    ui.combo1.addItem(kLimitTitle);
    ui.combo2.addItem(kDrawingTitle);
    ui.combo4.addItem(kLithologyTitle);
    ui.combo5.addItem(kProjectTitle);
    ui.combo1.setListIndex(0);
    ui.combo2.setListIndex(0);
    ui.combo4.setListIndex(0);
    ui.combo5.addItem(pr.projead[1]);
    ui.combo5.setListIndex(pr.projeno);
    return;
  }
  ui.combo5.addItem(pr.projead[pr.projeno]);
  ui.combo5.setListIndex(pr.projeno);
  ui.combo1.setListIndex(0);
  ui.combo2.setListIndex(0);
  ui.combo4.setListIndex(0);
}

namespace {

const char* const kProjectFilter = "Access 2003-2005 Database File (*.mdb)|*.mdb";

// Asks for a project file until one is chosen; nothing when the user cancels.
std::optional<FileChoice> askProjectFile(State& s) {
  while (true) {
    FileChoice file = s.dialogs.openFile("Select Project File", kProjectFilter);
    s.ui.hide("HScroll1");
    if (!file.empty()) return file;
    Answer again = s.dialogs.messageBox("you have not selected an available file",
                                        Buttons::OKCancel, Icon::None, "");
    if (again == Answer::Cancel) return std::nullopt;
  }
}

// The holes as stored: sondsay, coordinates in metres, names, and the raw stored layer
// values up to the first layer with tenor 0.
void loadHoleLogs(State& s, Database& db) {
  Holes& h = s.holes;
  Recordset log = db.openTable(kLogTable);
  h.sondsay = countHoles(log, HoleListEnd::ZeroX);
  h.eks.clear();
  h.eye.clear();
  h.isim.clear();
  for (auto* layers : {&h.ten, &h.yog, &h.uz, &h.dya}) layers->clear();
  h.lit.clear();

  log.moveFirst();
  StoredLogReader logs(log);
  for (int i = 1; i <= h.sondsay; ++i) {
    h.eks[i] = log.number(field::eks) / 1000;
    h.eye[i] = log.number(field::eye) / 1000;
    h.isim[i] = log.text(field::isim);
    int k = 0;
    for (const StoredLayer& layer : logs.layersOfCurrentRow(true)) {
      ++k;
      h.ten(i, k) = layer.ten;
      h.yog(i, k) = layer.yog;
      h.uz(i, k) = layer.uz;
      h.lit(i, k) = layer.lit;
      h.dya(i, k) = layer.dya;
    }
    log.moveNext();
  }
}

}  // namespace

void Mnprojeac_Click(State& s) {
  enableProjectMenuItems(s, true);
  removeMarkers(s);
  const std::optional<FileChoice> file = askProjectFile(s);
  if (!file) return;

  Database db = Database::open(file->path);
  addProject(s, *file);
  const int p = s.projects.projeno;
  loadHoleLogs(s, db);
  loadLithologies(s, db, p);
  for (int l = 1; l <= s.projects.litsay[p]; ++l) loadDrawings(s, db, p, l);
  frameReset(s);
  applyAreaLimit(s, LimitWording::Plain);
  setCanvasScale(s);
  layoutAfterLoad(s);
  db.close();

  selectNewProject(s);
  replayTail(s);
}

}  // namespace tri
