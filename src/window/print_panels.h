// The print panels, hidden until printing: the printer list, the Paper and Printing
// frames, the Print and Preview buttons and the preview page.
#pragma once

#include <QWidget>
#include <memory>
#include <utility>
#include <vector>

#include "platform/canvas.h"
#include "window/controls_view.h"

namespace tri {

// The fixed captions of the panels' labels, by label number.
const std::vector<std::pair<int, const char*>>& printPanelCaptions();

// The column of Combo3, Frame1, Frame2 and Command1, with its widgets registered. The
// user's choices go straight into the controls' data; a button's click runs its
// procedure, "<button name>_Click".
QWidget* buildPrintColumn(ControlWidgets& widgets, Controls& ui, QWidget* parent,
                          const ProcedureRunner& run);

// Picture2, the preview page, 210 by 297 like the paper, showing `page`, with Command2
// under it.
QWidget* buildPreviewPage(ControlWidgets& widgets, const std::unique_ptr<Canvas>& page,
                          QWidget* parent, const ProcedureRunner& run);

}  // namespace tri
