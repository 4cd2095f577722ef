// File, Save, Picture: the canvas's image written as a bitmap, whatever the name's extension.
#include "output/commands.h"
#include "platform/fault.h"
#include "platform/image_canvas.h"

namespace tri {

void Mnharitakaydet_Click(State& s) {
  std::string path;
  while (path.empty()) {
    path =
        s.dialogs.saveFile("Save Picture", "Joint Photographic Experts Dosyası (*.jpg)|*.jpg").path;
    if (path.empty() && s.dialogs.messageBox("You did not enter a name", Buttons::OKCancel,
                                             Icon::None, "") != Answer::OK) {
      return;
    }
  }
  if (!imageOf(s.canvas).save(path, "BMP")) {
    throw Fault(FaultKind::FileAccess, "cannot write the picture " + path);
  }
}

}  // namespace tri
