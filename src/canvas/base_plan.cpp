#include "canvas/base_plan.h"

#include "platform/vbtext.h"

namespace tri {

namespace {

void printAt(Canvas& c, double x, double y, const std::string& text) {
  c.currentX = x;
  c.currentY = y;
  c.print(text);
}

}  // namespace

void drawGrid(State& s) {
  Frame& f = s.frame;
  if (!f.gridgoster) return;
  Canvas& c = s.canvas;
  const Color color = s.colors.dialog3;
  c.foreColor = color;
  const double stepX = f.olcekx * (f.gridadim + 2);
  const double stepY = f.olceky * (f.gridadim + 2);
  for (int i = 1; i <= f.gridxsay; ++i) {
    const double x = f.ekxk + stepX * i;
    c.drawWidth = 1;
    c.line(x, f.ekyk + 20, x, f.ekyk + 30, color);
    c.drawWidth = 2;
    printAt(c, x - 20, f.ekyk + 50, numberText(roundHalfEven(x, 2)));
    f.gridx[i] = x;
  }
  for (int j = 1; j <= f.gridysay; ++j) {
    const double y = f.ekyk + stepY * j;
    c.drawWidth = 1;
    c.line(f.ekxk + 20, y, f.ekxk + 30, y, color);
    c.drawWidth = 2;
    printAt(c, f.ekxk + 35, y + 10, numberText(roundHalfEven(y, 2)));
    f.gridy[j] = y;
  }
  c.drawWidth = 1;
  for (int i = 1; i <= f.gridxsay; ++i) {
    for (int j = 1; j <= f.gridysay; ++j) {
      const double x = f.gridx[i];
      const double y = f.gridy[j];
      c.line(x - 5, y, x + 5, y, color);
      c.line(x, y - 5, x, y + 5, color);
    }
  }
}

void drawHolePoint(State& s, int hole) {
  Canvas& c = s.canvas;
  c.drawWidth = 5;
  c.foreColor = 0;
  c.pset(s.holes.eks[hole], s.holes.eye[hole]);
}

void drawHoleName(State& s, int hole) {
  Canvas& c = s.canvas;
  c.drawWidth = 2;
  c.foreColor = 255;
  printAt(c, s.holes.eks[hole], s.holes.eye[hole], s.holes.isim[hole]);
}

void drawHoles(State& s) {
  for (int i = 1; i <= s.holes.sondsay; ++i) {
    drawHolePoint(s, i);
    if (s.frame.sondgoster) drawHoleName(s, i);
  }
}

}  // namespace tri
