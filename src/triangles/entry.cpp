#include "triangles/entry.h"

#include "platform/store.h"
#include "platform/vbtext.h"
#include "store/hole_lists.h"
#include "store/project_format.h"
#include "triangles/commands.h"
#include "triangles/records.h"

namespace tri {

void disableEntryMenuItems(State& s) {
  for (const char* item :
       {"Mnkaydir", "MNolcek", "Mntoprez", "Mnorten", "Mnhorten", "Mnkortyog", "Mnaortyog"}) {
    s.ui.enable(item, false);
  }
}

void enableAfterEntry(State& s) {
  for (const char* item : {"Mnkaydir", "MNolcek", "Mntoprez"}) s.ui.enable(item);
}

bool holeMatches(double holeX, double holeY, double x, double y) {
  return holeX - kPickTolerance <= x && x <= holeX + kPickTolerance &&
         holeY - kPickTolerance <= y && y <= holeY + kPickTolerance;
}

namespace {

constexpr Color kRed = 255;
constexpr Color kGreen = 65280;
constexpr Color kBlue = 16711680;

long picksModThree(const Entry& e) { return wholeIndex(e.noktasay) % 3; }

}  // namespace

void startPickAt(Entry& e) {
  if (picksModThree(e) == 0) {
    e.noktasay = 0;
    e.colorIndex = 3;
  } else {
    e.colorIndex = static_cast<int>(picksModThree(e));
  }
}

namespace {

bool isPendingCorner(const Entry& e, int corner, double x, double y) {
  return x == e.kosex[corner] && y == e.kosey[corner];
}

// The first hole in the square that is not corner 1 or 2 of this triangle; 0 when none.
// Every hole in the square is counted, and the last one seen is remembered.
int scanForHole(State& s, float x, float y) {
  Entry& e = s.entry;
  const Holes& h = s.holes;
  e.candidateX = 0;
  e.candidateY = 0;
  for (int i = 1; i <= h.sondsay; ++i) {
    if (!holeMatches(h.eks[i], h.eye[i], x, y)) continue;
    ++e.matchCount;
    e.candidateX = h.eks[i];
    e.candidateY = h.eye[i];
    if (isPendingCorner(e, 1, h.eks[i], h.eye[i]) || isPendingCorner(e, 2, h.eks[i], h.eye[i])) {
      continue;
    }
    return i;
  }
  return 0;
}

// The last hole the scan saw starts the rubber band when it is corner 1 or 2.
void holdBandStart(Entry& e) {
  const bool corner = isPendingCorner(e, 1, e.candidateX, e.candidateY) ||
                      isPendingCorner(e, 2, e.candidateX, e.candidateY);
  const bool seen = e.candidateX != 0 || e.candidateY != 0;
  e.heldX = seen && corner ? e.candidateX : 0;
  e.heldY = seen && corner ? e.candidateY : 0;
}

Color dotColor(int colorIndex) {
  switch (colorIndex) {
    case 1: return kRed;
    case 2: return kGreen;
    default: return kBlue;
  }
}

// Steps 6 to 11 of a left click: the pick, its prompt, its vertex row and its dot.
void pick(State& s, Recordset& drawing, float x, float y) {
  Entry& e = s.entry;
  const Holes& h = s.holes;
  startPickAt(e);
  const int hole = scanForHole(s, x, y);
  if (hole == 0) return;
  e.secsond = hole;
  e.noktasay += 1;
  Canvas& c = s.canvas;
  switch (picksModThree(e)) {
    case 1:
      s.ui.setLabel(1, "Select Second Point (Right Click: Cancel)");
      e.kosex[1] = h.eks[hole];
      e.kosey[1] = h.eye[hole];
      break;
    case 2:
      s.ui.setLabel(1, "Select Third Point (Right Click: Cancel)");
      e.kosex[2] = h.eks[hole];
      e.kosey[2] = h.eye[hole];
      c.drawWidth = 1;
      c.line(e.kosex[1], e.kosey[1], e.kosex[2], e.kosey[2], kRed);
      break;
    default:
      s.ui.setLabel(1, "Select Point One (Right Click: Cancel)");
      e.kosex[3] = h.eks[hole];
      e.kosey[3] = h.eye[hole];
      break;
  }
  drawing.moveLast();
  appendVertexRow(drawing, vertexOfHole(h, hole));
  c.drawWidth = 5;
  c.pset(h.eks[hole], h.eye[hole], dotColor(e.colorIndex));
}

// Right click: ends entry mode and takes back the vertex rows of an unfinished triangle.
void cancelEntry(State& s, Recordset& drawing) {
  Entry& e = s.entry;
  s.flags.modcizim = false;
  enableAfterEntry(s);
  e.kosex = {};
  e.kosey = {};
  if (drawing.recordCount() > 0) {
    drawing.moveLast();
    const long pending = picksModThree(e);
    if (pending >= 1) drawing.remove();
    if (pending == 2) {
      drawing.movePrevious();
      drawing.remove();
    }
  }
  e.noktasay = 0;
  e.matchCount = 0;
  e.candidateX = 0;
  e.candidateY = 0;
  e.heldX = 0;
  e.heldY = 0;
}

void drawPendingSides(State& s) {
  const Entry& e = s.entry;
  Canvas& c = s.canvas;
  c.drawWidth = 1;
  c.line(e.kosex[1], e.kosey[1], e.kosex[2], e.kosey[2], kRed);
  c.line(e.kosex[1], e.kosey[1], e.kosex[3], e.kosey[3], kGreen);
  c.line(e.kosex[2], e.kosey[2], e.kosex[3], e.kosey[3], kBlue);
}

// Reads the new triangle's corners back from its vertex rows and draws its sides.
void readBackCorners(State& s, Recordset& drawing, int number) {
  Entry& e = s.entry;
  moveToFirstVertex(drawing, number);
  for (int k = 1; k <= 3; ++k) {
    if (k > 1) drawing.moveNext();
    e.readX[k] = drawing.number(field::koordinat1) / 1000;
    e.readY[k] = drawing.number(field::koordinat2) / 1000;
    e.cornerX(k, number) = e.readX[k];
    e.cornerY(k, number) = e.readY[k];
  }
  Canvas& c = s.canvas;
  c.line(e.readX[1], e.readY[1], e.readX[2], e.readY[2], 0);
  c.line(e.readX[2], e.readY[2], e.readX[3], e.readY[3], 0);
  c.line(e.readX[1], e.readY[1], e.readX[3], e.readY[3], 0);
}

void bufferCorners(Entry& e) {
  const long at = wholeIndex(e.ucgenbuf) + 1;
  const std::array<double, 6> corners{e.readX[1], e.readY[1], e.readX[3],
                                      e.readY[3], e.readX[2], e.readY[2]};
  for (size_t i = 0; i < corners.size(); ++i) e.buffers[i][at] = corners[i];
  e.ucgenbuf += 1;
}

// Steps 13 to 19: the triangle is complete.
void completeTriangle(State& s, Database& db) {
  Entry& e = s.entry;
  e.matchCount = 0;
  drawPendingSides(s);
  CornerHoles holes{};
  {
    Recordset drawing = db.openTable(s.ui.combo2.text());
    drawing.moveLast();
    drawing.move(-3);
    e.ucgenno = drawing.number(field::ucgensay) + 1;
    const int number = wholeIndex(e.ucgenno);
    s.canvas.foreColor = 0;
    s.canvas.drawWidth = 1;
    if (s.flags.ilkmod) readBackCorners(s, drawing, number);
    bufferCorners(e);
    moveToFirstVertex(drawing, number);
    for (int k = 1; k <= 3; ++k) {
      if (k > 1) drawing.moveNext();
      holes[k] = static_cast<int>(drawing.number(field::say));
    }
  }
  finishTriangle(s, db, holes);
}

}  // namespace

void ucgeciz(State& s, float x, float y, int button) {
  s.ui.hide("HScroll1");
  s.ui.line1.visible = false;
  Database db = Database::open(s.projectPath());
  {
    Recordset kor = db.openTable(kHoleTable);
    loadHoleRecords(s, kor, HoleListEnd::ZeroX);
  }
  Recordset drawing = db.openTable(s.ui.combo2.text());
  if (button == 2) {
    cancelEntry(s, drawing);
    drawing.close();
    db.close();
    ucgenplan(s);
    s.ui.setLabel(1, "Process canceled");
    return;
  }
  if (button == 1) pick(s, drawing, x, y);
  holdBandStart(s.entry);
  drawing.close();
  const Entry& e = s.entry;
  if (e.noktasay != 0 && picksModThree(e) == 0) completeTriangle(s, db);
}

}  // namespace tri
