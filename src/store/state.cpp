#include "store/state.h"

namespace tri {

State::State(Canvas& canvasRef, Dialogs& dialogsRef)
    : canvas(canvasRef), dialogs(dialogsRef), openSheet(openXlsSheet) {}

const std::string& State::projectPath() const { return projects.projeyol[project()]; }

}  // namespace tri
