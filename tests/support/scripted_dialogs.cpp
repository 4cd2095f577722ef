#include "support/scripted_dialogs.h"

#include <filesystem>

namespace tri {

const char* dialogKindName(DialogKind kind) {
  switch (kind) {
    case DialogKind::Input: return "input";
    case DialogKind::Message: return "button";
    case DialogKind::OpenFile: return "file";
    case DialogKind::SaveFile: return "file";
    case DialogKind::Color: return "color";
  }
  return "dialog";
}

const char* answerName(Answer answer) {
  switch (answer) {
    case Answer::OK: return "OK";
    case Answer::Cancel: return "Cancel";
    case Answer::Yes: return "Yes";
    case Answer::No: return "No";
  }
  return "?";
}

UnansweredDialog::UnansweredDialog(DialogKind kindOf, const std::string& promptOf,
                                   const std::string& reason)
    : std::runtime_error(reason + ": " + dialogKindName(kindOf) + " dialog \"" + promptOf + "\""),
      kind(kindOf),
      prompt(promptOf) {}

ScriptedDialogs& ScriptedDialogs::answerInput(const std::string& answer,
                                              std::optional<std::string> prompt) {
  queue_.push_back(Queued{DialogKind::Input, std::move(prompt), answer, Answer::OK, {}});
  return *this;
}

ScriptedDialogs& ScriptedDialogs::answerButton(Answer answer, std::optional<std::string> text) {
  Queued q{DialogKind::Message, std::move(text), answerName(answer), answer, {}};
  queue_.push_back(std::move(q));
  return *this;
}

ScriptedDialogs& ScriptedDialogs::answerOpen(const std::string& path,
                                             std::optional<std::string> title) {
  queue_.push_back(Queued{DialogKind::OpenFile, std::move(title), path, Answer::OK, {}});
  return *this;
}

ScriptedDialogs& ScriptedDialogs::answerSave(const std::string& path,
                                             std::optional<std::string> title) {
  queue_.push_back(Queued{DialogKind::SaveFile, std::move(title), path, Answer::OK, {}});
  return *this;
}

ScriptedDialogs& ScriptedDialogs::answerColor(Color value, std::optional<std::string> title) {
  Queued q{DialogKind::Color, std::move(title), std::to_string(value), Answer::OK, value};
  queue_.push_back(std::move(q));
  return *this;
}

ScriptedDialogs& ScriptedDialogs::cancelColor() {
  queue_.push_back(Queued{DialogKind::Color, std::nullopt, "Cancel", Answer::Cancel, {}});
  return *this;
}

std::string ScriptedDialogs::transcript() const {
  std::string text;
  for (const Shown& s : shown_) {
    text += std::string(dialogKindName(s.kind)) + " \"" + s.prompt + "\" -> " + s.answer + "\n";
  }
  return text;
}

ScriptedDialogs::Queued ScriptedDialogs::take(DialogKind kind, const std::string& prompt) {
  // Open and save dialogs share the answer kind "file" in scripts.
  auto sameKind = [](DialogKind a, DialogKind b) {
    auto fileKind = [](DialogKind k) {
      return k == DialogKind::OpenFile || k == DialogKind::SaveFile;
    };
    return a == b || (fileKind(a) && fileKind(b));
  };
  if (queue_.empty()) throw UnansweredDialog(kind, prompt, "no answer queued");
  Queued next = queue_.front();
  if (!sameKind(next.kind, kind)) {
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
  bool allowed =
      (buttons == Buttons::OK && q.answer == Answer::OK) ||
      (buttons == Buttons::OKCancel && (q.answer == Answer::OK || q.answer == Answer::Cancel)) ||
      (buttons == Buttons::YesNo && (q.answer == Answer::Yes || q.answer == Answer::No));
  if (!allowed) {
    throw UnansweredDialog(DialogKind::Message, text,
                           std::string("the box has no button ") + answerName(q.answer));
  }
  shown_.push_back({DialogKind::Message, text, title, q.text});
  return q.answer;
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

std::optional<Color> ScriptedDialogs::chooseColor(const std::string& title, Color) {
  Queued q = take(DialogKind::Color, title);
  shown_.push_back({DialogKind::Color, title, "", q.text});
  return q.color;
}

}  // namespace tri
