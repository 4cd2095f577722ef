// Dialogs answered from a script: each dialog takes the next queued answer, which must be
// of its kind and, where the script names one, for its prompt. A dialog with nothing
// queued for it throws UnansweredDialog, naming the prompt.
#pragma once

#include <deque>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

#include "platform/dialogs.h"

namespace tri {

enum class DialogKind { Input, Message, OpenFile, SaveFile, Color };
const char* dialogKindName(DialogKind kind);

class UnansweredDialog : public std::runtime_error {
 public:
  UnansweredDialog(DialogKind kind, const std::string& prompt, const std::string& reason);
  DialogKind kind;
  std::string prompt;
};

class ScriptedDialogs : public Dialogs {
 public:
  // Queue the answer of the next dialog of a kind; an expected prompt, when given, must
  // match the dialog's prompt (or, for file dialogs, its title) exactly.
  ScriptedDialogs& answerInput(const std::string& answer, std::optional<std::string> prompt = {});
  ScriptedDialogs& answerButton(Answer answer, std::optional<std::string> text = {});
  ScriptedDialogs& answerOpen(const std::string& path, std::optional<std::string> title = {});
  ScriptedDialogs& answerSave(const std::string& path, std::optional<std::string> title = {});
  ScriptedDialogs& answerColor(Color color, std::optional<std::string> title = {});
  // Cancel the next colour dialog.
  ScriptedDialogs& cancelColor();

  struct Shown {
    DialogKind kind;
    std::string prompt;  // the message, the input prompt or the file dialog's title
    std::string title;   // the box's title, or the file dialog's filter
    std::string answer;
  };
  const std::vector<Shown>& shown() const { return shown_; }
  // The prompts shown so far, one a line, for readable test failures.
  std::string transcript() const;
  size_t pending() const { return queue_.size(); }

  std::string inputBox(const std::string& prompt, const std::string& title) override;
  Answer messageBox(const std::string& text, Buttons buttons, Icon icon,
                    const std::string& title) override;
  FileChoice openFile(const std::string& title, const std::string& filter) override;
  FileChoice saveFile(const std::string& title, const std::string& filter) override;
  std::optional<Color> chooseColor(const std::string& title, Color initial) override;

 private:
  struct Queued {
    DialogKind kind;
    std::optional<std::string> prompt;
    std::string text;
    Answer answer = Answer::OK;
    std::optional<Color> color;
  };
  ScriptedDialogs& queue(DialogKind kind, std::optional<std::string> prompt, std::string text,
                         Answer answer = Answer::OK, std::optional<Color> color = {});
  Queued take(DialogKind kind, const std::string& prompt);
  FileChoice file(DialogKind kind, const std::string& title, const std::string& filter);

  std::deque<Queued> queue_;
  std::vector<Shown> shown_;
};

const char* answerName(Answer answer);

}  // namespace tri
