// Steps that opening and creating a project share.
#pragma once

#include "platform/dialogs.h"
#include "store/state.h"

namespace tri {

// Enables (or, before any project, disables) the menu items that need a project.
void enableProjectMenuItems(State& s, bool on);

// Adds the project of a chosen file to the run: its name is the file name without its
// last four characters.
void addProject(State& s, const FileChoice& file);

// Puts the newest project into the selectors and selects it, which reloads its holes.
void selectNewProject(State& s);

}  // namespace tri
