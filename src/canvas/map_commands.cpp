// The commands of the Map menu.
#include "canvas/commands.h"
#include "canvas/frame.h"
#include "canvas/replay.h"
#include "platform/store.h"
#include "store/hole_lists.h"
#include "store/project_format.h"

namespace tri {

void Mnlimit_Click(State& s) {
  removeMarkers(s);
  s.frame.olcekgirildi = false;
  clearDrawingFlags(s);
  {
    Database db = Database::open(s.projectPath());
    Recordset kor = db.openTable(kHoleTable);
    loadHoleCoordinates(s, kor, HoleListEnd::ZeroX);
  }
  frameReset(s);
  s.frame.kaydirx = 0;
  s.frame.kaydiry = 0;
  applyAreaLimit(s, LimitWording::Plain);
  s.frame.haritagen = s.frame.ebxk - s.frame.ekxk;
  s.frame.haritayuk = s.frame.ebyk - s.frame.ekyk;
  layoutAfterLoad(s);
  setCanvasScale(s);
  // One of the commands that run the whole replay: the old picture goes even when no
  // view is on.
  replayAll(s);
}

}  // namespace tri
