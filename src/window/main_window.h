// The program's one window: the selectors, the canvas, the status line, the print panels
// and the menu, over one program state. Every event that reaches the logic is followed by
// a reflection of the controls into the widgets.
#pragma once

#include <QMainWindow>
#include <QSize>
#include <functional>
#include <memory>
#include <optional>
#include <string>

#include "platform/image_canvas.h"
#include "store/state.h"
#include "window/controls_view.h"

namespace tri {

class QtDialogs;
class QtPrinters;

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  // Tells the user of the run-time error that ends the program; by default a critical
  // message box. Tests set their own to observe it without a modal box.
  using FaultReporter = std::function<void(const QString& title, const QString& text)>;

  // Without dialogs of its own the window asks the user through Qt dialogs.
  explicit MainWindow(Dialogs* dialogs = nullptr, QWidget* parent = nullptr);
  ~MainWindow() override;

  State& state() { return state_; }
  const ImageCanvas& canvas() const { return canvas_; }
  // The window's own surface, where the drill-log view is drawn.
  const ImageCanvas& form() const { return form_; }
  void setFaultReporter(FaultReporter reporter) { reportFault_ = std::move(reporter); }
  // True once a run-time error has ended the program: the window runs nothing more.
  bool ended() const { return ended_; }

 private:
  QWidget* buildSelectorRow(QWidget* parent);
  QWidget* buildCanvasArea(QWidget* parent);
  QWidget* buildScrollBar(QWidget* parent);
  QWidget* buildStatusRow(QWidget* parent);
  void buildWidgets();
  void connectCanvas();
  void connectForm();
  void connectHooks();

  // Runs a procedure as a command; nullptr (a command not in this program yet) runs an
  // empty one.
  void runProcedure(Procedure procedure);
  // Runs logic: a fault ends the program, otherwise the controls are reflected.
  void runCommand(const std::function<void()>& command);
  void afterCommand();
  void resizeCanvas(QSize size);
  // The scroll bar's changes: each value replaces the one still waiting to be drawn.
  void scrollBarMoved(int value);
  void runPendingScroll();
  void showProgress();
  void endWithFault(const QString& text);

  ImageCanvas canvas_;
  ImageCanvas form_;
  std::unique_ptr<QtDialogs> ownDialogs_;
  State state_;
  std::unique_ptr<QtPrinters> printers_;
  ControlWidgets widgets_;
  FaultReporter reportFault_;
  int running_ = 0;
  // A canvas resize that came while logic ran, applied when it has finished.
  std::optional<QSize> pendingResize_;
  // The bar's latest value, not drawn yet, and the procedure that draws it.
  std::optional<int> pendingScroll_;
  Procedure scrollChange_ = nullptr;
  bool ended_ = false;
};

}  // namespace tri
