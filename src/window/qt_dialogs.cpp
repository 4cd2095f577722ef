#include "window/qt_dialogs.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QFileInfo>
#include <QInputDialog>
#include <QMessageBox>
#include <QStringList>

#include "window/qt_color.h"

namespace tri {

namespace {

QString text(const std::string& s) { return QString::fromStdString(s); }

QString boxTitle(const std::string& title) {
  return title.empty() ? QString(kProgramTitle) : text(title);
}

// A description without a trailing "(patterns)" of its own.
QString bareDescription(QString description) {
  description = description.trimmed();
  const qsizetype open = description.lastIndexOf('(');
  if (open > 0 && description.endsWith(')')) description = description.left(open).trimmed();
  return description;
}

// Qt separates the patterns of one entry with blanks.
QString qtPatterns(const QString& patterns) {
  return patterns.split(';', Qt::SkipEmptyParts).join(' ');
}

QMessageBox::Icon qtIcon(Icon icon) {
  switch (icon) {
    case Icon::None: return QMessageBox::NoIcon;
    case Icon::Information: return QMessageBox::Information;
    case Icon::Exclamation: return QMessageBox::Warning;
  }
  return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons qtButtons(Buttons buttons) {
  switch (buttons) {
    case Buttons::OK: return QMessageBox::Ok;
    case Buttons::OKCancel: return QMessageBox::Ok | QMessageBox::Cancel;
    case Buttons::YesNo: return QMessageBox::Yes | QMessageBox::No;
  }
  return QMessageBox::Ok;
}

QMessageBox::StandardButton qtButton(Answer answer) {
  switch (answer) {
    case Answer::OK: return QMessageBox::Ok;
    case Answer::Cancel: return QMessageBox::Cancel;
    case Answer::Yes: return QMessageBox::Yes;
    case Answer::No: return QMessageBox::No;
  }
  return QMessageBox::Ok;
}

Answer answerOf(QMessageBox::StandardButton button, Buttons buttons) {
  switch (button) {
    case QMessageBox::Ok: return Answer::OK;
    case QMessageBox::Cancel: return Answer::Cancel;
    case QMessageBox::Yes: return Answer::Yes;
    case QMessageBox::No: return Answer::No;
    default: return dismissedAnswer(buttons);
  }
}

FileChoice fileChoice(const QString& path) {
  if (path.isEmpty()) return {};
  return {path.toStdString(), QFileInfo(path).fileName().toStdString()};
}

}  // namespace

QString toQtFilter(const std::string& filter) {
  const QStringList parts = text(filter).split('|');
  QStringList entries;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    entries << bareDescription(parts[i]) + " (" + qtPatterns(parts[i + 1]) + ")";
  }
  if (parts.size() % 2 == 1 && !parts.back().trimmed().isEmpty()) entries << parts.back();
  return entries.join(";;");
}

Answer dismissedAnswer(Buttons buttons) {
  switch (buttons) {
    case Buttons::OK: return Answer::OK;
    case Buttons::OKCancel: return Answer::Cancel;
    case Buttons::YesNo: return Answer::No;
  }
  return Answer::Cancel;
}

std::string QtDialogs::inputBox(const std::string& prompt, const std::string& title) {
  bool ok = false;
  const QString typed = QInputDialog::getText(parent_, boxTitle(title), text(prompt),
                                              QLineEdit::Normal, QString(), &ok);
  return ok ? typed.toStdString() : std::string();
}

Answer QtDialogs::messageBox(const std::string& message, Buttons buttons, Icon icon,
                             const std::string& title) {
  QMessageBox box(qtIcon(icon), boxTitle(title), text(message), qtButtons(buttons), parent_);
  box.setEscapeButton(qtButton(dismissedAnswer(buttons)));
  box.exec();
  return answerOf(box.standardButton(box.clickedButton()), buttons);
}

FileChoice QtDialogs::openFile(const std::string& title, const std::string& filter) {
  return fileChoice(
      QFileDialog::getOpenFileName(parent_, text(title), QString(), toQtFilter(filter)));
}

FileChoice QtDialogs::saveFile(const std::string& title, const std::string& filter) {
  // The logic refuses an existing project file itself, with its own message.
  return fileChoice(QFileDialog::getSaveFileName(parent_, text(title), QString(),
                                                 toQtFilter(filter), nullptr,
                                                 QFileDialog::DontConfirmOverwrite));
}

std::optional<Color> QtDialogs::chooseColor(const std::string& title, Color initial) {
  const QColor chosen = QColorDialog::getColor(toQColor(initial), parent_, text(title));
  if (!chosen.isValid()) return std::nullopt;
  return fromQColor(chosen);
}

}  // namespace tri
