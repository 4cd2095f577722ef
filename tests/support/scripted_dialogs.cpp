#include "support/scripted_dialogs.h"

#include <filesystem>

namespace tri {

const char* dialogKindName(DialogKind kind) {
  static const char* const names[] = {"input", "button", "file", "file", "color"};
  return names[static_cast<int>(kind)];
}

const char* answerName(Answer answer) {
  static const char* const names[] = {"OK", "Cancel", "Yes", "No"};
  return names[static_cast<int>(answer)];
}

UnansweredDialog::UnansweredDialog(DialogKind kindOf, const std::string& promptOf,
                                   const std::string& reason)
    : std::runtime_error(reason + ": " + dialogKindName(kindOf) + " dialog \"" + promptOf + "\""),
      kind(kindOf),
      prompt(promptOf) {}

ScriptedDialogs& ScriptedDialogs::queue(DialogKind kind, std::optional<std::string> prompt,
                                        std::string text, Answer answer,
                                        std::optional<Color> color) {
  queue_.push_back(Queued{kind, std::move(prompt), std::move(text), answer, color});
  return *this;
}

ScriptedDialogs& ScriptedDialogs::answerInput(const std::string& answer,
                                              std::optional<std::string> prompt) {
  return queue(DialogKind::Input, std::move(prompt), answer);
}

ScriptedDialogs& ScriptedDialogs::answerButton(Answer answer, std::optional<std::string> text) {
  return queue(DialogKind::Message, std::move(text), answerName(answer), answer);
}

ScriptedDialogs& ScriptedDialogs::answerOpen(const std::string& path,
                                             std::optional<std::string> title) {
  return queue(DialogKind::OpenFile, std::move(title), path);
}

ScriptedDialogs& ScriptedDialogs::answerSave(const std::string& path,
                                             std::optional<std::string> title) {
  return queue(DialogKind::SaveFile, std::move(title), path);
}

ScriptedDialogs& ScriptedDialogs::answerColor(Color value, std::optional<std::string> title) {
  return queue(DialogKind::Color, std::move(title), std::to_string(value), Answer::OK, value);
}

std::string ScriptedDialogs::transcript() const {
  std::string text;
  for (const Shown& s : shown_) {
    text += std::string(dialogKindName(s.kind)) + " \"" + s.prompt + "\" -> " + s.answer + "\n";
  }
  return text;
}

ScriptedDialogs::Queued ScriptedDialogs::take(DialogKind kind, const std::string& prompt) {
  if (queue_.empty()) throw UnansweredDialog(kind, prompt, "no answer queued");
  Queued next = queue_.front();
  // Open and save dialogs share the answer kind "file" in scripts.
  if (std::string(dialogKindName(next.kind)) != dialogKindName(kind)) {
    throw UnansweredDialog(
        kind, prompt,
        std::string("the next answer is for a ") + dialogKindName(next.kind) + " dialog");
  }
  if (next.prompt && *next.prompt != prompt) {
    throw UnansweredDialog(kind, prompt, "the answer queued expects \"" + *next.prompt + "\"");
  }
  queue_.pop_front();
  return next;
}

std::string ScriptedDialogs::inputBox(const std::string& prompt, const std::string& title) {
  Queued q = take(DialogKind::Input, prompt);
  shown_.push_back({DialogKind::Input, prompt, title, q.text});
  return q.text;
}

Answer ScriptedDialogs::messageBox(const std::string& text, Buttons buttons, Icon,
                                   const std::string& title) {
  Queued q = take(DialogKind::Message, text);
  const Answer a = q.answer;
  const bool allowed = buttons == Buttons::OK         ? a == Answer::OK
                       : buttons == Buttons::OKCancel ? a == Answer::OK || a == Answer::Cancel
                                                      : a == Answer::Yes || a == Answer::No;
  if (!allowed) {
    throw UnansweredDialog(DialogKind::Message, text,
                           std::string("the box has no button ") + answerName(a));
  }
  shown_.push_back({DialogKind::Message, text, title, q.text});
  return a;
}

FileChoice ScriptedDialogs::file(DialogKind kind, const std::string& title,
                                 const std::string& filter) {
  Queued q = take(kind, title);
  shown_.push_back({kind, title, filter, q.text});
  if (q.text.empty()) return {};
  return {q.text, std::filesystem::path(q.text).filename().string()};
}

FileChoice ScriptedDialogs::openFile(const std::string& title, const std::string& filter) {
  return file(DialogKind::OpenFile, title, filter);
}

FileChoice ScriptedDialogs::saveFile(const std::string& title, const std::string& filter) {
  return file(DialogKind::SaveFile, title, filter);
}

ScriptedDialogs& ScriptedDialogs::cancelColor() {
  return queue(DialogKind::Color, {}, "cancel", Answer::Cancel);
}

std::optional<Color> ScriptedDialogs::chooseColor(const std::string& title, Color) {
  Queued q = take(DialogKind::Color, title);
  shown_.push_back({DialogKind::Color, title, "", q.text});
  return q.color;
}

}  // namespace tri
