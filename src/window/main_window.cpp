#include "window/main_window.h"

namespace tri {

MainWindow::MainWindow(QWidget* parent) : QMainWindow(parent) {}

}  // namespace tri
