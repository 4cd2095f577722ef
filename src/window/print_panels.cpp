#include "window/print_panels.h"

#include "commands/procedures.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QVBoxLayout>

namespace tri {

const std::vector<std::pair<int, const char*>>& printPanelCaptions() {
  static const std::vector<std::pair<int, const char*>> captions = {
      {5, "Size:"}, {6, "Direction:"}, {8, "Color"}, {9, "Quality"}, {10, "Number"}, {11, "Yer"},
  };
  return captions;
}

namespace {

QListWidget* list(const char* name, const QStringList& entries, QWidget* parent) {
  auto* widget = new QListWidget(parent);
  widget->setObjectName(name);
  widget->addItems(entries);
  widget->setMaximumHeight(widget->sizeHintForRow(0) * static_cast<int>(entries.size()) + 6);
  return widget;
}

QGroupBox* paperFrame(ControlWidgets& widgets, QWidget* parent) {
  auto* frame = addPanel(widgets, "Frame1", new QGroupBox("Paper", parent));
  auto* form = new QFormLayout(frame);
  form->addRow(addLabel(widgets, 5, frame), list("List1", {"A3", "A4", "A5"}, frame));
  form->addRow(addLabel(widgets, 6, frame), list("List2", {"Vertical", "Horizontal"}, frame));
  form->addRow(addLabel(widgets, 8, frame), list("List3", {"Black", "Color"}, frame));
  form->addRow(addLabel(widgets, 9, frame),
               list("List4", {"Draft", "Low", "Medium", "High"}, frame));
  auto* copies = new QLineEdit("1", frame);
  copies->setObjectName("Text1");
  form->addRow(addLabel(widgets, 10, frame), copies);
  return frame;
}

QGroupBox* printingFrame(ControlWidgets& widgets, QWidget* parent) {
  auto* frame = addPanel(widgets, "Frame2", new QGroupBox("Printing", parent));
  auto* layout = new QVBoxLayout(frame);
  layout->addWidget(addLabel(widgets, 11, frame));
  return frame;
}

QPushButton* button(ControlWidgets& widgets, const char* name, const char* caption, QWidget* parent,
                    const ProcedureRunner& run) {
  auto* widget = addPanel(widgets, name, new QPushButton(caption, parent));
  const Procedure procedure = findProcedure(std::string(name) + "_Click");
  QObject::connect(widget, &QPushButton::clicked, widget, [run, procedure] { run(procedure); });
  return widget;
}

}  // namespace

QWidget* buildPrintColumn(ControlWidgets& widgets, QWidget* parent, const ProcedureRunner& run) {
  auto* column = new QWidget(parent);
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->addWidget(addPanel(widgets, "Combo3", new QComboBox(column)));
  layout->addWidget(paperFrame(widgets, column));
  layout->addWidget(printingFrame(widgets, column));
  layout->addWidget(button(widgets, "Command1", "Print", column, run));
  layout->addStretch();
  return column;
}

QWidget* buildPreviewPage(ControlWidgets& widgets, QWidget* parent, const ProcedureRunner& run) {
  auto* column = new QWidget(parent);
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* page = addPanel(widgets, "Picture2", new QWidget(column));
  layout->addWidget(page);
  layout->addWidget(button(widgets, "Command2", "Preview", column, run));
  layout->addStretch();
  page->setFixedSize(210, 297);
  page->setAutoFillBackground(true);
  QPalette palette = page->palette();
  palette.setColor(QPalette::Window, Qt::white);
  page->setPalette(palette);
  return column;
}

}  // namespace tri
