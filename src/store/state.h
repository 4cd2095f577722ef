// The program state: the one long-lived object every command works on. It holds the name
// lists of all projects of the run, the current project's holes, the map frame, the mode
// flags, the work of triangle entry and the platform objects (canvas, dialogs, controls).
// Nothing here is saved: the project file holds everything that must last.
#pragma once

#include <array>
#include <span>
#include <string>

#include "platform/bounded.h"
#include "platform/canvas.h"
#include "platform/controls.h"
#include "platform/dialogs.h"
#include "platform/sheet.h"
#include "store/network_state.h"
#include "store/output_state.h"
#include "store/production_state.h"
#include "store/scan_state.h"
#include "store/view_state.h"

namespace tri {

// A limit tenor of a drawing: its value in percent and the text that names its table.
// The text is the value as typed while the run lasts and the value's general text after
// a project is opened again, so "2.50" comes back as "2.5".
struct LimitTenor {
  double value = 0;
  std::string text;
};

// Every project of the run, by index 1 .. projeno; index = Combo5 list index.
struct Projects {
  int projeno = 0;
  Bounded<std::string> projead{"projead", 100};
  Bounded<std::string> projeyol{"projeyol", 100};
  Bounded<int> litsay{"litsay", 100};
  Sparse<std::string, 2> litad{"litad", {100, 100}};
  Sparse<int, 2> cizimsay{"cizimsay", {100, 100}};
  Sparse<std::string, 3> cizimad{"cizimad", {100, 100, 100}};
  Sparse<int, 3> limsay{"limsay", {100, 100, 100}};
  Sparse<LimitTenor, 4> limdeger{"limdeger", {100, 100, 100, 30}};
};

// The holes of the current project, by hole number 1 .. sondsay (the row order of kor).
struct Holes {
  int sondsay = 0;
  Bounded<double> eks{"eks", 999};
  Bounded<double> eye{"eye", 999};
  Bounded<std::string> isim{"isim", 999};
  Bounded<double> songir{"songir", 999};
  Bounded<double> cevgir{"cevgir", 999};
  Bounded<double> cevcik{"cevcik", 999};
  Bounded<double> soncik{"soncik", 999};
  Bounded<int> satirsay{"satirsay", 999};
  // [hole][layer]: workbook values while a project is created, stored thousandths after
  // it is opened.
  Bounded2<std::string> lit{"lit", 999, 999};
  Bounded2<double> ten{"ten", 999, 999};
  Bounded2<double> yog{"yog", 999, 999};
  Bounded2<double> uz{"uz", 999, 999};
  Bounded2<double> dya{"dya", 999, 999};
};

// The map frame, the scale and the plan's own settings.
struct Frame {
  double ebxk = 0;  // greatest x
  double ekxk = 0;  // smallest x
  double ebyk = 0;  // greatest y
  double ekyk = 0;  // smallest y
  double haritagen = 0;
  double haritayuk = 0;
  double olcekx = 0;  // metres per centimetre of canvas
  double olceky = 0;
  double olcek = 0;  // typed scale / 100
  bool olcekgirildi = false;
  double buyutadim = 0;  // the zoom step: 0.05 from the first zoom command on
  double kaydirx = 0;
  double kaydiry = 0;
  int kaydirsay = 0;
  bool kaydirmod = false;
  double dragStartX = 0;  // where the right button went down in drag mode
  double dragStartY = 0;
  int gridadim = 1;
  bool gridseyrek = false;
  // The base plan.
  bool gridgoster = false;
  bool sondgoster = false;
  double gridxsay = 0;
  double gridysay = 0;
  Bounded<double> gridx{"gridx", 999};
  Bounded<double> gridy{"gridy", 999};
};

// The views and tools drawn on the canvas; the replay runs them in this order.
struct Flags {
  bool modselan = false;
  bool modsucgen = false;
  bool modurcev = false;
  bool modselan2 = false;
  bool modurort = false;
  bool moduretopr = false;
  bool modsucgen2 = false;
  bool modureciz2 = false;
  bool modureciz = false;
  bool modtiklama = false;
  bool modtrtek = false;
  bool modtrtum = false;
  bool modyuzdeten = false;
  bool modrezton = false;
  bool modgenelrezerv = false;
  bool modrecboy = false;
  bool modcikart = false;
  bool moducsec = false;
  bool modcizim = false;
  // Not replayed.
  bool ilkmod = false;
  bool gridciz = false;
  bool sonkesmod = false;

  // Turns off every view and tool of the replay, leaving the three flags above.
  void clearViews();
};

struct State;

// A command or event procedure of the system, over the program state.
using Procedure = void (*)(State&);

// One row of the redraw replay: when its flag is on, `first` (the triangle display, for
// the rows that draw over the network) and then `procedure` run. A null procedure is
// skipped.
struct ReplayRow {
  bool Flags::*flag;
  Procedure first;
  Procedure procedure;
};

// Triangle entry: the picks of the triangle under way and the run's triangle counters.
struct Entry {
  double noktasay = 0;
  std::array<double, 4> kosex{};  // pending corners 1..3
  std::array<double, 4> kosey{};
  double secsond = 0;
  double ucgenno = 0;
  long ucgensira = 0;
  double ucgenbuf = 0;
  // Corner buffers by ucgenbuf, in the order x1, y1, x3, y3, x2, y2.
  std::array<Bounded<double>, 6> buffers{{{"ucgenbuf x1", 200},
                                          {"ucgenbuf y1", 200},
                                          {"ucgenbuf x3", 200},
                                          {"ucgenbuf y3", 200},
                                          {"ucgenbuf x2", 200},
                                          {"ucgenbuf y2", 200}}};
  // The corners read back from the drawing table, 1..3.
  std::array<double, 4> readX{};
  std::array<double, 4> readY{};
  // Corners by corner number and triangle number.
  Bounded2<double> cornerX{"ucgenx", 3, 1000};
  Bounded2<double> cornerY{"ucgeny", 3, 1000};
  // The last hole a scan matched, and the start of the rubber band; 0 hides the band.
  double candidateX = 0;
  double candidateY = 0;
  double heldX = 0;
  double heldY = 0;
  int matchCount = 0;
  int colorIndex = 0;
};

// The reserve arithmetic of finished triangles, by ucgensira.
struct Reserve {
  Bounded<double> rezervler{"rezervler", 200};
  Bounded<double> rezervoran{"rezervoran", 200};
  Bounded<double> ucgenbx{"ucgenbx", 200};
  Bounded<double> ucgenkx{"ucgenkx", 200};
  Bounded<double> ucgenby{"ucgenby", 200};
  Bounded<double> ucgenky{"ucgenky", 200};
  // The density sums of the limit passes, by corner position; they run on over the
  // whole run and are never cleared.
  std::array<double, 4> limitS3{};
  std::array<double, 4> limitS4{};
};

// The triangles of the drawing on the canvas, by triangle number, as the repaint drew them.
struct Display {
  Bounded<double> x1{"ucgen x1", 999};
  Bounded<double> x2{"ucgen x2", 999};
  Bounded<double> x3{"ucgen x3", 999};
  Bounded<double> y1{"ucgen y1", 999};
  Bounded<double> y2{"ucgen y2", 999};
  Bounded<double> y3{"ucgen y3", 999};
  // The number of triangles drawn, whose corners the arrays hold.
  int ucgendraw = 0;
};

// Values that carry from one command to another without a home elsewhere.
struct Carry {
  double kal = 0;  // read from a drawing's header by a limit study, written into the next
  double bsy = 0;  // never assigned
};

// The marker shapes of the Select-Cut view, by the names they were made under.
struct Markers {
  int shapesay = 0;
  Bounded<std::string> names{"marker shapes", 9999};
};

// The colours that the colour dialogs remember.
struct DialogColors {
  Color dialog1 = 0;
  Color dialog2 = 0;
  Color dialog3 = 0;  // grid lines and labels
};

// Sizes kept by the window layout.
struct Layout {
  int formWidth = 0;  // the window's size in pixels, as the window last gave it
  int formHeight = 0;
  double referenceWidth = 0;   // form width x 841 / 12825
  double referenceHeight = 0;  // form height x 361 / 7005
  int lastCanvasWidth = 0;     // the canvas size before the last resize
  int lastCanvasHeight = 0;
};

struct State {
  // `form` is the window's own surface, under its controls, where Picture1 is not shown.
  State(Canvas& canvas, Dialogs& dialogs, Canvas& form);
  State(const State&) = delete;
  State& operator=(const State&) = delete;

  Canvas& canvas;
  Dialogs& dialogs;
  Canvas& form;
  Controls ui;
  SheetOpener openSheet;
  // The replay's rows in their order, given by the program when it starts; the views
  // live above the canvas, which runs them through this table.
  std::span<const ReplayRow> replayRows;

  Projects projects;
  Holes holes;
  Frame frame;
  Flags flags;
  Entry entry;
  Reserve reserve;
  Display display;
  Carry carry;
  Markers markers;
  DialogColors colors;
  Layout layout;
  Network network;
  Views views;
  Scan scan;
  Production production;
  Output output;

  // The selected project (Combo5), lithology (Combo4) and drawing (Combo2).
  int project() const { return ui.combo5.listIndex(); }
  int lithology() const { return ui.combo4.listIndex(); }
  int drawing() const { return ui.combo2.listIndex(); }
  // The path of the selected project's file.
  const std::string& projectPath() const;
};

}  // namespace tri
