#include "window/gui_harness.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>
#include <cmath>

namespace tri {

WindowHarness::WindowHarness() : window(&dialogs) {
  // Only a run-time error ends the application's event loop in these tests.
  QApplication::setQuitOnLastWindowClosed(false);
  window.setFaultReporter([this](const QString& title, const QString& text) {
    faults.push_back({title, text});
  });
  window.show();
  QApplication::processEvents();
}

QAction* WindowHarness::action(const char* name) {
  return window.findChild<QAction*>(QString::fromUtf8(name));
}

QComboBox* WindowHarness::combo(const char* name) { return window.findChild<QComboBox*>(name); }

CanvasView* WindowHarness::picture1() { return window.findChild<CanvasView*>("Picture1"); }

QString WindowHarness::labelText(int number) {
  return window.findChild<QLabel*>(QString("Label%1").arg(number))->text();
}

void WindowHarness::trigger(const char* name) {
  action(name)->trigger();
  QApplication::processEvents();
}

void WindowHarness::choose(const char* name, int index) {
  QComboBox* box = combo(name);
  box->setCurrentIndex(index);
  emit box->activated(index);
  QApplication::processEvents();
}

std::string WindowHarness::createProject() {
  const std::string path = dir.file("proj.mdb");
  dialogs.answerOpen(fixture("cluster.xls"), "Select File with Drilling Data")
      .answerSave(path, "Write Project Name");
  trigger("Mnprolus");
  return path;
}

QPoint WindowHarness::pixelOf(double x, double y) {
  const Canvas& canvas = window.canvas();
  return QPoint(static_cast<int>(std::lround(canvas.toPixelX(x))),
                static_cast<int>(std::lround(canvas.toPixelY(y))));
}

QImage WindowHarness::shownPicture() { return picture1()->grab().toImage(); }

void WindowHarness::mouse(QEvent::Type type, QPoint pixel, Qt::MouseButton button,
                          Qt::MouseButtons held) {
  QWidget* view = picture1();
  QMouseEvent event(type, QPointF(pixel), QPointF(view->mapToGlobal(pixel)), button, held,
                    Qt::NoModifier);
  QApplication::sendEvent(view, &event);
  QApplication::processEvents();
}

void WindowHarness::click(QPoint pixel, Qt::MouseButton button) {
  mouse(QEvent::MouseButtonPress, pixel, button, button);
  mouse(QEvent::MouseButtonRelease, pixel, button);
}

int WindowHarness::runInApplication(const std::function<void()>& action) {
  // The action ends the loop itself, at once, so that no exit is left pending for a later
  // test's event loop.
  QTimer start;
  start.setSingleShot(true);
  QObject::connect(&start, &QTimer::timeout, [&] {
    action();
    if (!window.ended()) QCoreApplication::exit(0);
  });
  start.start(0);
  // A program that fails to end would otherwise keep the test waiting.
  QTimer guard;
  guard.setSingleShot(true);
  QObject::connect(&guard, &QTimer::timeout, [] { QCoreApplication::exit(kStillRunning); });
  guard.start(10000);
  return QApplication::exec();
}

std::string WindowHarness::faultTexts() const {
  std::string text;
  for (const ReportedFault& fault : faults) text += fault.text.toStdString() + "\n";
  return text + dialogs.transcript();
}

}  // namespace tri
