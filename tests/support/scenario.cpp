#include "support/scenario.h"

#include <algorithm>
#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "commands/procedures.h"
#include "platform/fault.h"
#include "platform/vbtext.h"
#include "support/session.h"
#include "support/stored_table.h"
#include "views/commands.h"

namespace tri {

namespace {

// A statement that stops the run with an exit code: a bad statement or an unmet expectation.
struct Stop : std::runtime_error {
  Stop(int exitCode, const std::string& why) : std::runtime_error(why), code(exitCode) {}
  int code;
};
Stop BadStatement(const std::string& why) { return Stop(kScenarioBadStatement, why); }
Stop ExpectationFailed(const std::string& why) { return Stop(kScenarioExpectation, why); }

std::string trim(const std::string& text) {
  size_t begin = text.find_first_not_of(" \t\r");
  if (begin == std::string::npos) return "";
  size_t end = text.find_last_not_of(" \t\r");
  return text.substr(begin, end - begin + 1);
}

// The first word of `line`, and the rest after one blank.
std::pair<std::string, std::string> splitWord(const std::string& line) {
  size_t space = line.find(' ');
  if (space == std::string::npos) return {line, ""};
  return {line.substr(0, space), line.substr(space + 1)};
}

std::vector<std::string> words(const std::string& text) {
  std::istringstream in(text);
  std::vector<std::string> result;
  for (std::string w; in >> w;) result.push_back(w);
  return result;
}

double numberArg(const std::string& text) {
  if (!isNumberText(text)) throw BadStatement("\"" + text + "\" is not a number");
  return toNumber(text);
}

class ScenarioRun {
 public:
  ScenarioRun(std::string folder, std::ostream& out) : folder_(std::move(folder)), out_(out) {}

  void execute(const std::string& statement) {
    auto [verb, rest] = splitWord(statement);
    const std::vector<std::string> args = words(rest);
    if (verb == "answer") return answer(rest);
    if (verb == "command") {
      if (trim(rest).empty()) throw BadStatement("command without a name");
      return session_.run(trim(rest));
    }
    if (verb == "select") {
      need(args, 2, "select takes ComboN INDEX");
      return combo(args[0]).setListIndex(static_cast<int>(numberArg(args[1])));
    }
    if (verb == "click") {
      need(args, 3, "click takes X Y BUTTON");
      return session_.click(numberArg(args[0]), numberArg(args[1]),
                            static_cast<int>(numberArg(args[2])));
    }
    if (verb == "move") {
      need(args, 2, "move takes X Y");
      return session_.move(numberArg(args[0]), numberArg(args[1]));
    }
    if (verb == "drag") {
      need(args, 5, "drag takes X1 Y1 X2 Y2 BUTTON");
      const int button = static_cast<int>(numberArg(args[4]));
      Picture1_MouseDown(session_.state, button, numberArg(args[0]), numberArg(args[1]));
      return Picture1_MouseUp(session_.state, button, numberArg(args[2]), numberArg(args[3]));
    }
    if (verb == "resize") return resize(args);
    if (verb == "save-image") return saveImage(trim(rest));
    if (verb == "print-labels") {
      for (int n = 1; n <= 13; ++n)
        out_ << "Label" << n << ": " << session_.state.ui.label(n) << "\n";
      return;
    }
    if (verb == "print-canvas") {
      for (const std::string& op : session_.canvas.describeSinceClear()) out_ << op << "\n";
      return;
    }
    if (verb == "print-frame") return printFrame();
    if (verb == "click-form") {
      need(args, 2, "click-form takes X Y");
      return Form_MouseDown(session_.state, 1, 0, static_cast<float>(numberArg(args[0])),
                            static_cast<float>(numberArg(args[1])));
    }
    if (verb == "print-form") return printForm();
    if (verb == "print-rows") return printRows(args);
    if (verb == "expect-label") return expectLabel(rest);
    if (verb == "expect-combo") return expectCombo(rest);
    if (verb == "elevations") return elevations(words(rest));
    if (verb == "production-elevations") return productionElevations(words(rest));
    if (verb == "scroll") return scroll(args);
    throw BadStatement("unknown statement \"" + verb + "\"");
  }

  void finish() {
    if (session_.dialogs.pending() > 0) {
      throw ExpectationFailed(std::to_string(session_.dialogs.pending()) +
                              " answer(s) were never asked for");
    }
  }

 private:
  static void need(const std::vector<std::string>& args, size_t count, const char* usage) {
    if (args.size() != count) throw BadStatement(usage);
  }

  std::string path(const std::string& text) const {
    std::string p = text;
    const std::string tmp = "${TMP}";
    for (size_t at; (at = p.find(tmp)) != std::string::npos;) {
      p.replace(at, tmp.size(), session_.dir.path());
    }
    if (const size_t at = p.find("${PICTURES}"); at != std::string::npos) {
      std::filesystem::create_directories(TRIRESERVE_SCENARIO_PICTURES);
      p.replace(at, 11, TRIRESERVE_SCENARIO_PICTURES);
    }
    if (p.empty() || std::filesystem::path(p).is_absolute()) return p;
    return (std::filesystem::path(folder_) / p).lexically_normal().string();
  }

  // The form's drawing since it was last cleared, then its shape controls: the two legend
  // bars and the marker bars in the order they were made.
  void printForm() {
    for (const std::string& op : session_.form.describeSinceClear()) out_ << op << "\n";
    State& s = session_.state;
    std::vector<std::string> names{s.network.oreLegend, s.network.gangueLegend};
    for (int i = 1; i <= s.markers.shapesay; ++i) names.push_back(s.markers.names[i]);
    for (const std::string& name : names) {
      const ShapeControl& b = s.ui.shape(name);
      out_ << "shape " << name << " " << numberText(b.left) << " " << numberText(b.top) << " "
           << numberText(b.width) << " " << numberText(b.height) << " fill=" << b.fillColor
           << " line=" << b.borderColor << "\n";
    }
  }

  void answer(const std::string& rest) {
    auto [kind, value] = splitWord(rest);
    ScriptedDialogs& d = session_.dialogs;
    if (kind == "input") return void(d.answerInput(value));
    if (kind == "file") return void(d.answerOpen(path(trim(value))));
    if (kind == "button") {
      for (Answer a : {Answer::OK, Answer::Cancel, Answer::Yes, Answer::No}) {
        if (trim(value) == answerName(a)) return void(d.answerButton(a));
      }
      throw BadStatement("unknown button \"" + trim(value) + "\"");
    }
    if (kind == "color") {
      const std::vector<std::string> c = words(value);
      need(c, 3, "answer color takes R G B");
      auto part = [&](int i) { return static_cast<int>(numberArg(c[i])); };
      return void(d.answerColor(rgb(part(0), part(1), part(2))));
    }
    throw BadStatement("unknown answer kind \"" + kind + "\"");
  }

  Combo& combo(const std::string& name) {
    Controls& ui = session_.state.ui;
    for (Combo* c : {&ui.combo5, &ui.combo4, &ui.combo2, &ui.combo1}) {
      if (c->name() == name) return *c;
    }
    throw BadStatement("no selector \"" + name + "\"");
  }

  void printFrame() {
    const Frame& f = session_.state.frame;
    out_ << "frame x " << numberText(f.ekxk) << " .. " << numberText(f.ebxk) << "  y "
         << numberText(f.ekyk) << " .. " << numberText(f.ebyk) << "  scale " << numberText(f.olcekx)
         << " " << numberText(f.olceky) << "  pan " << numberText(f.kaydirx) << " "
         << numberText(f.kaydiry) << "  grid " << f.gridadim << "\n";
  }

  void resize(const std::vector<std::string>& args) {
    need(args, 2, "resize takes W H");
    const double w = numberArg(args[0]);
    const double h = numberArg(args[1]);
    if (w < 1 || h < 1 || w > 20000 || h > 20000)
      throw BadStatement("resize to a size of 1 to 20000");
    session_.resize(static_cast<int>(w), static_cast<int>(h));
  }

  void saveImage(const std::string& text) {
    const std::string p = path(text);
    if (p.empty()) throw BadStatement("save-image without a path");
    if (!session_.canvas.save(p)) throw BadStatement("cannot write the image " + p);
  }

  // Rows FROM to TO of a table of the selected project, the fields named, one row a line.
  void printRows(const std::vector<std::string>& args) {
    if (args.size() < 4) throw BadStatement("print-rows takes TABLE FROM TO FIELD...");
    const StoredTable t = readTable(session_.state.projectPath(), args[0]);
    for (size_t f = 3; f < args.size(); ++f) {
      auto named = [&](const FieldDef& d) { return d.name == args[f]; };
      if (std::ranges::none_of(t.fields, named)) throw BadStatement("no field " + args[f]);
    }
    const int from = static_cast<int>(numberArg(args[1])),
              to = static_cast<int>(numberArg(args[2]));
    if (from < 1 || to > static_cast<int>(t.rows.size())) throw BadStatement("no such rows");
    for (int r = from; r <= to; ++r) {
      out_ << args[0] << " " << r << ":";
      for (size_t f = 3; f < args.size(); ++f) {
        const Value& v = t.at(r, args[f]);
        out_ << " " << (v.isNumber() ? numberText(v.asNumber()) : v.isNull() ? "Null" : v.asText());
      }
      out_ << "\n";
    }
  }

  void expectLabel(const std::string& rest) {
    auto [number, text] = splitWord(rest);
    const int n = static_cast<int>(numberArg(number));
    if (n < 1 || n > 13) throw BadStatement("no Label" + number);
    const std::string& actual = session_.state.ui.label(n);
    if (actual != text) {
      throw ExpectationFailed("Label" + number + " is \"" + actual + "\", expected \"" + text +
                              "\"");
    }
  }

  void expectCombo(const std::string& rest) {
    auto [name, text] = splitWord(rest);
    const Combo& c = combo(name);
    std::string actual;
    for (int i = 1; i < c.listCount(); ++i) actual += (i > 1 ? "|" : "") + c.item(i);
    if (actual != trim(text)) {
      throw ExpectationFailed(name + " holds \"" + actual + "\", expected \"" + trim(text) + "\"");
    }
  }

  // The bench as the two prompts of the elevation command would set it, whose first step
  // ends the program before they are shown.
  void elevations(const std::vector<std::string>& args) {
    if (args.size() != 2) throw BadStatement("elevations takes UP DOWN");
    Scan& scan = session_.state.scan;
    scan.upkot = toNumber(args[0]);
    scan.downkot = toNumber(args[1]);
  }

  void productionElevations(const std::vector<std::string>& args) {
    if (args.size() != 2) throw BadStatement("production-elevations takes UP DOWN");
    Production& pr = session_.state.production;
    pr.urupkot = toNumber(args[0]);
    pr.urdownkot = toNumber(args[1]);
  }

  // The scroll bar under the canvas set to a value, which runs its change event.
  void scroll(const std::vector<std::string>& args) {
    need(args, 1, "scroll takes VALUE");
    const double value = numberArg(args[0]);
    if (value < 0 || value > 360 || value != static_cast<int>(value))
      throw BadStatement("scroll to a whole value of 0 to 360");
    session_.state.ui.hscroll1Value = static_cast<int>(value);
    session_.run("HScroll1_Change");
  }

  std::string folder_;
  std::ostream& out_;
  Session session_;
};

}  // namespace

int runScenario(std::istream& script, const std::string& folder, std::ostream& out,
                std::ostream& err) {
  ScenarioRun run(folder, out);
  std::string line;
  int lineNumber = 0;
  try {
    while (std::getline(script, line)) {
      ++lineNumber;
      const size_t hash = line.find('#');
      const std::string statement = trim(hash == std::string::npos ? line : line.substr(0, hash));
      if (!statement.empty()) run.execute(statement);
    }
    run.finish();
  } catch (const Fault& fault) {
    out << "Fault: " << faultKindName(fault.kind()) << ": " << fault.message() << "\n";
    return kScenarioFault;
  } catch (const UnansweredDialog& dialog) {
    err << "line " << lineNumber << ": " << dialog.what() << "\n";
    return kScenarioUnanswered;
  } catch (const Stop& stop) {
    err << "line " << lineNumber << ": " << stop.what() << "\n";
    return stop.code;
  } catch (const std::invalid_argument& unknown) {
    err << "line " << lineNumber << ": " << unknown.what() << "\n";
    return kScenarioBadStatement;
  }
  return kScenarioDone;
}

std::string firstDifference(const std::string& actual, const std::string& expected) {
  std::istringstream got(actual), want(expected);
  std::string a, b;
  for (int line = 1;; ++line) {
    const bool moreGot = static_cast<bool>(std::getline(got, a));
    const bool moreWant = static_cast<bool>(std::getline(want, b));
    if (!moreGot && !moreWant) return "";
    if (moreGot && moreWant && a == b) continue;
    return "line " + std::to_string(line) + ": got " + (moreGot ? "\"" + a + "\"" : "the end") +
           ", expected " + (moreWant ? "\"" + b + "\"" : "the end");
  }
}

int runScenarioFile(const std::string& path, std::ostream& out, std::ostream& err) {
  std::ifstream file(path);
  if (!file) {
    err << "cannot read the scenario " << path << "\n";
    return kScenarioBadStatement;
  }
  const std::string folder = std::filesystem::absolute(path).parent_path().string();
  return runScenario(file, folder, out, err);
}

}  // namespace tri
