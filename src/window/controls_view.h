// The widgets that show the controls' data, by control name, and the one function that
// brings them in line with the controls after the logic has run.
#pragma once

#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRadioButton>
#include <QScrollBar>
#include <array>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "platform/controls.h"
#include "window/canvas_view.h"
#include "window/form_view.h"
#include "window/menu_bar.h"

namespace tri {

struct ControlWidgets {
  std::vector<std::pair<Combo Controls::*, QComboBox*>> combos;
  std::map<int, QLabel*> labels;           // by label number
  std::map<std::string, QWidget*> panels;  // shown or hidden by the logic, by control name
  MenuActions menu;
  CanvasView* picture1 = nullptr;
  FormView* form = nullptr;
  QScrollBar* hscroll1 = nullptr;
  // The print panels: List1 .. List4, Text1, Option1 .. Option9 and the preview page.
  std::array<QListWidget*, 5> printLists{};
  QLineEdit* text1 = nullptr;
  std::array<QRadioButton*, 10> options{};
  QWidget* picture2 = nullptr;
};

// A label named "Label<number>", registered for reflection.
QLabel* addLabel(ControlWidgets& widgets, int number, QWidget* parent);

// A panel whose visibility the logic decides, named and registered.
template <class W>
W* addPanel(ControlWidgets& widgets, const char* name, W* widget) {
  widget->setObjectName(name);
  widgets.panels[name] = widget;
  return widget;
}

// The entries and selection of the selectors (without signals), the label texts, the
// menu items' enabled and checked states, visibility, the rubber-band line, the scroll
// bar, the canvas tool tip, the shape controls on the form; and a repaint of the canvas.
void reflectControls(const Controls& ui, ControlWidgets& widgets);

}  // namespace tri
