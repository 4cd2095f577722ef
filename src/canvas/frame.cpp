#include "canvas/frame.h"

#include <cmath>

#include "canvas/replay.h"
#include "platform/store.h"
#include "platform/vbtext.h"
#include "store/hole_lists.h"
#include "store/project_format.h"

namespace tri {

void frameReset(State& s) {
  Frame& f = s.frame;
  const Holes& h = s.holes;
  f.ebxk = f.ekxk = h.eks[3];
  f.ebyk = f.ekyk = h.eye[3];
  for (int i = 1; i <= h.sondsay; ++i) {
    if (h.eks[i] >= f.ebxk) f.ebxk = h.eks[i];
    if (h.eks[i] <= f.ekxk) f.ekxk = h.eks[i];
    if (h.eye[i] >= f.ebyk) f.ebyk = h.eye[i];
    if (h.eye[i] <= f.ekyk) f.ekyk = h.eye[i];
  }
}

double frameAreaKm2(const Frame& f) { return (f.ebxk - f.ekxk) * (f.ebyk - f.ekyk) / 1000000; }

void shrinkFrame(Frame& f) {
  while (frameAreaKm2(f) >= kAreaLimitKm2) {
    f.ebxk -= 0.5;
    f.ebyk -= 0.5;
    f.ekxk += 0.5;
    f.ekyk += 0.5;
  }
}

bool applyAreaLimit(State& s, LimitWording wording) {
  if (frameAreaKm2(s.frame) < kAreaLimitKm2) return false;
  const bool view = wording == LimitWording::View;
  const std::string passed =
      "You have passed the Plane Counted Area Value (50 Square Kilometers) !";
  const std::string fixed = "The corresponding fix has been made!";
  const std::string title = view ? " Attention !" : "Attention !";
  s.ui.setLabel(1, view ? " " + passed : passed);
  s.dialogs.messageBox(passed, Buttons::OK, Icon::Information, title);
  shrinkFrame(s.frame);
  s.ui.setLabel(1, view ? " " + fixed : fixed);
  s.dialogs.messageBox(fixed, Buttons::OK, Icon::Information, title);
  return true;
}

void setCanvasScale(State& s) {
  const Frame& f = s.frame;
  s.canvas.scale(f.ekxk, f.ebyk, f.ebxk, f.ekyk);
}

namespace {

void computeScales(State& s, double canvasWidthCm, double canvasHeightCm) {
  Frame& f = s.frame;
  f.olcekx = std::abs(f.ebxk - f.ekxk) / canvasWidthCm;
  f.olceky = std::abs(f.ebyk - f.ekyk) / canvasHeightCm;
}

bool canvasShrankSinceResize(const State& s) {
  return s.canvas.pixelWidth() < s.layout.lastCanvasWidth ||
         s.canvas.pixelHeight() < s.layout.lastCanvasHeight;
}

// Moves the x edges apart by w (olceky - olcekx), half on each side: a widening when the y
// scale is the greater, a crop otherwise. The formula mixes centimetres and metres per
// centimetre as the plan has always done.
void stretchX(Frame& f, double w) {
  const double d = w * (f.olceky - f.olcekx) / 2;
  f.ebxk += d;
  f.ekxk -= d;
}

// The same for the y edges, by h (olcekx - olceky).
void stretchY(Frame& f, double h) {
  const double d = h * (f.olcekx - f.olceky) / 2;
  f.ebyk += d;
  f.ekyk -= d;
}

// Widens the direction with the smaller scale so that the whole frame stays visible.
void widenToCanvas(Frame& f, double w, double h) {
  if (f.olceky > f.olcekx) {
    stretchX(f, w);
  } else if (f.olcekx > f.olceky) {
    stretchY(f, h);
  }
}

// Crops the direction with the greater scale so that the frame fills the canvas.
void cropToCanvas(Frame& f, double w, double h) {
  if (f.olcekx > f.olceky) {
    stretchX(f, w);
  } else if (f.olceky > f.olcekx) {
    stretchY(f, h);
  }
}

void applyTypedScale(State& s, double w, double h) {
  Frame& f = s.frame;
  if (!f.olcekgirildi || f.olcek == roundHalfEven(f.olcekx, 2)) return;
  double d = (f.haritagen - f.haritagen * divide(f.olcek, f.olcekx, "typed scale")) / 2;
  f.ebxk -= d;
  f.ekxk += d;
  double e = (f.haritayuk - f.haritayuk * divide(f.olcek, f.olceky, "typed scale")) / 2;
  f.ebyk -= e;
  f.ekyk += e;
  computeScales(s, w, h);
}

}  // namespace

void frameFit(State& s, LimitWording wording) {
  Frame& f = s.frame;
  s.canvas.setScaleMode(ScaleMode::Centimeter);
  const double w = s.canvas.scaleWidth();
  const double h = s.canvas.scaleHeight();
  const bool shrank = canvasShrankSinceResize(s);
  auto fitToCanvas = [&] {
    if (shrank) {
      widenToCanvas(f, w, h);
    } else {
      cropToCanvas(f, w, h);
    }
    computeScales(s, w, h);
  };

  computeScales(s, w, h);
  fitToCanvas();
  applyTypedScale(s, w, h);
  if (applyAreaLimit(s, wording)) {
    computeScales(s, w, h);
    fitToCanvas();
  }
  f.haritagen = f.ebxk - f.ekxk;
  f.haritayuk = f.ebyk - f.ekyk;
  setCanvasScale(s);
  s.ui.setLabel(4, "Scale: 1/" + numberText(roundHalfEven(f.olcekx * 100, 2)));
  f.gridxsay = divide(f.haritagen, f.olcekx, "grid columns of a frame without width");
  f.gridysay = divide(f.haritayuk, f.olceky, "grid rows of a frame without height");
}

void layoutAfterLoad(State& s) {
  // The layout sizes the window again, and a resize clears the drawing flags.
  clearDrawingFlags(s);
  if (s.ui.onLayout) s.ui.onLayout();
}

}  // namespace tri
