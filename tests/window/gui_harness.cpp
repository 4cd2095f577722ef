#include "window/gui_harness.h"

#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QTimer>
#include <cmath>

#include "platform/store.h"
#include "store/project_format.h"

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

void WindowHarness::openProject(const std::string& path) {
  dialogs.answerOpen(path, "Select Project File");
  trigger("Mnprojeac");
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

namespace {

void copyCorner(Recordset& kor, int hole, Recordset& table) {
  kor.moveFirst();
  kor.move(hole - 1);
  table.addNew();
  table.set("koordinat1", kor.number("eks"));
  table.set("koordinat2", kor.number("eye"));
  table.set("say", hole);
  table.set("sondgir", kor.number("songir"));
  table.set("cevhgir", kor.number("cevgir"));
  table.set("cevhcik", kor.number("cevcik"));
  table.set("sondcik", kor.number("soncik"));
  table.update();
}

void appendSummary(Recordset& table, int triangle) {
  table.addNew();
  for (const FieldDef& field : drawingFields()) table.set(field.name, 0);
  table.set("ucgensay", triangle);
  table.update();
}

}  // namespace

void addDrawing(const std::string& projectPath, const std::string& lithology,
                const std::string& drawing, const std::vector<std::array<int, 3>>& triangles) {
  Database db = Database::open(projectPath);
  db.createTable(drawing, drawingFields());
  {
    Recordset kor = db.openTable(kHoleTable);
    Recordset table = db.openTable(drawing);
    appendSummary(table, 0);
    for (size_t t = 0; t < triangles.size(); ++t) {
      for (int hole : triangles[t]) copyCorner(kor, hole, table);
      appendSummary(table, static_cast<int>(t + 1));
    }
  }
  // A lithology's table: a header row, then its drawings with their numbers.
  Recordset drawings = db.openTable(lithology);
  const int number = static_cast<int>(drawings.recordCount());
  drawings.addNew();
  drawings.set("cizim", drawing);
  drawings.set("tsay", number);
  drawings.update();
}

}  // namespace tri
