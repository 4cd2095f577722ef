// Scenarios: end-to-end cases written as data, run headlessly through the real procedures
// and the real store. One statement a line; '#' starts a comment.
//
//   answer input TEXT | answer file PATH | answer button OK|Cancel|Yes|No | answer color R G B
//   command NAME            select ComboN INDEX        click X Y BUTTON       move X Y
//   drag X1 Y1 X2 Y2 BUTTON resize W H                 save-image PATH
//   print-labels            print-canvas               print-frame
//   expect-label N TEXT     expect-combo ComboN TEXT...   (entries after the title, '|'-separated)
//   elevations UP DOWN      (the bench of the scan, as the elevation command's prompts set it)
//   scroll VALUE            (the scroll bar under the canvas set to 0 .. 360: its change event)
//   print-rows TABLE FROM TO FIELD...   (rows of a table of the selected project, one a line)
//
// print-canvas prints every drawing operation on the canvas since its last clear, one a
// line, in the canvas log's form (docs/scenarios.md).
// PATHs are relative to the scenario file's folder; ${TMP} is a fresh folder of the run,
// ${PICTURES} the build's folder of pictures to look at.
// Exit codes: 0 done, 2 a bad statement, 3 a Fault, 4 a dialog without its answer,
// 5 an expectation not met (answers left unused count as one), 6 printed output that is
// not the expected output.
#pragma once

#include <iosfwd>
#include <string>

namespace tri {

enum ScenarioExit {
  kScenarioDone = 0,
  kScenarioBadStatement = 2,
  kScenarioFault = 3,
  kScenarioUnanswered = 4,
  kScenarioExpectation = 5,
  kScenarioOutputDiffers = 6,
};

// Runs a scenario read from `script`; `folder` is where its relative paths start.
int runScenario(std::istream& script, const std::string& folder, std::ostream& out,
                std::ostream& err);

int runScenarioFile(const std::string& path, std::ostream& out, std::ostream& err);

// Where two outputs first differ: "line N: got ... expected ...", or "" when equal.
std::string firstDifference(const std::string& actual, const std::string& expected);

}  // namespace tri
