#include <algorithm>
#include <array>
#include <cmath>
#include <optional>

#include "canvas/frame.h"
#include "canvas/replay.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "project/commands.h"
#include "project/project_commands.h"
#include "store/ondayaz.h"
#include "store/project_format.h"

namespace tri {

namespace {

const char* const kWorkbookFilter = "Excel File (*.xls)|*.xls";
const char* const kProjectFilter = "Access 2003-2005 Database File (*.mdb)|*.mdb";
// Rows and columns are scanned this far for the end of the data.
constexpr int kScanLimit = 999;

std::optional<FileChoice> askWorkbook(State& s) {
  while (true) {
    FileChoice file = s.dialogs.openFile("Select File with Drilling Data", kWorkbookFilter);
    if (!file.empty()) return file;
    Answer again =
        s.dialogs.messageBox("You did not enter a name", Buttons::OKCancel, Icon::None, "");
    if (again == Answer::Cancel) return std::nullopt;
  }
}

// The drill holes of a workbook: one hole per column, its rows as described in the
// project format.
class HoleWorkbook {
 public:
  HoleWorkbook(std::unique_ptr<Sheet> sheet, std::string path)
      : sheet_(std::move(sheet)), path_(std::move(path)) {}

  // Holes end at the first empty cell of row 1.
  int countHoles() const {
    return firstEmpty([&](int column) { return sheet_->cell(1, column); }, "row 1", "holes") - 1;
  }

  // A column ends at its first empty cell.
  int countRows(int column) const {
    return firstEmpty([&](int row) { return sheet_->cell(row, column); },
                      "column " + std::to_string(column), "rows") -
           1;
  }

  // A number cell; an empty cell reads 0, a text that is not a number is a Fault naming
  // the cell. A fractional row is rounded to a whole row first.
  double number(double row, int column) const {
    const int r = wholeIndex(row);
    const Cell cell = sheet_->cell(r, column);
    if (cell.holdsNumber()) return cell.number;
    if (cell.isEmpty()) return 0;
    if (isNumberText(cell.text)) return toNumber(cell.text);
    throw Fault(FaultKind::TypeMismatch,
                "column " + std::to_string(column) + ", row " + std::to_string(r) + " of " + path_ +
                    " holds the text \"" + cell.text + "\" where a number is needed");
  }

  std::string text(double row, int column) const {
    return sheet_->cell(wholeIndex(row), column).valueText();
  }

 private:
  template <class CellAt>
  int firstEmpty(CellAt cellAt, const std::string& where, const char* what) const {
    for (int i = 1; i <= kScanLimit + 1; ++i) {
      if (cellAt(i).isEmpty()) return i;
    }
    throw Fault(FaultKind::Workbook, where + " of " + path_ + " has more than " +
                                         std::to_string(kScanLimit) + " " + what +
                                         ": that is more than a project holds");
  }

  std::unique_ptr<Sheet> sheet_;
  std::string path_;
};

// What the workbook gives beyond the hole arrays: the layer count of every hole.
struct ReadHoles {
  std::vector<int> layers;  // by hole, from 1
};

// The lithology list: the distinct names of the first hole in their order of first
// appearance. Each repeat of a name is overwritten by "ayni" first, so a layer really
// named "ayni" is dropped as well.
void makeLithologyList(State& s, int p, Bounded<std::string>& names, int count) {
  for (int at = 1; at <= count; ++at) {
    int matches = 0;
    for (int q = 1; q <= count; ++q) {
      if (names[q] == names[at] && ++matches > 1) names[q] = "ayni";
    }
  }
  for (int at = 1; at <= count; ++at) {
    if (names[at] == "ayni") continue;
    s.projects.litsay[p] += 1;
    s.projects.litad(p, s.projects.litsay[p]) = names[at];
  }
}

// Reads every hole of the workbook into the hole arrays, with the values as they stand in
// the workbook, and makes the lithology list from the first hole.
ReadHoles readHoles(State& s, const HoleWorkbook& book, int p) {
  Holes& h = s.holes;
  ReadHoles read;
  read.layers.assign(h.sondsay + 1, 0);
  Bounded<std::string> names{"lithology names of the first hole", 1000};
  for (int i = 1; i <= h.sondsay; ++i) {
    h.eks[i] = book.number(1, i);
    h.eye[i] = book.number(2, i);
    h.isim[i] = book.text(3, i);
    h.songir[i] = book.number(4, i);
    h.cevgir[i] = book.number(5, i);
    h.cevcik[i] = book.number(6, i);
    h.soncik[i] = book.number(7, i);
    const double n = (h.satirsay[i] - 7) / 5.0;
    int c = 0;
    for (int k = 1; k <= n; ++k) {
      ++c;
      h.lit(i, k) = book.text(7 + k, i);
      names[c] = h.lit(i, k);
      h.ten(i, k) = book.number(7 + n + k, i);
      h.yog(i, k) = book.number(7 + 2 * n + k, i);
      h.uz(i, k) = book.number(7 + 3 * n + k, i);
      h.dya(i, k) = book.number(7 + 4 * n + k, i);
    }
    read.layers[i] = c;
    if (i == 1) makeLithologyList(s, p, names, c);
  }
  return read;
}

// A hole's values as stored, through ondayaz, made once for both kor and log.
struct StoredHole {
  double eks, eye, songir, cevgir, cevcik, soncik;
  std::vector<std::array<double, 4>> layers;  // ten, yog, uz, dya of layer k at k - 1
};

StoredHole storedHole(const Holes& h, int i, int layers) {
  StoredHole stored{ondayaz(h.eks[i]),
                    ondayaz(h.eye[i]),
                    ondayaz(h.songir[i]),
                    ondayaz(h.cevgir[i]),
                    ondayaz(h.cevcik[i]),
                    ondayaz(h.soncik[i]),
                    {}};
  for (int k = 1; k <= layers; ++k) {
    stored.layers.push_back(
        {ondayaz(h.ten(i, k)), ondayaz(h.yog(i, k)), ondayaz(h.uz(i, k)), ondayaz(h.dya(i, k))});
  }
  return stored;
}

// Appends one hole as a row of kor or log: its stored values, its layers, and the end of
// its log in the slot after the last layer.
void appendHoleRow(Recordset& rs, const Holes& h, int i, const StoredHole& stored) {
  rs.addNew();
  rs.set(field::eks, stored.eks);
  rs.set(field::eye, stored.eye);
  rs.set(field::songir, stored.songir);
  rs.set(field::cevgir, stored.cevgir);
  rs.set(field::cevcik, stored.cevcik);
  rs.set(field::soncik, stored.soncik);
  rs.set(field::isim, h.isim[i]);
  for (int k = 1; k <= static_cast<int>(stored.layers.size()); ++k) {
    const std::array<double, 4>& layer = stored.layers[k - 1];
    rs.set(layerField(LayerField::Lit, k), h.lit(i, k));
    rs.set(layerField(LayerField::Ten, k), layer[0]);
    rs.set(layerField(LayerField::Yog, k), layer[1]);
    rs.set(layerField(LayerField::Uz, k), layer[2]);
    rs.set(layerField(LayerField::Dya, k), layer[3]);
  }
}

void endHoleRow(Recordset& rs, int layers) {
  rs.set(layerField(LayerField::Lit, layers + 1), " ");
  rs.set(layerField(LayerField::Ten, layers + 1), 0);
  rs.update();
}

void appendEndMark(Recordset& rs) {
  rs.addNew();
  rs.set(field::eks, 0);
  rs.update();
}

// Writes kor, and returns the holes' stored values for log: each hole's are made as its
// row is written, so a value that fails stops the writing at its own row.
std::vector<StoredHole> writeKor(Database& db, const Holes& h, const ReadHoles& read) {
  Recordset kor = db.openTable(kHoleTable);
  std::vector<StoredHole> stored(h.sondsay + 1);
  for (int i = 1; i <= h.sondsay; ++i) {
    stored[i] = storedHole(h, i, read.layers[i]);
    appendHoleRow(kor, h, i, stored[i]);
    endHoleRow(kor, read.layers[i]);
  }
  appendEndMark(kor);
  return stored;
}

void writeLog(Database& db, const Holes& h, const ReadHoles& read,
              const std::vector<StoredHole>& stored, int lithologies) {
  Recordset log = db.openTable(kLogTable);
  std::vector<std::string> marks;
  for (int k = 1; k <= lithologies; ++k) marks.push_back(numbered(field::deg, k));
  for (int i = 1; i <= h.sondsay; ++i) {
    appendHoleRow(log, h, i, stored[i]);
    for (const std::string& mark : marks) log.set(mark, kMarkedNo);
    endHoleRow(log, read.layers[i]);
  }
  appendEndMark(log);
}

void writeLithologies(Database& db, const State& s, int p) {
  const int count = s.projects.litsay[p];
  for (int l = 1; l <= count; ++l) db.createTable(s.projects.litad.get(p, l), lithologyFields());
  db.createTable(kLithologyListTable, lithologyListFields());
  {
    Recordset list = db.openTable(kLithologyListTable);
    for (int l = 1; l <= count; ++l) {
      list.addNew();
      list.set(field::isim, s.projects.litad.get(p, l));
      list.set(field::litno, l);
      list.update();
    }
  }
  for (int l = 1; l <= count; ++l) {
    Recordset table = db.openTable(s.projects.litad.get(p, l));
    table.addNew();
    table.set(field::tsay, 0);
    table.update();
  }
}

void writePolHeader(Database& db) {
  Recordset pol = db.openTable(kPolTable);
  pol.addNew();
  pol.set(field::polsay, 0);
  pol.set(field::polsil, 0);
  pol.update();
}

void say(State& s, const std::string& text, const std::string& title) {
  s.ui.setLabel(1, text);
  s.dialogs.messageBox(text, Buttons::OK, Icon::Information, title);
}

// A new project's own form of the area limit: the user decides whether to shrink.
void checkNewProjectArea(State& s) {
  if (frameAreaKm2(s.frame) < kAreaLimitKm2) return;
  say(s,
      "You have passed the Plane Counted Area Value (50 Square Kilometers) ! Projection "
      "required.",
      "Attention !");
  const Answer fix = s.dialogs.messageBox(
      "If the Relevant Area is Reduced, You Cannot Work with Drills Outside the Area Value. "
      "Make a Correction?",
      Buttons::YesNo, Icon::Exclamation, "Attention !");
  if (fix == Answer::Yes) {
    shrinkFrame(s.frame);
    say(s, "The corresponding fix has been made!", "Attention !");
  } else {
    say(s, "Projection is Required for Your Project !", "Attention !");
  }
}

}  // namespace

void Mnprolus_Click(State& s) {
  enableProjectMenuItems(s, true);
  removeMarkers(s);
  const std::optional<FileChoice> workbookFile = askWorkbook(s);
  if (!workbookFile) return;

  HoleWorkbook book(s.openSheet(workbookFile->path), workbookFile->path);
  s.ui.setLabel(1, "File reading");
  Holes& h = s.holes;
  h.sondsay = book.countHoles();
  int longest = 0;
  for (int i = 1; i <= h.sondsay; ++i) {
    h.satirsay[i] = book.countRows(i);
    longest = std::max(longest, h.satirsay[i]);
  }

  const FileChoice projectFile = s.dialogs.saveFile("Write Project Name", kProjectFilter);
  s.ui.setLabel(1, "Project creating");
  Database db = Database::create(projectFile.path);
  addProject(s, projectFile);
  const int p = s.projects.projeno;
  db.createTable(kPolTable, polFields());
  const double layerGroups = (longest - 7) / 5.0;
  const int slots = static_cast<int>(std::floor(layerGroups + 1));
  db.createTable(kHoleTable, holeFields(slots));

  for (bool Flags::*view :
       {&Flags::modyuzdeten, &Flags::modrezton, &Flags::modgenelrezerv, &Flags::modrecboy}) {
    s.flags.*view = false;
  }
  s.canvas.cls();
  s.ui.hide("HScroll1");

  const ReadHoles read = readHoles(s, book, p);
  WriteBatch batch = db.beginBatch();
  db.createTable(kLogTable, logFields(slots, s.projects.litsay[p]));
  writeLithologies(db, s, p);
  const std::vector<StoredHole> stored = writeKor(db, h, read);
  writeLog(db, h, read, stored, s.projects.litsay[p]);
  writePolHeader(db);
  batch.commit();
  db.close();

  selectNewProject(s);
  frameReset(s);
  checkNewProjectArea(s);
  s.frame.haritagen = s.frame.ebxk - s.frame.ekxk;
  s.frame.haritayuk = s.frame.ebyk - s.frame.ekyk;
  setCanvasScale(s);
  layoutAfterLoad(s);
  s.ui.setLabel(1, "Project Ready");
}

}  // namespace tri
