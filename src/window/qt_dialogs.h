// The dialogs the logic asks through, shown with Qt: input box, message box, file open and
// save, colour choice.
#pragma once

#include <QString>
#include <QWidget>

#include "platform/dialogs.h"

namespace tri {

// The box title used when the logic gives none.
inline constexpr const char* kProgramTitle = "TriReserve";

// "Description (*.ext)|*.ext" (pairs of description and pattern, all separated by "|")
// as Qt's "Description (*.ext)", one entry per pair, separated by ";;".
QString toQtFilter(const std::string& filter);

// The answer of a box closed by the user without a button: its Cancel or No.
Answer dismissedAnswer(Buttons buttons);

class QtDialogs : public Dialogs {
 public:
  explicit QtDialogs(QWidget* parent) : parent_(parent) {}

  std::string inputBox(const std::string& prompt, const std::string& title) override;
  Answer messageBox(const std::string& text, Buttons buttons, Icon icon,
                    const std::string& title) override;
  FileChoice openFile(const std::string& title, const std::string& filter) override;
  FileChoice saveFile(const std::string& title, const std::string& filter) override;
  std::optional<Color> chooseColor(const std::string& title, Color initial) override;

 private:
  QWidget* parent_;
};

}  // namespace tri
