#include <algorithm>

#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include "platform/fault.h"
#include "platform/image_canvas.h"
#include "platform/printer.h"
#include "platform/qt_page.h"

namespace tri {

namespace {

// The picture's texts, invisible over their printed image, so that the document's text
// can be found and copied.
void addTextLayer(QPainter& painter, const ImageCanvas& picture, const QRectF& target) {
  const double sx = target.width() / picture.pixelWidth();
  const double sy = target.height() / picture.pixelHeight();
  painter.save();
  painter.setPen(QColor(0, 0, 0, 0));
  for (const ImageCanvas::PlacedText& t : picture.texts()) {
    QFont font;
    font.setPointSizeF(t.pointSize * picture.dotsPerInch() * sy / painter.device()->logicalDpiY());
    painter.setFont(font);
    const QPointF at(target.left() + t.px * sx, target.top() + t.py * sy);
    painter.drawText(QRectF(at, QSizeF(target.width(), font.pointSizeF() * 4)),
                     Qt::AlignLeft | Qt::AlignTop | Qt::TextDontClip,
                     QString::fromStdString(t.text));
  }
  painter.restore();
}

}  // namespace

PaperSize paperSizeOf(int code) {
  switch (code) {
    case kPaperA3: return {29.7, 42};
    case kPaperA5: return {14.8, 21};
    default: return {21, 29.7};
  }
}

const ImageCanvas& imageOf(const Canvas& picture) {
  const auto* image = dynamic_cast<const ImageCanvas*>(&picture);
  if (!image) {
    throw Fault(FaultKind::InvalidProcedureCall, "PaintPicture of a picture that holds no image");
  }
  return *image;
}

struct PdfPrinter::Document {
  explicit Document(const QString& path) : writer(path) {}
  QPdfWriter writer;
  QPainter painter;
};

PdfPrinter::PdfPrinter(PathAsker askPath) : askPath_(std::move(askPath)) {}
PdfPrinter::~PdfPrinter() = default;

void PdfPrinter::paintPicture(const Canvas& picture, double x, double y, double width,
                              double height) {
  const QImage& image = imageOf(picture).image();
  if (dropped_) return;
  if (!document_) {
    const std::string path = askPath_();
    if (path.empty()) {
      dropped_ = true;
      return;
    }
    document_ = std::make_unique<Document>(QString::fromStdString(path));
    QPdfWriter& w = document_->writer;
    w.setResolution(resolutionOf(quality_));
    w.setPageLayout(QPageLayout(QPageSize(pageSizeId(paperSize_)),
                                orientation_ == 2 ? QPageLayout::Landscape : QPageLayout::Portrait,
                                QMarginsF(0, 0, 0, 0)));
    if (!document_->painter.begin(&w)) {
      document_.reset();
      throw Fault(FaultKind::FileAccess, "cannot write the PDF file " + path);
    }
  }
  const double dots = document_->writer.resolution() / kCmPerInch;
  const QRectF target(x * dots, y * dots, width * dots, height * dots);
  QPainter& painter = document_->painter;
  if (colorMode_ == 1) {
    painter.drawImage(target, image.convertToFormat(QImage::Format_Grayscale8));
  } else {
    painter.drawImage(target, image);
  }
  addTextLayer(painter, imageOf(picture), target);
}

void PdfPrinter::endDoc() {
  if (document_) document_->painter.end();
  document_.reset();
  dropped_ = false;
}

Printer& PdfOnlyPrinters::printer(int index) {
  if (index != 0) {
    throw Fault(FaultKind::SubscriptOutOfRange, "Printers(" + std::to_string(index) + ")");
  }
  return pdf_;
}

}  // namespace tri
