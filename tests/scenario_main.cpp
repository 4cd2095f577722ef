// trireserve-scenario FILE: runs a scenario headlessly and exits with its code.
#include <QGuiApplication>
#include <iostream>

#include "support/scenario.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: trireserve-scenario FILE\n";
    return tri::kScenarioBadStatement;
  }
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QGuiApplication app(argc, argv);
  return tri::runScenarioFile(argv[1], std::cout, std::cerr);
}
