#include "window/controls_view.h"

#include <QSignalBlocker>

namespace tri {

namespace {

QString text(const std::string& s) { return QString::fromStdString(s); }

bool sameEntries(const Combo& combo, const QComboBox* box) {
  if (combo.listCount() != box->count()) return false;
  for (int i = 0; i < box->count(); ++i) {
    if (box->itemText(i) != text(combo.item(i))) return false;
  }
  return true;
}

void reflectCombo(const Combo& combo, QComboBox* box) {
  const QSignalBlocker quiet(box);
  if (!sameEntries(combo, box)) {
    box->clear();
    for (const std::string& item : combo.items()) box->addItem(text(item));
  }
  box->setCurrentIndex(combo.listIndex());
  box->setPlaceholderText(combo.listIndex() < 0 ? text(combo.text()) : QString());
}

void reflectMenu(const Controls& ui, const MenuActions& menu) {
  for (const auto& [name, action] : menu) {
    action->setEnabled(ui.enabled(name));
    if (action->isCheckable()) action->setChecked(ui.checked(name));
  }
}

void reflectVisibility(const Controls& ui, const std::map<std::string, QWidget*>& panels) {
  for (const auto& [name, widget] : panels) widget->setVisible(ui.visible(name));
}

void reflectScrollBar(const Controls& ui, QScrollBar* bar) {
  const QSignalBlocker quiet(bar);
  bar->setValue(ui.hscroll1Value);
}

void reflectPrintPanels(const Controls& ui, ControlWidgets& widgets) {
  for (int n = 1; n < static_cast<int>(widgets.printLists.size()); ++n) {
    QListWidget* list = widgets.printLists[n];
    if (!list || list->currentRow() == ui.printLists[n]) continue;
    const QSignalBlocker quiet(list);
    list->setCurrentRow(ui.printLists[n]);
  }
  if (widgets.text1 && widgets.text1->text().toStdString() != ui.text1) {
    widgets.text1->setText(text(ui.text1));
  }
  if (ui.printOption > 0 && ui.printOption < static_cast<int>(widgets.options.size()) &&
      widgets.options[ui.printOption]) {
    const QSignalBlocker quiet(widgets.options[ui.printOption]);
    widgets.options[ui.printOption]->setChecked(true);
  }
  if (widgets.picture2) widgets.picture2->update();
}

}  // namespace

QLabel* addLabel(ControlWidgets& widgets, int number, QWidget* parent) {
  auto* label = new QLabel(parent);
  label->setObjectName(QString("Label%1").arg(number));
  // The logic's texts are shown as they are, never as markup.
  label->setTextFormat(Qt::PlainText);
  widgets.labels[number] = label;
  return label;
}

void reflectControls(const Controls& ui, ControlWidgets& widgets) {
  for (const auto& [combo, box] : widgets.combos) reflectCombo(ui.*combo, box);
  for (const auto& [number, label] : widgets.labels) {
    const QString caption = text(ui.label(number));
    if (label->text() != caption) label->setText(caption);
  }
  reflectMenu(ui, widgets.menu);
  reflectVisibility(ui, widgets.panels);
  if (widgets.hscroll1) reflectScrollBar(ui, widgets.hscroll1);
  reflectPrintPanels(ui, widgets);
  if (widgets.picture1) {
    widgets.picture1->setToolTip(text(ui.picture1ToolTip));
    widgets.picture1->setLine(ui.line1);
  }
  if (widgets.form) widgets.form->reflectShapes(ui);
}

}  // namespace tri
