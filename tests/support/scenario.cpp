#include "support/scenario.h"

#include <filesystem>
#include <fstream>
#include <iostream>
#include <sstream>
#include <stdexcept>
#include <vector>

#include "platform/fault.h"
#include "platform/vbtext.h"
#include "support/session.h"

namespace tri {

namespace {

struct BadStatement : std::runtime_error {
  using std::runtime_error::runtime_error;
};
struct ExpectationFailed : std::runtime_error {
  using std::runtime_error::runtime_error;
};

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
    if (verb == "answer") return answer(rest);
    if (verb == "command") return session_.run(checkedProcedure(trim(rest)));
    if (verb == "select") return select(words(rest));
    if (verb == "click") return click(words(rest));
    if (verb == "move") return move(words(rest));
    if (verb == "resize") return resize(words(rest));
    if (verb == "save-image") return saveImage(trim(rest));
    if (verb == "print-labels") return printLabels();
    if (verb == "print-canvas") return printCanvas();
    if (verb == "expect-label") return expectLabel(rest);
    if (verb == "expect-combo") return expectCombo(rest);
    if (verb == "elevations") return elevations(words(rest));
    throw BadStatement("unknown statement \"" + verb + "\"");
  }

  void finish() {
    if (session_.dialogs.pending() > 0) {
      throw ExpectationFailed(std::to_string(session_.dialogs.pending()) +
                              " answer(s) were never asked for");
    }
  }

 private:
  std::string path(const std::string& text) const {
    std::string p = text;
    const std::string tmp = "${TMP}";
    for (size_t at; (at = p.find(tmp)) != std::string::npos;) {
      p.replace(at, tmp.size(), session_.dir.path());
    }
    if (p.empty() || std::filesystem::path(p).is_absolute()) return p;
    return (std::filesystem::path(folder_) / p).lexically_normal().string();
  }

  std::string checkedProcedure(const std::string& name) {
    if (name.empty()) throw BadStatement("command without a name");
    return name;
  }

  void answer(const std::string& rest) {
    auto [kind, value] = splitWord(rest);
    ScriptedDialogs& d = session_.dialogs;
    if (kind == "input") return void(d.answerInput(value));
    if (kind == "file") {
      const std::string p = path(trim(value));
      d.answerOpen(p);
      return;
    }
    if (kind == "button") return void(d.answerButton(buttonAnswer(trim(value))));
    if (kind == "color") {
      std::vector<std::string> rgbWords = words(value);
      if (rgbWords.size() != 3) throw BadStatement("answer color takes R G B");
      d.answerColor(rgb(static_cast<int>(numberArg(rgbWords[0])),
                        static_cast<int>(numberArg(rgbWords[1])),
                        static_cast<int>(numberArg(rgbWords[2]))));
      return;
    }
    throw BadStatement("unknown answer kind \"" + kind + "\"");
  }

  static Answer buttonAnswer(const std::string& name) {
    if (name == "OK") return Answer::OK;
    if (name == "Cancel") return Answer::Cancel;
    if (name == "Yes") return Answer::Yes;
    if (name == "No") return Answer::No;
    throw BadStatement("unknown button \"" + name + "\"");
  }

  Combo& combo(const std::string& name) {
    Controls& ui = session_.state.ui;
    for (Combo* c : {&ui.combo5, &ui.combo4, &ui.combo2, &ui.combo1}) {
      if (c->name() == name) return *c;
    }
    throw BadStatement("no selector \"" + name + "\"");
  }

  void select(const std::vector<std::string>& args) {
    if (args.size() != 2) throw BadStatement("select takes ComboN INDEX");
    combo(args[0]).setListIndex(static_cast<int>(numberArg(args[1])));
  }

  void click(const std::vector<std::string>& args) {
    if (args.size() != 3) throw BadStatement("click takes X Y BUTTON");
    session_.click(numberArg(args[0]), numberArg(args[1]), static_cast<int>(numberArg(args[2])));
  }

  void move(const std::vector<std::string>& args) {
    if (args.size() != 2) throw BadStatement("move takes X Y");
    session_.move(numberArg(args[0]), numberArg(args[1]));
  }

  void resize(const std::vector<std::string>& args) {
    if (args.size() != 2) throw BadStatement("resize takes W H");
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

  void printLabels() {
    for (int n = 1; n <= 13; ++n) {
      out_ << "Label" << n << ": " << session_.state.ui.label(n) << "\n";
    }
  }

  void printCanvas() {
    for (const std::string& op : session_.canvas.describeSinceClear()) out_ << op << "\n";
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
  } catch (const BadStatement& bad) {
    err << "line " << lineNumber << ": " << bad.what() << "\n";
    return kScenarioBadStatement;
  } catch (const ExpectationFailed& failed) {
    err << "line " << lineNumber << ": " << failed.what() << "\n";
    return kScenarioExpectation;
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
