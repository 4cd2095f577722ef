// The program's one window.
#pragma once

#include <QMainWindow>

namespace tri {

class MainWindow : public QMainWindow {
  Q_OBJECT

 public:
  explicit MainWindow(QWidget* parent = nullptr);
};

}  // namespace tri
