// Test main: a headless QGuiApplication, so that the canvas can draw text.
#include <gtest/gtest.h>

#include <QGuiApplication>

#include "support/headless.h"

int main(int argc, char** argv) {
  tri::prepareHeadlessQt();
  QGuiApplication app(argc, argv);
  testing::InitGoogleTest(&argc, argv);
  return RUN_ALL_TESTS();
}
