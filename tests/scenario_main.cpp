// trireserve-scenario FILE: runs a scenario headlessly and exits with its code.
#include <QGuiApplication>
#include <iostream>

#include "support/headless.h"
#include "support/scenario.h"

int main(int argc, char** argv) {
  if (argc != 2) {
    std::cerr << "usage: trireserve-scenario FILE\n";
    return tri::kScenarioBadStatement;
  }
  tri::prepareHeadlessQt();
  QGuiApplication app(argc, argv);
  return tri::runScenarioFile(argv[1], std::cout, std::cerr);
}
