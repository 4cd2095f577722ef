// The Qt dialogs as the logic sees them: a message box closed without a button, and the
// file filters.
#include <gtest/gtest.h>

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>
#include <QPointer>
#include <QTimer>
#include <deque>

#include "window/qt_dialogs.h"

namespace tri {
namespace {

// Acts on the modal dialogs as they come up, one step each; a dialog beyond the steps is
// left alone. The steps end with the object.
class ModalSteps {
 public:
  explicit ModalSteps(std::deque<std::function<void(QWidget*)>> steps) : steps_(std::move(steps)) {
    QObject::connect(&timer_, &QTimer::timeout, [this] { next(); });
    timer_.start(5);
  }
  int taken() const { return taken_; }

 private:
  void next() {
    QWidget* modal = QApplication::activeModalWidget();
    if (!modal || modal == last_ || steps_.empty()) return;
    last_ = modal;
    ++taken_;
    auto step = std::move(steps_.front());
    steps_.pop_front();
    step(modal);
  }

  QTimer timer_;
  std::deque<std::function<void(QWidget*)>> steps_;
  QPointer<QWidget> last_;
  int taken_ = 0;
};

void pressEscape(QWidget* w) {
  QKeyEvent key(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(w, &key);
}

TEST(QtFilters, PairsOfDescriptionAndPatternBecomeQtEntries) {
  EXPECT_EQ(toQtFilter("Excel File (*.xls)|*.xls"), "Excel File (*.xls)");
  EXPECT_EQ(toQtFilter("Bitmap|*.bmp"), "Bitmap (*.bmp)");
  EXPECT_EQ(toQtFilter("Bitmap (*.bmp)|*.bmp|JPEG (*.jpg)|*.jpg"), "Bitmap (*.bmp);;JPEG (*.jpg)");
  EXPECT_EQ(toQtFilter("Pictures (*.bmp;*.jpg)|*.bmp;*.jpg"), "Pictures (*.bmp *.jpg)");
  EXPECT_EQ(toQtFilter(""), "");
}

TEST(QtMessageBox, ClosingWithoutAButtonIsCancelOrNo) {
  QtDialogs dialogs(nullptr);
  QString title;
  QMessageBox::Icon icon = QMessageBox::NoIcon;
  ModalSteps steps({[&](QWidget* box) {
                      title = box->windowTitle();
                      icon = qobject_cast<QMessageBox*>(box)->icon();
                      pressEscape(box);
                    },
                    [](QWidget* box) { box->close(); }, [](QWidget* box) { pressEscape(box); }});
  EXPECT_EQ(dialogs.messageBox("Make a Correction?", Buttons::YesNo, Icon::Exclamation, ""),
            Answer::No);
  EXPECT_EQ(title, "TriReserve");
  EXPECT_EQ(icon, QMessageBox::Warning);
  EXPECT_EQ(dialogs.messageBox("Again?", Buttons::OKCancel, Icon::None, "Attention !"),
            Answer::Cancel);
  EXPECT_EQ(dialogs.messageBox("Done", Buttons::OK, Icon::Information, ""), Answer::OK);
  EXPECT_EQ(steps.taken(), 3);
}

}  // namespace
}  // namespace tri
