// The main window over scripted dialogs, shown offscreen, with helpers that act on the
// widgets as a user would.
#pragma once

#include <QAction>
#include <QComboBox>
#include <QEvent>
#include <QImage>
#include <QPoint>
#include <QString>
#include <functional>
#include <string>
#include <vector>

#include "support/scripted_dialogs.h"
#include "support/temp_dir.h"
#include "window/canvas_view.h"
#include "window/main_window.h"

namespace tri {

struct ReportedFault {
  QString title;
  QString text;
};

class WindowHarness {
 public:
  static constexpr int kStillRunning = -99;

  WindowHarness();

  TempDir dir;
  ScriptedDialogs dialogs;
  MainWindow window;
  std::vector<ReportedFault> faults;

  State& state() { return window.state(); }
  QAction* action(const char* name);
  QComboBox* combo(const char* name);
  CanvasView* picture1();
  QString labelText(int number);
  // Chooses a menu item, as a click or its shortcut would.
  void trigger(const char* name);
  // Chooses an entry of a selector's list, as the user does.
  void choose(const char* combo, int index);

  // File > Create > Project from the workbook cluster.xls: fourteen holes C-01 .. C-14,
  // numbered as named, with the lithologies "ore" and "waste". Returns the project file.
  std::string createProject();

  // The canvas pixel of a world point, and the picture the canvas widget shows.
  QPoint pixelOf(double x, double y);
  QImage shownPicture();
  void mouse(QEvent::Type type, QPoint pixel, Qt::MouseButton button,
             Qt::MouseButtons held = Qt::NoButton);
  void click(QPoint pixel, Qt::MouseButton button = Qt::LeftButton);

  // Runs an action inside the application's event loop, as the program runs; returns the
  // loop's exit code: 0 when the program goes on after the action, kStillRunning when a
  // program that should have ended did not.
  int runInApplication(const std::function<void()>& action);

  std::string faultTexts() const;
};

}  // namespace tri
