// GUI test main: a headless QApplication, so that the window's widgets can be built.
#include <gtest/gtest.h>

#include <QApplication>

#include "support/headless.h"

int main(int argc, char** argv) {
  tri::prepareHeadlessQt();
  QApplication app(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
