// What every test program, the scenario runner and the benchmark set before they start Qt.
#pragma once

namespace tri {

// The offscreen platform, unless one is chosen; and, when the session names no runtime
// folder, one in the build folder: Qt would otherwise make one in the temporary folder and
// leave it there.
void prepareHeadlessQt();

}  // namespace tri
