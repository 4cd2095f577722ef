// View, Show/Hide and View, Colors: what the plan views write and in which colours. Each
// command changes state only and then repeats what is on the canvas.
#include "canvas/replay.h"
#include "platform/vbtext.h"
#include "production/commands.h"
#include "views/commands.h"

namespace tri {

namespace {

// Raises the item's counter; an odd count turns the flag and the check mark on.
void toggle(State& s, int& counter, bool& flag, const char* item) {
  removeMarkers(s);
  ++counter;
  flag = counter % 2 != 0;
  s.ui.check(item, flag);
}

// Shows the colour dialog that remembers `color`; a cancel keeps the former colour.
Color chooseInDialog(State& s, Color& color) {
  if (const std::optional<Color> chosen = s.dialogs.chooseColor("", color)) color = *chosen;
  return color;
}

Color askColor(State& s, const std::string& prompt) {
  s.ui.setLabel(1, prompt);
  s.dialogs.messageBox(prompt, Buttons::OK, Icon::None, "");
  return chooseInDialog(s, s.colors.dialog1);
}

}  // namespace

void Mnsndjgoster_Click(State& s) {
  toggle(s, s.views.isimsay, s.frame.sondgoster, "Mnsndjgoster");
  replayFlags(s);
}

void Mnmiktrgoster_Click(State& s) {
  toggle(s, s.views.miktarsay, s.views.miktargoster, "Mnmiktrgoster");
  replayTail(s);
}

void Mngridgoster_Click(State& s) {
  toggle(s, s.views.gridsay, s.frame.gridgoster, "Mngridgoster");
  replayAll(s);
}

void Mnrenksec_Click(State& s) {
  s.views.cevrenk = askColor(s, "Select Color for Ore !");
  s.views.ganguerenk = askColor(s, "Select Color for Gangue !");
  if (s.flags.modureciz) ureciz(s);
  if (s.flags.sonkesmod) {
    removeMarkers(s);
    Mnsonkes_Click(s);
  }
  replayTail(s);
}

void MNrrezerv_Click(State& s) {
  removeMarkers(s);
  Views& w = s.views;
  w.renksay = toNumber(
      s.dialogs.inputBox("In how many colors would you like to show the reserve amounts? ", ""));
  for (long j = 1; j <= w.renksay; ++j) w.renkler[j] = chooseInDialog(s, s.colors.dialog1);
  if (s.flags.modureciz) ureciz(s);
  replayTail(s);
}

void Mnrmiktr_Click(State& s) {
  removeMarkers(s);
  chooseInDialog(s, s.colors.dialog2);
  if (s.flags.modureciz) ureciz(s);
  replayTail(s);
}

void Mnrgrid_Click(State& s) {
  removeMarkers(s);
  chooseInDialog(s, s.colors.dialog3);
  replayFlags(s);
}

}  // namespace tri
