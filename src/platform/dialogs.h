// The dialogs the logic asks the user through: input box, message box, file open and save,
// colour choice. The window passes Qt dialogs; tests pass scripted answers.
#pragma once

#include <optional>
#include <string>

#include "platform/canvas.h"

namespace tri {

enum class Buttons { OK, OKCancel, YesNo };
enum class Icon { None, Information, Exclamation };
enum class Answer { OK, Cancel, Yes, No };

struct FileChoice {
  std::string path;   // full path; empty when nothing was chosen
  std::string title;  // the file name without its folder
  bool empty() const { return path.empty(); }
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;
  // The typed text; empty when the user cancels or types nothing.
  virtual std::string inputBox(const std::string& prompt, const std::string& title) = 0;
  virtual Answer messageBox(const std::string& text, Buttons buttons, Icon icon,
                            const std::string& title) = 0;
  // `filter` is "Description (*.ext)|*.ext".
  virtual FileChoice openFile(const std::string& title, const std::string& filter) = 0;
  virtual FileChoice saveFile(const std::string& title, const std::string& filter) = 0;
  // The chosen colour, or nothing when the user cancels.
  virtual std::optional<Color> chooseColor(const std::string& title, Color initial) = 0;
};

}  // namespace tri
