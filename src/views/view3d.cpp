// The 3D reserve view: each triangle of the selected table as a solid prism standing between
// the ore's top and bottom in its three corner holes, in the colour of its reserve class, seen
// at the angle of the scroll bar below the canvas.
#include "views/view3d.h"

#include <cmath>

#include "canvas/frame.h"
#include "canvas/selection.h"
#include "platform/vbtext.h"
#include "store/project_format.h"
#include "triangles/commands.h"
#include "triangles/records.h"
#include "views/commands.h"
#include "views/map_pass.h"

namespace tri {

CornerLogs::CornerLogs(Recordset& log, std::string lithology, std::optional<std::string> limitText)
    : log_(log), lithology_(std::move(lithology)), limitText_(std::move(limitText)) {}

const CornerLogs::SlotFields& CornerLogs::fieldsOf(int c) {
  while (static_cast<int>(fields_.size()) < c) {
    const int slot = static_cast<int>(fields_.size()) + 1;
    fields_.push_back({log_.fieldIndex(layerField(LayerField::Lit, slot)),
                       log_.fieldIndex(layerField(LayerField::Ten, slot)),
                       log_.fieldIndex(layerField(LayerField::Uz, slot))});
  }
  return fields_[c - 1];
}

void CornerLogs::readSlots() {
  slots_.clear();
  for (int c = 1;; ++c) {
    const SlotFields& at = fieldsOf(c);
    std::string lit = log_.text(at.lit);
    const double ten = log_.number(at.ten);
    if (lit == " " && ten == 0) return;
    slots_.push_back({std::move(lit), ten, log_.number(at.uz)});
  }
}

bool CornerLogs::richOre(const std::string& lit, double tenor) const {
  return lit == lithology_ && tenor > limit_;
}

// Pass 1 of the limit walk: from slot 1 down the hole until a rich layer of the lithology
// or the end of the log; every layer passed is cut.
double CornerLogs::trimFromTop() {
  double trim = 0;
  const int m = static_cast<int>(slots_.size());
  for (int c = 1; c <= m; ++c) {
    const Slot& layer = slots_[c - 1];
    if (richOre(layer.lit, layer.ten / 1000)) break;
    trim += layer.uz / 1000;
  }
  return trim;
}

// Pass 2: from the last real slot up the hole, stopping before slot 1, which is never looked
// at from below. A log without layers starts at slot 0, which the table does not have.
double CornerLogs::trimFromBottom() {
  double trim = 0;
  const int m = static_cast<int>(slots_.size());
  if (m == 0) log_.text(layerField(LayerField::Lit, 0));
  for (int c = m; c > 1; --c) {
    const Slot& layer = slots_[c - 1];
    if (richOre(layer.lit, layer.ten / 1000)) break;
    trim += layer.uz / 1000;
  }
  return trim;
}

CornerLengths CornerLogs::walk() {
  CornerLengths l;
  readSlots();
  const int m = static_cast<int>(slots_.size());
  for (const Slot& layer : slots_) l.loglen += layer.uz / 1000;
  for (int c = 1; c <= m && slots_[c - 1].lit != lithology_; ++c) {
    l.abovelen += slots_[c - 1].uz / 1000;
  }
  for (int c = m; c >= 1 && slots_[c - 1].lit != lithology_; --c) {
    l.belowlen += slots_[c - 1].uz / 1000;
  }
  if (limitText_) {
    if (!limitRead_) {
      limit_ = toNumber(*limitText_);
      limitRead_ = true;
    }
    l.trimlen[1] = trimFromTop();
    l.trimlen[2] = trimFromBottom();
  }
  return l;
}

const CornerLengths& CornerLogs::of(int holeno) {
  if (const auto known = walked_.find(holeno); known != walked_.end()) return known->second;
  // From the first row on, one row at a time, until the row numbered holeno.
  log_.moveFirst();
  if (holeno < 1) {
    log_.move(log_.recordCount());
  } else {
    log_.move(holeno - 1);
  }
  return walked_[holeno] = walk();
}

CornerDepths cornerDepths(double collar, const CornerLengths& l, bool limitChosen) {
  if (!limitChosen) return {collar - l.abovelen, collar - l.loglen + l.belowlen};
  if (l.trimlen[1] == 0 && l.trimlen[2] == 0) {
    const double middle = collar - l.loglen / 2;
    return {middle, middle};
  }
  return {collar - l.abovelen - l.trimlen[1], collar - l.loglen + l.belowlen + l.trimlen[2]};
}

ViewPoint projectPoint(double relx, double rely, double depth, int a, double pi) {
  const double r = pi / 180;
  if (a > 180) {
    return {relx * std::cos(a * r) + 0.06 * a + -depth * std::cos((a + 270) * r),
            rely * std::sin(a * r) - 0.06 * a + -depth * std::sin((a + 270) * r)};
  }
  return {relx * std::cos(a * r) + 0.06 * a + depth * std::cos((a + 90) * r),
          rely * std::sin(a * r) - 0.06 * a + depth * std::sin((a + 90) * r)};
}

int viewPixel(double value, double extent, double buyutadim) {
  return static_cast<int>(wholeIndex(value / 5 + extent / 4 + buyutadim * 10));
}

namespace {

void reserveViewFlags(Flags& f) {
  f.clearViews();
  f.modrecboy = true;
}

// A prism's corners in pixels: the ore's top and its bottom at each corner, 1 .. 3.
struct Prism {
  std::array<int, 4> topX{}, topY{}, botX{}, botY{};
};

// The eight faces in the order they are filled: the top, the bottom, then each side as two
// halves; a point is the top (true) or the bottom of a corner.
struct FacePoint {
  bool top;
  int k;
};
constexpr FacePoint kFaces[8][3] = {
    {{true, 1}, {true, 2}, {true, 3}},  {{false, 1}, {false, 2}, {false, 3}},
    {{true, 1}, {false, 1}, {true, 2}}, {{true, 2}, {false, 2}, {false, 1}},
    {{true, 2}, {false, 2}, {true, 3}}, {{true, 3}, {false, 3}, {false, 2}},
    {{true, 1}, {false, 1}, {true, 3}}, {{true, 3}, {false, 3}, {false, 1}},
};

void fillPrism(Canvas& canvas, const Prism& p, Color color) {
  for (const auto& face : kFaces) {
    int xy[6];
    for (int n = 0; n < 3; ++n) {
      const FacePoint& at = face[n];
      xy[2 * n] = at.top ? p.topX[at.k] : p.botX[at.k];
      xy[2 * n + 1] = at.top ? p.topY[at.k] : p.botY[at.k];
    }
    FillTriangle(canvas, xy[0], xy[1], xy[2], xy[3], xy[4], xy[5], color);
  }
}

// Triangle i: its corners and the summary row after them, the stored frame its prism is
// placed in, the depths at its corners seen at the bar's angle, and its eight faces when its
// reserve has a class and is above 0. The scale factors follow the stored frame; the canvas
// gets the state's frame back.
void drawPrism(State& s, Recordset& table, CornerLogs& logs, int i, bool limitChosen) {
  Frame& f = s.frame;
  Views& w = s.views;
  std::array<VertexRow, 4> corner;
  moveToFirstVertex(table, i);
  for (int k = 1; k <= 3; ++k) {
    if (k > 1) table.moveNext();
    corner[k] = readVertexRow(table);
  }
  table.moveNext();
  w.trireserve[i] = table.number(field::genelrezerv) / 1000;
  const double v = w.trireserve[i];
  const double x0 = table.number(field::ekxk) / 1000;
  const double y0 = table.number(field::ekyk) / 1000;
  f.haritagen = std::abs(table.number(field::ebxk) / 1000 - x0);
  f.haritayuk = std::abs(table.number(field::ebyk) / 1000 - y0);
  s.canvas.scale(-f.haritagen, f.haritayuk, f.haritagen, -f.haritayuk);

  std::array<ViewPoint, 4> top, bottom;
  for (int k = 1; k <= 3; ++k) {
    const CornerDepths d = cornerDepths(corner[k].sondgir, logs.of(corner[k].hole), limitChosen);
    w.viewangle = s.ui.hscroll1Value;
    const double relx = corner[k].x - x0;
    const double rely = corner[k].y - y0;
    top[k] = projectPoint(relx, rely, d.top, w.viewangle, w.pi);
    bottom[k] = projectPoint(relx, rely, d.bottom, w.viewangle, w.pi);
    top[k].y = f.haritayuk - top[k].y;
    bottom[k].y = f.haritayuk - bottom[k].y;
  }

  const int j = reserveClass(w, v);
  if (j != 0 && v > 0) {
    Prism p;
    for (int k = 1; k <= 3; ++k) {
      p.topX[k] = viewPixel(top[k].x, f.haritagen, f.buyutadim);
      p.topY[k] = viewPixel(top[k].y, f.haritayuk, f.buyutadim);
      p.botX[k] = viewPixel(bottom[k].x, f.haritagen, f.buyutadim);
      p.botY[k] = viewPixel(bottom[k].y, f.haritayuk, f.buyutadim);
    }
    fillPrism(s.canvas, p, w.renkler[j]);
  }

  s.canvas.setScaleMode(ScaleMode::Centimeter);
  f.olcekx = 2.31 + 2.339622642 * (f.haritagen / s.canvas.scaleWidth());
  f.olceky = 2.31 + 2.339622642 * (f.haritayuk / s.canvas.scaleHeight());
  setCanvasScale(s);
}

// The pass of the view: the head of the maps with the scroll bar kept and then shown, the
// reserve classes of the table, and a prism per triangle in table order.
void drawReserveView(State& s, const MapHead& head) {
  s.views.recboyizi = true;
  std::optional<MapTable> pass = openMapPass(s, head);
  if (!pass) return;
  s.ui.show("HScroll1");
  std::vector<double> reserves;
  const int n = computeReserveClasses(s, pass->table, reserves);
  if (n < 1) return;
  const std::string limit = s.ui.combo1.text();
  const bool limitChosen = limit != kLimitTitle;
  Recordset log = pass->db.openTable(kLogTable);
  CornerLogs logs(log, s.ui.combo4.text(),
                  limitChosen ? std::optional<std::string>(limit) : std::nullopt);
  for (int i = 1; i <= n; ++i) drawPrism(s, pass->table, logs, i, limitChosen);
}

}  // namespace

void Mnrecboy_Click(State& s) {
  MapHead head{reserveViewFlags};
  head.hideScrollBar = false;
  drawReserveView(s, head);
}

void HScroll1_Change(State& s) {
  MapHead head{reserveViewFlags};
  head.hideScrollBar = false;
  head.wording = LimitWording::View;
  head.removeMarkers = false;
  drawReserveView(s, head);
  s.ui.enable("Mnkaydir", false);
  s.ui.enable("Mnolcekg", false);
  s.frame.kaydirmod = false;
}

}  // namespace tri
