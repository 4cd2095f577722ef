// The window's controls as data: the four selectors, the labels, the menu items' enabled
// and checked states, the visibility of panels, the rubber-band line, the scroll bar and
// the canvas tool tip. The logic reads and writes them; the window reflects them.
#pragma once

#include <array>
#include <functional>
#include <map>
#include <string>
#include <vector>

namespace tri {

// A drop-down list. Setting the list index runs its click procedure, as a click would.
class Combo {
 public:
  // The text shown before any entry is chosen, until the list is first cleared.
  Combo(std::string name, std::string designText)
      : name_(std::move(name)), designText_(std::move(designText)) {}

  const std::string& name() const { return name_; }
  void clear();
  void addItem(const std::string& text);
  int listCount() const { return static_cast<int>(items_.size()); }
  int listIndex() const { return listIndex_; }
  // An index outside -1 .. listCount() - 1 is an "Invalid property value" Fault.
  void setListIndex(int index);
  // The text of the selected entry; when none is selected, the design text or nothing.
  std::string text() const;
  const std::string& item(int index) const;
  const std::vector<std::string>& items() const { return items_; }

  std::function<void()> onClick;

 private:
  std::string name_;
  std::string designText_;
  std::vector<std::string> items_;
  int listIndex_ = -1;
};

struct MenuState {
  bool enabled = true;
  bool checked = false;
};

// A shape control added to the window at run time: a rectangle in the window's own units
// (pixels), with its outline and fill colours; fill style 0 is solid, 1 transparent.
struct ShapeControl {
  double left = 0, top = 0, width = 0, height = 0;
  int borderColor = 0;
  int fillColor = 0;
  int fillStyle = 1;
  int shape = 0;  // 0: rectangle
};

struct LineControl {
  bool visible = false;
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  int color = 0;
  int width = 1;
};

class Controls {
 public:
  Controls();

  Combo combo1{"Combo1", "Limit Tenör"};  // limit tenor
  Combo combo2{"Combo2", "Çizimler"};     // drawing
  Combo combo4{"Combo4", "Litotloji"};    // lithology
  Combo combo5{"Combo5", "Proje"};        // project
  Combo combo3{"Combo3", ""};             // printers

  // The print panels: the list indexes of List1 (paper size), List2 (direction), List3
  // (colour) and List4 (quality), the copies typed in Text1, and which of Option1 ..
  // Option9 of Frame2 is on.
  std::array<int, 5> printLists{0, 1, 0, 1, 2};  // A4, Vertical, Color, Medium
  std::string text1 = "1";
  int printOption = 1;

  // Label1 .. Label13; another number is a "Control not found" Fault. Setting Label1
  // tells the window to show progress.
  const std::string& label(int number) const;
  void setLabel(int number, const std::string& text);

  // The menu's items by their names (Mnkaydir, MNolcek, ...), as the program gives them
  // when it starts; each starts enabled and unchecked. A name that is not one of them is
  // a "Control not found" Fault.
  void setMenuItems(const std::vector<std::string>& names);
  MenuState& menu(const std::string& name);
  const MenuState& menu(const std::string& name) const;
  bool enabled(const std::string& name) const { return menu(name).enabled; }
  bool checked(const std::string& name) const { return menu(name).checked; }
  void enable(const std::string& name, bool on = true) { menu(name).enabled = on; }
  void check(const std::string& name, bool on = true) { menu(name).checked = on; }

  // Visibility of the panels and controls that come and go: Picture1, Picture2, HScroll1,
  // Combo3, Command1, Command2, Frame1, Frame2, and the page buttons PagePrevious and
  // PageNext of the drill-log view. Another name is a "Control not found" Fault.
  bool visible(const std::string& name) const;
  void show(const std::string& name, bool on = true);
  void hide(const std::string& name) { show(name, false); }

  // Shape controls added at run time, by name. The class must be "VB.Shape" and the name
  // new, else an "Invalid procedure call" Fault; an unknown name to remove or change is
  // a "Control not found" Fault.
  ShapeControl& addShape(const std::string& className, const std::string& name);
  void removeShape(const std::string& name);
  ShapeControl& shape(const std::string& name);
  const std::map<std::string, ShapeControl>& shapes() const { return shapes_; }
  // The window's control count: its fixed controls (menu items among them) and the
  // shapes added at run time.
  int controlCount() const;

  // The heights the window's layout gives Combo3 and Label1, in pixels.
  int combo3Height = 21;
  int label1Height = 17;

  LineControl line1;
  int hscroll1Value = 0;
  std::string picture1ToolTip;

  // Set when the program is asked to end.
  bool closeRequested = false;

  // Called when a long command has written Label1, so that the window can show it.
  std::function<void()> onProgress;
  // Called when the logic lays out the window after a project is loaded.
  std::function<void()> onLayout;

 private:
  std::array<std::string, 14> labels_;
  std::map<std::string, MenuState> menu_;
  std::map<std::string, bool> visible_;
  std::map<std::string, ShapeControl> shapes_;
};

}  // namespace tri
