// The state of printing: the paper and map sizes and the scale on paper, the printers of the
// system and the preview page.
#pragma once

#include <memory>

#include "platform/bounded.h"
#include "platform/canvas.h"
#include "platform/printer.h"

namespace tri {

struct Output {
  double kagitgen = 0;  // paper width and height in cm, after orientation
  double kagityuk = 0;
  double resimgen = 0;  // canvas width and height in cm
  double resimyuk = 0;
  double olcekpay = 0;   // the canvas's scale denominator
  double yeniolcek = 0;  // the denominator on paper
  // Set when the exceeds-the-paper question has been answered since the panels opened.
  bool exceedAnswered = false;

  // The system's printers, given by the window; without them the "PDF file" entry alone.
  Printers* printers = nullptr;
  std::unique_ptr<Printers> ownPrinters;
  // Picture2, the preview page, 210 wide and 297 high; made by the first preview.
  std::unique_ptr<Canvas> picture2;
};

}  // namespace tri
