#include "support/session.h"

#include <stdexcept>

#include "commands/procedures.h"
#include "project/commands.h"
#include "triangles/commands.h"

namespace tri {

Session::Session(int canvasWidth, int canvasHeight)
    : canvas(canvasWidth, canvasHeight),
      form(canvasWidth, canvasHeight),
      state(canvas, dialogs, form) {
  canvas.setLogging(true);
  form.setLogging(true);
  connectControls(state);
  Form_Load(state);
  Form_Resize(state, canvasWidth, canvasHeight);
}

void Session::run(std::string_view procedure) {
  Procedure p = findProcedure(procedure);
  if (!p) throw std::invalid_argument("no procedure " + std::string(procedure));
  p(state);
}

void Session::click(double x, double y, int button) {
  Picture1_MouseDown(state, button, static_cast<float>(x), static_cast<float>(y));
  Picture1_MouseUp(state, button, static_cast<float>(x), static_cast<float>(y));
}

void Session::move(double x, double y) {
  Picture1_MouseMove(state, 0, static_cast<float>(x), static_cast<float>(y));
}

void Session::resize(int canvasWidth, int canvasHeight) {
  form.resize(canvasWidth, canvasHeight);
  Form_Resize(state, canvasWidth, canvasHeight);
}

std::string Session::createProject(const std::string& workbook, const std::string& fileName) {
  const std::string path = dir.file(fileName);
  dialogs.answerOpen(workbook, "Select File with Drilling Data")
      .answerSave(path, "Write Project Name");
  Mnprolus_Click(state);
  return path;
}

void Session::openProject(const std::string& path) {
  dialogs.answerOpen(path);
  Mnprojeac_Click(state);
}

}  // namespace tri
