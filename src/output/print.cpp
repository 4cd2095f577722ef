// File, Print: the print panels, and the canvas's image on a printer's sheet or on the
// preview page, at a scale rounded up to one significant digit when it goes past the paper.
#include <optional>
#include <string>
#include <utility>

#include "canvas/replay.h"
#include "output/commands.h"
#include "output/print_layout.h"
#include "platform/fault.h"
#include "platform/image_canvas.h"
#include "platform/vbtext.h"

namespace tri {

namespace {

constexpr const char* kPanels[] = {"Frame1", "Frame2",   "Command1",
                                   "Combo3", "Picture2", "Command2"};

struct Paper {
  const char* entry;
  int code;
};
constexpr Paper kPapers[] = {{"A3", kPaperA3}, {"A4", kPaperA4}, {"A5", kPaperA5}};

int listIndex(const State& s, int list) {
  const int index = s.ui.printLists[list];
  const int count = list == 1 ? 3 : list == 4 ? 4 : 2;
  if (index < 0 || index >= count) {
    throw Fault(FaultKind::InvalidPropertyValue,
                "List" + std::to_string(list) + ".ListIndex = " + std::to_string(index));
  }
  return index;
}

const Paper& chosenPaper(const State& s) { return kPapers[listIndex(s, 1)]; }
int orientation(const State& s) { return listIndex(s, 2) + 1; }

Printers& systemPrinters(State& s) {
  Output& o = s.output;
  if (!o.printers) {
    o.ownPrinters = std::make_unique<PdfOnlyPrinters>([&s] {
      return s.dialogs.saveFile("Print to PDF File", "PDF Document (*.pdf)|*.pdf").path;
    });
    o.printers = o.ownPrinters.get();
  }
  return *o.printers;
}

// The canvas's scale, kept while it is read in centimetres.
struct SavedScale {
  explicit SavedScale(const Canvas& c)
      : mode(c.scaleMode()),
        left(c.scaleLeft()),
        top(c.scaleTop()),
        width(c.scaleWidth()),
        height(c.scaleHeight()) {}
  void restore(Canvas& c) const {
    c.scale(left, top, left + width, top + height);
    if (mode != ScaleMode::User) c.setScaleMode(mode);
  }
  ScaleMode mode;
  double left, top, width, height;
};

// Step 1: the canvas's size in cm; the paper's after orientation.
void measure(State& s) {
  Output& o = s.output;
  s.canvas.setScaleMode(ScaleMode::Centimeter);
  o.resimgen = s.canvas.scaleWidth();
  o.resimyuk = s.canvas.scaleHeight();
  const PaperSize paper = paperSizeOf(chosenPaper(s).code);
  const bool upright = orientation(s) == 1;
  o.kagitgen = upright ? paper.width : paper.height;
  o.kagityuk = upright ? paper.height : paper.width;
}

// Step 2: the document's settings.
void setUpPrinter(State& s, Printer& printer) {
  printer.setOrientation(orientation(s));
  printer.setColorMode(printer.colorCapability() > 0 ? listIndex(s, 3) + 1 : 1);
  printer.setPrintQuality(listIndex(s, 4) + 1);
  printer.setCopies(static_cast<int>(wholeIndex(toNumber(s.ui.text1))));
  printer.setPaperSize(chosenPaper(s).code);
}

void closePanels(State& s) {
  for (const char* panel : kPanels) s.ui.hide(panel);
  s.ui.show("Picture1");
}

void runProductionAreas(State& s) {
  if (!s.flags.modureciz) return;
  for (const ReplayRow& row : s.replayRows) {
    if (row.flag == &Flags::modureciz && row.procedure) row.procedure(s);
  }
}

// Step 4: true when the user goes back to reduce the map.
bool goBack(State& s) {
  Output& o = s.output;
  if (o.exceedAnswered) return false;
  s.dialogs.messageBox("Map exceeds " + std::string(chosenPaper(s).entry) + " paper sizes.",
                       Buttons::OK, Icon::None, "");
  const Answer answer = s.dialogs.messageBox(
      "Would you like to go back and reduce the sizes for this? If not, the app will set the "
      "scale for the corresponding sizes.",
      Buttons::YesNo, Icon::None, "");
  o.exceedAnswered = true;
  if (answer != Answer::Yes) return false;
  closePanels(s);
  runProductionAreas(s);
  replayTail(s);
  return true;
}

std::string rounded(double x, int decimals) { return numberText(roundHalfEven(x, decimals)); }

// Step 6: the texts of the overlays placed on the plan, at their noted places.
void printOverlays(State& s) {
  const Overlays& v = s.views.overlays;
  const std::pair<int, std::string> texts[] = {
      {2, "Area Relative Avg. Tenor: %" + rounded(v.alanortten, 2)},
      {3, "Cubaj Relative Avg. Tenor: %" + numberText(v.kubajortten)},
      {4, "Area Relative Avg. Intensity: " + numberText(v.alanortyog)},
      {5, "Cubaj Relative Avg. Intensity: " + numberText(v.kubajortyog)},
      {6, "Total Reserve: " + numberText(v.toprez) + " Kiloton"},
      {7, "Limit Tenor: %" + numberText(v.seclimten)},
      {1, "Scale: 1/" + rounded(s.output.yeniolcek, 2)},
  };
  Canvas& c = s.canvas;
  for (const auto& [slot, text] : texts) {
    const PlanPoint& at = v.yazikonum[slot];
    if (at.x == 0 && at.y == 0) continue;
    c.drawWidth = 1;
    c.foreColor = 0;
    c.currentX = at.x;
    c.currentY = at.y;
    c.print(text);
  }
}

struct Placement {
  double x, y, width, height;
};

// Steps 3 to 9 up to the copy; nothing when the user goes back.
std::optional<Placement> placeMap(State& s) {
  Output& o = s.output;
  const Excess excess = excessOf(o.resimgen, o.resimyuk, o.kagitgen, o.kagityuk);
  if (excess != Excess::None && goBack(s)) return std::nullopt;
  o.olcekpay = 100 * s.frame.olcekx;
  const int option = s.ui.printOption;
  Placement p{0, 0, o.resimgen, o.resimyuk};
  o.yeniolcek = o.olcekpay;
  if (excess != Excess::None) {
    const double r = excess == Excess::Height ? o.resimyuk / o.kagityuk : o.resimgen / o.kagitgen;
    o.yeniolcek = roundedPaperScale(r * o.olcekpay);
    p.width = o.olcekpay * o.resimgen / o.yeniolcek;
    p.height = o.olcekpay * o.resimyuk / o.yeniolcek;
    const SheetPlace at =
        reducedPlace(option, excess, o.kagitgen, o.kagityuk, p.width, p.height, o.resimgen);
    p.x = at.x;
    p.y = at.y;
  } else {
    const SheetPlace at = fittingPlace(option, o.kagitgen, o.kagityuk, p.width, p.height);
    p.x = at.x;
    p.y = at.y;
  }
  return p;
}

}  // namespace

void Mnyazdır_Click(State& s) {
  s.ui.hide("Picture1");
  for (const char* panel : kPanels) s.ui.show(panel);
  s.ui.combo3.clear();
  for (const std::string& name : systemPrinters(s).names()) s.ui.combo3.addItem(name);
  s.output.exceedAnswered = false;
}

void Command1_Click(State& s) {
  Printer& printer = systemPrinters(s).printer(s.ui.combo3.listIndex());
  const SavedScale frameScale(s.canvas);
  measure(s);
  setUpPrinter(s, printer);
  frameScale.restore(s.canvas);
  const std::optional<Placement> p = placeMap(s);
  if (!p) return;
  printOverlays(s);
  printer.paintPicture(s.canvas, p->x, p->y, p->width, p->height);
  printer.endDoc();
}

void Command2_Click(State& s) {
  const SavedScale frameScale(s.canvas);
  measure(s);
  frameScale.restore(s.canvas);
  const std::optional<Placement> p = placeMap(s);
  if (!p) return;
  printOverlays(s);
  Output& o = s.output;
  if (!o.picture2) o.picture2 = std::make_unique<ImageCanvas>(210, 297);
  auto& page = static_cast<ImageCanvas&>(*o.picture2);
  page.cls();
  page.scale(0, 0, o.kagitgen, o.kagityuk);
  page.paintPicture(s.canvas, p->x, p->y, p->width, p->height);
}

}  // namespace tri
