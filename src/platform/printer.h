// The printers the logic prints on: the system's list of printers, and a printer with its
// paper, orientation, colour, quality and copies, that copies a picture onto the sheet and
// ends the document. The window passes the system's printers; tests pass their own.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <vector>

#include "platform/canvas.h"

namespace tri {

// The paper size codes of the printer.
constexpr int kPaperA3 = 8;
constexpr int kPaperA4 = 9;
constexpr int kPaperA5 = 11;

class Printer {
 public:
  virtual ~Printer() = default;
  // Greater than 0 when the printer prints in colour.
  virtual int colorCapability() const = 0;
  // The settings of the document: orientation 1 portrait, 2 landscape; colour mode 1
  // black, 2 colour; quality 1 draft to 4 high; a paper size code.
  virtual void setOrientation(int orientation) = 0;
  virtual void setColorMode(int mode) = 0;
  virtual void setPrintQuality(int quality) = 0;
  virtual void setCopies(int copies) = 0;
  virtual void setPaperSize(int code) = 0;
  // Copies the picture onto the sheet at (x, y), size width by height, in centimetres from
  // the sheet's top left corner; parts off the sheet are cut.
  virtual void paintPicture(const Canvas& picture, double x, double y, double width,
                            double height) = 0;
  // Ends the document and sends it.
  virtual void endDoc() = 0;
};

class Printers {
 public:
  virtual ~Printers() = default;
  virtual std::vector<std::string> names() = 0;
  // The printer at a list index; an index outside the list is a "Subscript out of range"
  // Fault.
  virtual Printer& printer(int index) = 0;
};

// The width and height in centimetres of a paper size code, upright.
struct PaperSize {
  double width;
  double height;
};
PaperSize paperSizeOf(int code);

// The "PDF file" entry: prints into a PDF file whose path is asked for when the document
// starts. No path given: the document is dropped. A path that cannot be written is a
// "Path/File access error" Fault naming it.
class PdfPrinter : public Printer {
 public:
  using PathAsker = std::function<std::string()>;
  explicit PdfPrinter(PathAsker askPath);
  ~PdfPrinter() override;

  int colorCapability() const override { return 1; }
  void setOrientation(int orientation) override { orientation_ = orientation; }
  void setColorMode(int mode) override { colorMode_ = mode; }
  void setPrintQuality(int quality) override { quality_ = quality; }
  void setCopies(int) override {}
  void setPaperSize(int code) override { paperSize_ = code; }
  void paintPicture(const Canvas& picture, double x, double y, double width,
                    double height) override;
  void endDoc() override;

 private:
  struct Document;
  PathAsker askPath_;
  int orientation_ = 1;
  int colorMode_ = 2;
  int quality_ = 4;
  int paperSize_ = kPaperA4;
  std::unique_ptr<Document> document_;
  bool dropped_ = false;
};

// The list of a machine without printers: the "PDF file" entry alone.
class PdfOnlyPrinters : public Printers {
 public:
  explicit PdfOnlyPrinters(PdfPrinter::PathAsker askPath) : pdf_(std::move(askPath)) {}
  std::vector<std::string> names() override { return {kPdfEntry}; }
  Printer& printer(int index) override;

  static constexpr const char* kPdfEntry = "PDF file";

 private:
  PdfPrinter pdf_;
};

// The image of a picture drawn by the platform's canvas; any other canvas is an
// "Invalid procedure call or argument" Fault.
class ImageCanvas;
const ImageCanvas& imageOf(const Canvas& picture);

}  // namespace tri
