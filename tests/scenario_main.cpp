// trireserve-scenario FILE [EXPECTED]: runs a scenario headlessly, prints what it prints and
// exits with its code. With EXPECTED, the printed output must equal that file's text.
#include <QGuiApplication>
#include <fstream>
#include <iostream>
#include <sstream>

#include "support/headless.h"
#include "support/scenario.h"

namespace {

std::string readFile(const char* path, bool& ok) {
  std::ifstream file(path);
  ok = static_cast<bool>(file);
  std::ostringstream text;
  text << file.rdbuf();
  return text.str();
}

}  // namespace

int main(int argc, char** argv) {
  if (argc != 2 && argc != 3) {
    std::cerr << "usage: trireserve-scenario FILE [EXPECTED]\n";
    return tri::kScenarioBadStatement;
  }
  tri::prepareHeadlessQt();
  QGuiApplication app(argc, argv);
  std::ostringstream out;
  const int code = tri::runScenarioFile(argv[1], out, std::cerr);
  std::cout << out.str();
  if (code != tri::kScenarioDone || argc == 2) return code;
  bool ok = false;
  const std::string expected = readFile(argv[2], ok);
  if (!ok) {
    std::cerr << "cannot read the expected output " << argv[2] << "\n";
    return tri::kScenarioBadStatement;
  }
  const std::string difference = tri::firstDifference(out.str(), expected);
  if (difference.empty()) return code;
  std::cerr << argv[2] << ": " << difference << "\n";
  return tri::kScenarioOutputDiffers;
}
