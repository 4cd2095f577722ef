#include "store/state.h"

namespace tri {

void Flags::clearViews() {
  const bool kept[] = {ilkmod, gridciz, sonkesmod};
  *this = Flags{};
  ilkmod = kept[0];
  gridciz = kept[1];
  sonkesmod = kept[2];
}

State::State(Canvas& canvasRef, Dialogs& dialogsRef, Canvas& formRef)
    : canvas(canvasRef), dialogs(dialogsRef), form(formRef), openSheet(openXlsSheet) {}

const std::string& State::projectPath() const { return projects.projeyol[project()]; }

}  // namespace tri
