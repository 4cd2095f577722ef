// The 2D value maps: one number per triangle at its centroid, over the grid, under the holes.
#include "canvas/base_plan.h"
#include "canvas/frame.h"
#include "store/project_format.h"
#include "views/commands.h"
#include "views/map_pass.h"

namespace tri {

namespace {

void tenorFlags(Flags& f) {
  f.clearViews();
  f.modyuzdeten = true;
}

// The reserve map replaces the other three views only; the tools stay on.
void reserveFlags(Flags& f) {
  f.modrezton = true;
  f.modyuzdeten = false;
  f.modgenelrezerv = false;
  f.modrecboy = false;
}

void generalReserveFlags(Flags& f) {
  f.clearViews();
  f.modgenelrezerv = true;
}

// A filled disc at the centroid in the colour of the triangle's class; none when no class
// holds the value. The pen width is the one the canvas has at this point.
void drawClassDisc(State& s, const MapTriangle& triangle, double radius) {
  const int j = reserveClass(s.views, triangle.v);
  if (j == 0) return;
  Canvas& c = s.canvas;
  const Color color = s.views.renkler[j];
  c.fillSolid = true;
  c.fillColor = color;
  c.circle(triangle.cx(), triangle.cy(), radius, color);
}

}  // namespace

void Mnyuzdeten_Click(State& s) {
  std::optional<MapTable> pass = openMapPass(s, {tenorFlags});
  if (!pass) return;
  const int n = triangleCount(pass->table);
  for (int i = 1; i <= n; ++i) {
    const MapTriangle triangle = readMapTriangle(pass->table, i, field::geneltenor);
    drawSides(s.canvas, triangle.corners);
    drawValueLabel(s, triangle);
  }
  drawHoles(s);
}

void Mnrezton_Click(State& s) {
  std::optional<MapTable> pass = openMapPass(s, {reserveFlags});
  if (!pass) return;
  Views& w = s.views;
  ++w.rezervcizimsay;
  w.toplamrezerv = 0;
  const int n = triangleCount(pass->table);
  for (int i = 1; i <= n; ++i) {
    setCanvasScale(s);
    const MapTriangle triangle = readMapTriangle(pass->table, i, field::genelrezerv);
    drawSides(s.canvas, triangle.corners);
    drawValueLabel(s, triangle);
    w.toplamrezerv += triangle.v;
  }
  showTotalReserve(s);
  drawHoles(s);
}

void Mngenelrezervler_Click(State& s) {
  std::optional<MapTable> pass = openMapPass(s, {generalReserveFlags});
  if (!pass) return;
  Views& w = s.views;
  ++w.rezervcizimsay;
  w.toplamrezerv = 0;
  std::vector<double> reserves;
  std::vector<std::optional<TriangleCorners>> corners;
  const int n = computeReserveClasses(s, pass->table, reserves, &corners);
  for (int i = 1; i <= n; ++i) {
    if (i > 1) setCanvasScale(s);
    const std::optional<TriangleCorners>& seen = corners[i - 1];
    const MapTriangle triangle = seen ? MapTriangle{reserves[i - 1], *seen}
                                      : readMapTriangle(pass->table, i, reserves[i - 1]);
    drawClassDisc(s, triangle, discRadius(w, triangle.corners));
    drawSides(s.canvas, triangle.corners);
    drawValueLabel(s, triangle);
    w.toplamrezerv += triangle.v;
  }
  showTotalReserve(s);
  drawHoles(s);
}

}  // namespace tri
