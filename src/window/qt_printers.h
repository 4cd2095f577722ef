// The system's printers through Qt's printer list (CUPS), with the "PDF file" entry last,
// or alone where the system has no printer.
#pragma once

#include <QPrinter>
#include <memory>
#include <string>
#include <vector>

#include "platform/printer.h"

namespace tri {

class QtPrinters : public Printers {
 public:
  explicit QtPrinters(PdfPrinter::PathAsker askPath);
  ~QtPrinters() override;
  std::vector<std::string> names() override;
  Printer& printer(int index) override;

 private:
  std::vector<std::string> systemNames_;
  std::unique_ptr<Printer> current_;
  PdfPrinter pdf_;
};

}  // namespace tri
