#include "window/qt_printers.h"

#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPrinterInfo>
#include <algorithm>

#include "platform/fault.h"
#include "platform/image_canvas.h"
#include "platform/qt_page.h"

namespace tri {

namespace {

// A printer of the system; the document starts with the first picture copied onto it.
class SystemPrinter : public Printer {
 public:
  explicit SystemPrinter(const QString& name)
      : info_(QPrinterInfo::printerInfo(name)), printer_(info_, QPrinter::HighResolution) {
    printer_.setFullPage(true);
  }

  int colorCapability() const override {
    return info_.supportedColorModes().contains(QPrinter::Color) ? 1 : 0;
  }
  void setOrientation(int orientation) override {
    printer_.setPageOrientation(orientation == 2 ? QPageLayout::Landscape : QPageLayout::Portrait);
  }
  void setColorMode(int mode) override {
    printer_.setColorMode(mode == 2 ? QPrinter::Color : QPrinter::GrayScale);
  }
  void setPrintQuality(int quality) override { printer_.setResolution(resolutionOf(quality)); }
  void setCopies(int copies) override { printer_.setCopyCount(copies); }
  void setPaperSize(int code) override { printer_.setPageSize(QPageSize(pageSizeId(code))); }

  void paintPicture(const Canvas& picture, double x, double y, double width,
                    double height) override {
    const QImage& image = imageOf(picture).image();
    if (!painter_.isActive() && !painter_.begin(&printer_)) {
      throw Fault(FaultKind::FileAccess,
                  "the printer " + info_.printerName().toStdString() + " cannot start a document");
    }
    const double dots = printer_.resolution() / kCmPerInch;
    painter_.drawImage(QRectF(x * dots, y * dots, width * dots, height * dots), image);
  }
  void endDoc() override {
    if (painter_.isActive()) painter_.end();
  }

 private:
  QPrinterInfo info_;
  QPrinter printer_;
  QPainter painter_;
};

}  // namespace

QtPrinters::QtPrinters(PdfPrinter::PathAsker askPath) : pdf_(std::move(askPath)) {}
QtPrinters::~QtPrinters() = default;

std::vector<std::string> QtPrinters::names() {
  systemNames_.clear();
  for (const QString& name : QPrinterInfo::availablePrinterNames()) {
    systemNames_.push_back(name.toStdString());
  }
  std::vector<std::string> all = systemNames_;
  all.push_back(PdfOnlyPrinters::kPdfEntry);
  return all;
}

Printer& QtPrinters::printer(int index) {
  const int count = static_cast<int>(systemNames_.size());
  if (index < 0 || index > count) {
    throw Fault(FaultKind::SubscriptOutOfRange, "Printers(" + std::to_string(index) + ")");
  }
  if (index == count) return pdf_;
  current_ = std::make_unique<SystemPrinter>(QString::fromStdString(systemNames_[index]));
  return *current_;
}

}  // namespace tri
