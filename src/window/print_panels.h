// The print panels, hidden until printing: the printer list, the Paper and Printing
// frames, the Print and Preview buttons and the preview page.
#pragma once

#include <QWidget>
#include <utility>
#include <vector>

#include "window/controls_view.h"

namespace tri {

// The fixed captions of the panels' labels, by label number.
const std::vector<std::pair<int, const char*>>& printPanelCaptions();

// The column of Combo3, Frame1, Frame2 and Command1, with its widgets registered. A
// button's click runs its procedure, "<button name>_Click".
QWidget* buildPrintColumn(ControlWidgets& widgets, QWidget* parent, const ProcedureRunner& run);

// Picture2, the preview page, 210 by 297 like the paper, with Command2 under it.
QWidget* buildPreviewPage(ControlWidgets& widgets, QWidget* parent, const ProcedureRunner& run);

}  // namespace tri
