// A headless session: the program state with an image canvas, scripted dialogs and a
// temporary folder, started as the window starts it. Tests drive the real procedures
// and read back the project file.
#pragma once

#include <string>
#include <string_view>

#include "platform/image_canvas.h"
#include "store/state.h"
#include "support/scripted_dialogs.h"
#include "support/temp_dir.h"

namespace tri {

class Session {
 public:
  explicit Session(int canvasWidth = 1000, int canvasHeight = 700);

  TempDir dir;
  ImageCanvas canvas;
  // The window's own surface, as large as the canvas.
  ImageCanvas form;
  ScriptedDialogs dialogs;
  State state;

  // Runs the menu or button procedure of that name.
  void run(std::string_view procedure);
  // A click (mouse down and up) or a move on the canvas, at world coordinates.
  void click(double x, double y, int button = 1);
  void move(double x, double y);
  void resize(int canvasWidth, int canvasHeight);

  // Creates a project in the temporary folder from a workbook, answering its two file
  // dialogs; returns the project file's path. A test that expects further dialogs queues
  // the file answers and runs Mnprolus_Click itself.
  std::string createProject(const std::string& workbook,
                            const std::string& fileName = "project.mdb");
  // Opens a project file through the open dialog.
  void openProject(const std::string& path);
};

}  // namespace tri
