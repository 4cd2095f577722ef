// trireserve-report: reserve tables, grade-tonnage curves, audits of triangles, bench scans
// and workbook checks from the command line, over project files opened read-only.
#include <QApplication>
#include <chrono>
#include <cstdio>
#include <iostream>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "platform/fault.h"
#include "report/commands.h"
#include "report_plot.h"

namespace {

using tri::report::BadInput;

const char* const kUsage =
    "usage: trireserve-report [--csv] COMMAND ...\n"
    "  triangles PROJECT --lithology L --drawing D [--limit V]\n"
    "  grade-tonnage PROJECT --lithology L --drawing D --cutoffs FROM:TO:STEP\n"
    "                [--plot FILE.png|FILE.svg]\n"
    "  explain PROJECT --lithology L --drawing D --triangle N [--limit V]\n"
    "  bench PROJECT --lithology L --drawing D --up U --down W [--limit V]\n"
    "  check-workbook FILE.xls\n"
    "Tables go to the standard output, progress and errors to the standard error.\n"
    "Exit codes: 0 done, 1 check-workbook found problems, 2 a bad input.\n";

// The words of a command line: the positional ones and the options with their values.
struct Arguments {
  std::vector<std::string> positional;
  std::map<std::string, std::string> options;
  bool csv = false;

  const std::string& required(const std::string& name) const {
    auto found = options.find(name);
    if (found == options.end()) throw BadInput("missing " + name);
    return found->second;
  }
  std::optional<std::string> optional(const std::string& name) const {
    auto found = options.find(name);
    if (found == options.end()) return std::nullopt;
    return found->second;
  }
};

const std::map<std::string, std::set<std::string>> kOptions = {
    {"triangles", {"--lithology", "--drawing", "--limit"}},
    {"grade-tonnage", {"--lithology", "--drawing", "--cutoffs", "--plot"}},
    {"explain", {"--lithology", "--drawing", "--triangle", "--limit"}},
    {"bench", {"--lithology", "--drawing", "--up", "--down", "--limit"}},
    {"check-workbook", {}},
};

Arguments parse(int argc, char** argv) {
  Arguments a;
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--csv") {
      a.csv = true;
    } else if (word.rfind("--", 0) == 0) {
      const size_t equals = word.find('=');
      std::string name = word.substr(0, equals);
      std::string value;
      if (equals != std::string::npos) {
        value = word.substr(equals + 1);
      } else if (i + 1 < argc) {
        value = argv[++i];
      } else {
        throw BadInput(name + " wants a value");
      }
      if (!a.options.emplace(name, value).second) throw BadInput(name + " is given twice");
    } else {
      a.positional.push_back(word);
    }
  }
  if (a.positional.empty()) throw BadInput("no command given");
  const auto command = kOptions.find(a.positional[0]);
  if (command == kOptions.end()) throw BadInput("unknown command \"" + a.positional[0] + "\"");
  for (const auto& [name, value] : a.options) {
    if (!command->second.count(name)) {
      throw BadInput("unknown option " + name + " for " + command->first);
    }
  }
  if (a.positional.size() < 2) {
    throw BadInput(command->first + (command->first == "check-workbook" ? " wants a workbook file"
                                                                        : " wants a project file"));
  }
  if (a.positional.size() > 2) throw BadInput("unexpected argument \"" + a.positional[2] + "\"");
  return a;
}

// Progress on the standard error, shown only once the work has taken a second.
class Progress {
 public:
  void operator()(size_t done, size_t total, const char* what) {
    using namespace std::chrono;
    const auto now = steady_clock::now();
    if (now - start_ < seconds(1) || (shown_ && now - last_ < milliseconds(200) && done < total))
      return;
    std::fprintf(stderr, "\r%zu of %zu %s", done, total, what);
    std::fflush(stderr);
    shown_ = true;
    last_ = now;
  }
  ~Progress() {
    if (shown_) std::fputs("\n", stderr);
  }

 private:
  std::chrono::steady_clock::time_point start_ = std::chrono::steady_clock::now();
  std::chrono::steady_clock::time_point last_;
  bool shown_ = false;
};

int run(const Arguments& a, int argc, char** argv) {
  namespace r = tri::report;
  Progress progress;
  r::Output o{std::cout, a.csv, [&](size_t d, size_t t, const char* w) { progress(d, t, w); }};
  const std::string& command = a.positional[0];
  const std::string& file = a.positional[1];
  if (command == "check-workbook") return r::checkWorkbookFile(file, o);

  const r::Selection selection{a.required("--lithology"), a.required("--drawing"),
                               a.optional("--limit")};
  if (command == "triangles") return r::triangles(file, selection, o);
  if (command == "explain") return r::explain(file, selection, a.required("--triangle"), o);
  if (command == "bench") {
    return r::bench(file, selection, a.required("--up"), a.required("--down"), o);
  }
  const std::optional<std::string> plot = a.optional("--plot");
  if (plot && !r::isPlotPath(*plot))
    throw BadInput("--plot wants a .png or .svg file, not " + *plot);
  r::PlotWriter writer;
  std::unique_ptr<QApplication> app;
  if (plot) {
    r::prepareOffscreen();
    app = std::make_unique<QApplication>(argc, argv);
    writer = [&](const std::vector<r::GradeTonnageRow>& rows, const std::string& title) {
      r::writeGradeTonnagePlot(rows, title, *plot);
    };
  }
  return r::gradeTonnage(file, selection, a.required("--cutoffs"), o, writer);
}

}  // namespace

int main(int argc, char** argv) {
  for (int i = 1; i < argc; ++i) {
    const std::string word = argv[i];
    if (word == "--help" || word == "-h") {
      std::cout << kUsage;
      return 0;
    }
  }
  try {
    return run(parse(argc, argv), argc, argv);
  } catch (const BadInput& bad) {
    std::cerr << "trireserve-report: " << bad.what() << "\n";
  } catch (const tri::Fault& fault) {
    std::cerr << "trireserve-report: " << tri::faultKindName(fault.kind()) << ": "
              << fault.message() << "\n";
  } catch (const std::exception& error) {
    std::cerr << "trireserve-report: " << error.what() << "\n";
  }
  return 2;
}
