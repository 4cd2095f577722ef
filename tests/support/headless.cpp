#include "support/headless.h"

#include <sys/stat.h>

#include <QByteArray>

namespace tri {

void prepareHeadlessQt() {
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  if (qEnvironmentVariableIsEmpty("XDG_RUNTIME_DIR")) {
    // Qt wants the folder private to its user; made here, so that programs started together
    // do not race to make it.
    mkdir(TRIRESERVE_QT_RUNTIME, 0700);
    qputenv("XDG_RUNTIME_DIR", TRIRESERVE_QT_RUNTIME);
  }
}

}  // namespace tri
