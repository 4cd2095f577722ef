// Starts the application and its main window; nothing else.
#include <QApplication>

#include "window/main_window.h"

int main(int argc, char** argv) {
  QApplication app(argc, argv);
  tri::MainWindow window;
  window.show();
  return app.exec();
}
