#include "window/print_panels.h"

#include "commands/procedures.h"
#include "platform/image_canvas.h"
#include "platform/printer.h"

#include <QFormLayout>
#include <QGroupBox>
#include <QLineEdit>
#include <QListWidget>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

namespace tri {

const std::vector<std::pair<int, const char*>>& printPanelCaptions() {
  static const std::vector<std::pair<int, const char*>> captions = {
      {5, "Size:"}, {6, "Direction:"}, {8, "Color"}, {9, "Quality"}, {10, "Number"}, {11, "Yer"},
  };
  return captions;
}

namespace {

// List<number>: a choice kept in the controls' data as its list index.
QListWidget* list(ControlWidgets& widgets, Controls& ui, int number, const QStringList& entries,
                  QWidget* parent) {
  auto* widget = new QListWidget(parent);
  widget->setObjectName(QString("List%1").arg(number));
  widget->addItems(entries);
  widget->setMaximumHeight(widget->sizeHintForRow(0) * static_cast<int>(entries.size()) + 6);
  widgets.printLists[number] = widget;
  QObject::connect(widget, &QListWidget::currentRowChanged, widget,
                   [&ui, number](int row) { ui.printLists[number] = row; });
  return widget;
}

QGroupBox* paperFrame(ControlWidgets& widgets, Controls& ui, QWidget* parent) {
  auto* frame = addPanel(widgets, "Frame1", new QGroupBox("Paper", parent));
  auto* form = new QFormLayout(frame);
  form->addRow(addLabel(widgets, 5, frame), list(widgets, ui, 1, {"A3", "A4", "A5"}, frame));
  form->addRow(addLabel(widgets, 6, frame),
               list(widgets, ui, 2, {"Vertical", "Horizontal"}, frame));
  form->addRow(addLabel(widgets, 8, frame), list(widgets, ui, 3, {"Black", "Color"}, frame));
  form->addRow(addLabel(widgets, 9, frame),
               list(widgets, ui, 4, {"Draft", "Low", "Medium", "High"}, frame));
  auto* copies = new QLineEdit(QString::fromStdString(ui.text1), frame);
  copies->setObjectName("Text1");
  widgets.text1 = copies;
  QObject::connect(copies, &QLineEdit::textEdited, copies,
                   [&ui](const QString& text) { ui.text1 = text.toStdString(); });
  form->addRow(addLabel(widgets, 10, frame), copies);
  return frame;
}

// The places of the map on the sheet, captions as the program has them.
constexpr const char* kOptionCaptions[] = {"",         "Mid.",      "Up-Mid.", "Righ.-Mid.",
                                           "Down-Mid", "Left-Mid.", "Up-Left", "Up-Rig.",
                                           "D.-R.",    "D.-L."};

QGroupBox* printingFrame(ControlWidgets& widgets, Controls& ui, QWidget* parent) {
  auto* frame = addPanel(widgets, "Frame2", new QGroupBox("Printing", parent));
  auto* layout = new QVBoxLayout(frame);
  layout->addWidget(addLabel(widgets, 11, frame));
  for (int n = 1; n <= 9; ++n) {
    auto* option = new QRadioButton(kOptionCaptions[n], frame);
    option->setObjectName(QString("Option%1").arg(n));
    widgets.options[n] = option;
    QObject::connect(option, &QRadioButton::toggled, option, [&ui, n](bool on) {
      if (on) ui.printOption = n;
    });
    layout->addWidget(option);
  }
  return frame;
}

// Picture2: the preview page's image, drawn to the widget's size; white before the first
// preview.
class PageView : public QWidget {
 public:
  PageView(const std::unique_ptr<Canvas>& page, QWidget* parent) : QWidget(parent), page_(page) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::white);
    if (page_) painter.drawImage(rect(), imageOf(*page_).image());
  }

 private:
  const std::unique_ptr<Canvas>& page_;
};

QPushButton* button(ControlWidgets& widgets, const char* name, const char* caption, QWidget* parent,
                    const ProcedureRunner& run) {
  auto* widget = addPanel(widgets, name, new QPushButton(caption, parent));
  const Procedure procedure = findProcedure(std::string(name) + "_Click");
  QObject::connect(widget, &QPushButton::clicked, widget, [run, procedure] { run(procedure); });
  return widget;
}

}  // namespace

QWidget* buildPrintColumn(ControlWidgets& widgets, Controls& ui, QWidget* parent,
                          const ProcedureRunner& run) {
  auto* column = new QWidget(parent);
  column->setMaximumWidth(280);  // the preview page stands beside the panels
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  auto* printers = addPanel(widgets, "Combo3", new QComboBox(column));
  widgets.combos.emplace_back(&Controls::combo3, printers);
  QObject::connect(printers, &QComboBox::activated, printers,
                   [&ui](int index) { ui.combo3.setListIndex(index); });
  layout->addWidget(printers);
  layout->addWidget(paperFrame(widgets, ui, column));
  layout->addWidget(printingFrame(widgets, ui, column));
  layout->addWidget(button(widgets, "Command1", "Print", column, run));
  layout->addStretch();
  return column;
}

QWidget* buildPreviewPage(ControlWidgets& widgets, const std::unique_ptr<Canvas>& page,
                          QWidget* parent, const ProcedureRunner& run) {
  auto* column = new QWidget(parent);
  auto* layout = new QVBoxLayout(column);
  layout->setContentsMargins(0, 0, 0, 0);
  widgets.picture2 = addPanel(widgets, "Picture2", new PageView(page, column));
  layout->addWidget(widgets.picture2);
  layout->addWidget(button(widgets, "Command2", "Preview", column, run));
  layout->addStretch();
  widgets.picture2->setFixedSize(210, 297);
  column->setFixedWidth(210);  // Command2 as wide as the page
  return column;
}

}  // namespace tri
