#include "canvas/replay.h"
#include "canvas/selection.h"
#include "platform/store.h"
#include "store/ondayaz.h"
#include "store/project_format.h"
#include "store/project_lists.h"
#include "triangles/commands.h"
#include "triangles/entry.h"

namespace tri {

namespace {

// Asks for a drawing name until one is typed; nothing when the user cancels.
std::optional<std::string> askDrawingName(State& s) {
  while (true) {
    std::string name = s.dialogs.inputBox("Name the Drawing.", "");
    if (!name.empty()) return name;
    if (s.dialogs.messageBox("You did not enter a name", Buttons::OKCancel, Icon::None, "") ==
        Answer::Cancel) {
      return std::nullopt;
    }
  }
}

void createDrawingTable(State& s, const std::string& name) {
  {
    Database db = Database::open(s.projectPath());
    db.createTable(name, drawingFields());
  }
  Database db = Database::open(s.projectPath());
  Recordset table = db.openTable(name);
  table.addNew();
  table.set(field::ucgensay, 0);
  table.set(field::kal, ondayaz(s.carry.kal));
  table.set(field::bsy, ondayaz(s.carry.bsy));
  table.update();
}

// Adds the drawing's row to its lithology's table; returns its number.
int registerDrawing(State& s, const std::string& name) {
  const int p = s.project();
  const int l = s.lithology();
  Database db = Database::open(s.projectPath());
  Recordset table = db.openTable(s.ui.combo4.text());
  table.moveLast();
  const int number = static_cast<int>(table.number(field::tsay)) + 1;
  s.projects.cizimsay(p, l) = number;
  s.projects.cizimad(p, l, number) = name;
  table.addNew();
  table.set(field::cizim, name);
  table.set(field::tsay, number);
  table.update();
  return number;
}

// Gives the drawings of the lithology's table the numbers 0 (the header), 1, 2, ...
void renumberDrawings(Recordset& table, int count) {
  table.moveFirst();
  for (int i = 0; i <= count; ++i) {
    table.edit();
    table.set(field::tsay, i);
    table.update();
    table.moveNext();
  }
}

void dropDrawingTables(State& s, Database& db, const std::string& drawing) {
  db.deleteTable(drawing);
  const int p = s.project();
  const int l = s.lithology();
  const int d = s.drawing();
  for (int i = 1; i <= s.ui.combo1.listCount() - 1; ++i) {
    const LimitTenor& limit = s.projects.limdeger.get(p, l, d, i);
    if (limit.value != 0) db.deleteTable(limitTableName(limit.text, drawing));
  }
}

void resetDrawingSelectors(State& s) {
  Controls& ui = s.ui;
  resetToTitle(ui.combo1, kLimitTitle);
  resetToTitle(ui.combo2, kDrawingTitle);
  ui.combo1.setListIndex(0);
  ui.combo2.setListIndex(0);
}

}  // namespace

void Mncizek_Click(State& s) {
  removeMarkers(s);
  const std::optional<std::string> name = askDrawingName(s);
  if (!name) return;
  s.ui.setLabel(1, "Add Drawing");
  s.ui.combo2.addItem(*name);
  createDrawingTable(s, *name);
  const int number = registerDrawing(s, *name);
  s.ui.combo2.setListIndex(number);
  clearViewFlags(s);
  s.flags.modcizim = true;
  disableEntryMenuItems(s);
  for (const char* item : {"Mnkaydir", "MNolcek", "Mntoprez"}) s.ui.check(item, false);
  s.views.overlays.disarm();
  s.views.overlays.clearPositions();
  ucgenplan(s);
}

void Mncizduz_Click(State& s) {
  clearViewFlags(s);
  s.flags.ilkmod = false;
  s.flags.modcizim = true;
  disableEntryMenuItems(s);
  s.ui.check("Mnelmtnr", false);
  s.views.overlays.disarm();
  s.views.overlays.clearPositions();
  s.ui.line1.visible = false;
  for (const char* name : {"Combo3", "Command1", "Frame1", "Frame2", "Picture2", "Command2"}) {
    s.ui.hide(name);
  }
  s.ui.show("Picture1");
  removeMarkers(s);
  s.ui.setLabel(1, "Select Point One");
  ucgenplan(s);
}

void Mncizisil_Click(State& s) {
  removeMarkers(s);
  s.ui.setLabel(1, " Delete the selected drawing ");
  const int p = s.project();
  const int l = s.lithology();
  const std::string drawing = s.ui.combo2.text();
  {
    Database db = Database::open(s.projectPath());
    {
      Recordset table = db.openTable(s.ui.combo4.text());
      table.moveFirst();
      table.move(s.drawing());
      table.remove();
      table.moveLast();
      s.projects.cizimsay(p, l) = static_cast<int>(table.number(field::tsay)) - 1;
      renumberDrawings(table, s.projects.cizimsay.get(p, l));
    }
    dropDrawingTables(s, db, drawing);
  }
  resetDrawingSelectors(s);
  {
    Database db = Database::open(s.projectPath());
    loadDrawings(s, db, p, l);
  }
  for (int d = 1; d <= s.projects.cizimsay.get(p, l); ++d) {
    s.ui.combo2.addItem(s.projects.cizimad.get(p, l, d));
  }
  ucgenplan(s);
}

}  // namespace tri
