#include "window/main_window.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QMenuBar>
#include <QMessageBox>
#include <QShortcut>
#include <QToolButton>
#include <QVBoxLayout>
#include <tuple>

#include "commands/menu.h"
#include "commands/procedures.h"
#include "platform/fault.h"
#include "project/commands.h"
#include "views/commands.h"
#include "window/print_panels.h"
#include "window/qt_dialogs.h"
#include "window/qt_printers.h"

namespace tri {

namespace {

struct SelectorSlot {
  const char* name;
  Combo Controls::*combo;
};

// Across the top, in this order.
constexpr SelectorSlot kSelectors[] = {
    {"Combo5", &Controls::combo5},
    {"Combo4", &Controls::combo4},
    {"Combo2", &Controls::combo2},
    {"Combo1", &Controls::combo1},
};

// The status row: Label1 is the main status line and takes the most room.
constexpr std::pair<int, int> kStatusLabels[] = {{1, 4}, {2, 1}, {3, 1}, {4, 1}, {7, 1}};

constexpr int kScrollMaximum = 360;

QString faultText(const Fault& fault) {
  return QString::fromStdString(std::string(faultKindName(fault.kind())) + ": " + fault.message());
}

}  // namespace

MainWindow::MainWindow(Dialogs* dialogs, QWidget* parent)
    : QMainWindow(parent),
      ownDialogs_(dialogs ? nullptr : std::make_unique<QtDialogs>(this)),
      state_(canvas_, dialogs ? *dialogs : *ownDialogs_, form_),
      reportFault_([this](const QString& title, const QString& text) {
        QMessageBox::critical(this, title, text);
      }) {
  setWindowTitle(kProgramTitle);
  connectControls(state_);
  printers_ = std::make_unique<QtPrinters>([this] {
    return state_.dialogs.saveFile("Print to PDF File", "PDF Document (*.pdf)|*.pdf").path;
  });
  state_.output.printers = printers_.get();
  for (const auto& [number, caption] : printPanelCaptions()) state_.ui.setLabel(number, caption);
  buildWidgets();
  widgets_.menu = buildMenuBar(menuBar(), menuItems(),
                               [this](Procedure procedure) { runProcedure(procedure); });
  connectHooks();
  resize(1100, 800);
  runCommand([this] { Form_Load(state_); });
}

MainWindow::~MainWindow() {
  // The widgets go before the state and the canvas they refer to.
  ended_ = true;
  state_.ui.onProgress = nullptr;
  state_.ui.onLayout = nullptr;
  state_.output.printers = nullptr;
  delete takeCentralWidget();
}

void MainWindow::buildWidgets() {
  auto* central = new QWidget(this);
  auto* layout = new QVBoxLayout(central);
  layout->addWidget(buildSelectorRow(central));
  layout->addWidget(buildCanvasArea(central), 1);
  layout->addWidget(buildScrollBar(central));
  layout->addWidget(buildStatusRow(central));
  setCentralWidget(central);
  connectCanvas();
  connectForm();
  state_.ui.combo3Height = widgets_.panels.at("Combo3")->sizeHint().height();
  state_.ui.label1Height = widgets_.labels.at(1)->sizeHint().height();
}

QWidget* MainWindow::buildSelectorRow(QWidget* parent) {
  auto* row = new QWidget(parent);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  for (const SelectorSlot& slot : kSelectors) {
    auto* box = new QComboBox(row);
    box->setObjectName(slot.name);
    box->setMinimumWidth(160);
    box->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    widgets_.combos.emplace_back(slot.combo, box);
    Combo Controls::*combo = slot.combo;
    connect(box, &QComboBox::activated, this, [this, combo](int index) {
      runCommand([this, combo, index] { (state_.ui.*combo).setListIndex(index); });
    });
    layout->addWidget(box);
  }
  layout->addWidget(addLabel(widgets_, 12, row));
  layout->addWidget(addLabel(widgets_, 13, row));
  layout->addStretch();
  return row;
}

QWidget* MainWindow::buildCanvasArea(QWidget* parent) {
  // The form's own surface lies under the panels and the canvas, and shows where they are
  // hidden.
  auto* area = new FormView(form_, parent);
  widgets_.form = area;
  auto* layout = new QHBoxLayout(area);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(0);  // the print panels take no room while they are hidden
  const ProcedureRunner run = [this](Procedure procedure) { runProcedure(procedure); };
  // The print column at the left edge, the preview page to its right, then the canvas.
  layout->addWidget(buildPrintColumn(widgets_, state_.ui, area, run));
  layout->addWidget(buildPreviewPage(widgets_, state_.output.picture2, area, run), 0, Qt::AlignTop);
  widgets_.picture1 = addPanel(widgets_, "Picture1", new CanvasView(canvas_, area));
  layout->addWidget(widgets_.picture1, 1);
  return area;
}

QWidget* MainWindow::buildScrollBar(QWidget* parent) {
  auto* bar = addPanel(widgets_, "HScroll1", new QScrollBar(Qt::Horizontal, parent));
  bar->setRange(0, kScrollMaximum);
  // A drag reports its values as the thumb moves.
  bar->setTracking(true);
  // The canvas keeps the bar's room when it is hidden, so showing it resizes nothing.
  QSizePolicy policy = bar->sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  bar->setSizePolicy(policy);
  widgets_.hscroll1 = bar;
  scrollChange_ = findProcedure("HScroll1_Change");
  connect(bar, &QScrollBar::valueChanged, this, &MainWindow::scrollBarMoved);
  return bar;
}

// A redraw is not interrupted, and a drag sends values faster than a redraw ends: the values
// that arrive meanwhile replace each other, and the latest is drawn next. The logic sees the
// bar's value at once, unless a command is under way.
void MainWindow::scrollBarMoved(int value) {
  const bool queued = pendingScroll_.has_value();
  pendingScroll_ = value;
  if (running_ == 0) state_.ui.hscroll1Value = value;
  if (!queued) QMetaObject::invokeMethod(this, &MainWindow::runPendingScroll, Qt::QueuedConnection);
}

void MainWindow::runPendingScroll() {
  // A command that shows its progress lets queued calls through: the change waits for its end.
  if (!pendingScroll_ || running_ > 0) return;
  const int value = *pendingScroll_;
  pendingScroll_.reset();
  runCommand([this, value] {
    state_.ui.hscroll1Value = value;
    if (scrollChange_) scrollChange_(state_);
  });
}

QWidget* MainWindow::buildStatusRow(QWidget* parent) {
  auto* row = new QWidget(parent);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  for (const auto& [number, stretch] : kStatusLabels) {
    QLabel* label = addLabel(widgets_, number, row);
    label->setFrameStyle(QFrame::Panel | QFrame::Sunken);
    // Long texts are cut, so that a progress message never changes the layout.
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    layout->addWidget(label, stretch);
  }
  return row;
}

void MainWindow::connectCanvas() {
  CanvasView* view = widgets_.picture1;
  connect(view, &CanvasView::pressed, this, [this](int button, float x, float y) {
    runCommand([=, this] { Picture1_MouseDown(state_, button, x, y); });
  });
  connect(view, &CanvasView::moved, this, [this](int button, float x, float y) {
    runCommand([=, this] { Picture1_MouseMove(state_, button, x, y); });
  });
  connect(view, &CanvasView::released, this, [this](int button, float x, float y) {
    runCommand([=, this] { Picture1_MouseUp(state_, button, x, y); });
  });
  connect(view, &CanvasView::resized, this,
          [this](int width, int height) { resizeCanvas(QSize(width, height)); });
}

// The form's clicks, and the page buttons and keys of the drill-log view drawn on it.
void MainWindow::connectForm() {
  FormView* form = widgets_.form;
  connect(form, &FormView::pressed, this, [this](int button, float x, float y) {
    runCommand([=, this] { Form_MouseDown(state_, button, 0, x, y); });
  });
  // Side by side at the top of the form, right of the legend.
  int left = 100;
  for (const auto& [name, caption, tip] :
       {std::tuple{"PagePrevious", "< Holes", "The holes before these (PageUp)"},
        std::tuple{"PageNext", "Holes >", "The holes after these (PageDown)"}}) {
    auto* button = addPanel(widgets_, name, new QToolButton(form));
    button->setText(caption);
    button->setToolTip(tip);
    button->setGeometry(QRect(QPoint(left, 4), button->sizeHint()));
    left += button->width() + 4;
    button->hide();
    const Procedure procedure = findProcedure(std::string(name) + "_Click");
    connect(button, &QToolButton::clicked, this, [this, procedure] { runProcedure(procedure); });
  }
  for (const auto& [key, code] : {std::pair{Qt::Key_PageUp, 33}, std::pair{Qt::Key_PageDown, 34}}) {
    auto* shortcut = new QShortcut(QKeySequence(key), this);
    connect(shortcut, &QShortcut::activated, this,
            [this, code] { runCommand([=, this] { Form_KeyDown(state_, code); }); });
  }
}

void MainWindow::connectHooks() {
  state_.ui.onProgress = [this] { showProgress(); };
  state_.ui.onLayout = [this] { reflectControls(state_.ui, widgets_); };
}

// An item without a procedure still runs as an empty command, so that the controls are
// shown again as the logic has them (Qt would otherwise leave its own check mark).
void MainWindow::runProcedure(Procedure procedure) {
  runCommand([=, this] {
    if (procedure) procedure(state_);
  });
}

void MainWindow::runCommand(const std::function<void()>& command) {
  if (ended_) return;
  std::optional<QString> fault;
  ++running_;
  try {
    command();
  } catch (const Fault& f) {
    fault = faultText(f);
  } catch (const std::exception& e) {
    fault = QString::fromStdString(e.what());
  }
  --running_;
  if (fault) {
    endWithFault(*fault);
  } else if (running_ == 0) {
    afterCommand();
  }
}

void MainWindow::afterCommand() {
  if (pendingResize_) {
    const QSize size = *pendingResize_;
    pendingResize_.reset();
    resizeCanvas(size);
    return;
  }
  reflectControls(state_.ui, widgets_);
  widgets_.picture1->update();
  widgets_.form->update();
  if (state_.ui.closeRequested) {
    close();
    return;
  }
  if (pendingScroll_) runPendingScroll();
}

void MainWindow::resizeCanvas(QSize size) {
  if (running_ > 0) {
    pendingResize_ = size;
    return;
  }
  runCommand([=, this] {
    state_.layout.formWidth = width();
    state_.layout.formHeight = height();
    Form_Resize(state_, size.width(), size.height());
  });
}

void MainWindow::showProgress() {
  widgets_.labels.at(1)->setText(QString::fromStdString(state_.ui.label(1)));
  QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}

void MainWindow::endWithFault(const QString& text) {
  ended_ = true;
  reportFault_("Run-time error", text);
  close();
  // Last, so that no quit on the closing of the last window replaces the code.
  QCoreApplication::exit(1);
}

}  // namespace tri
