// The workbook guard. FreeXL 1.0.6 can crash or corrupt memory on some damaged workbooks (a
// single changed byte in the workbook records is enough), so the probe program
// trireserve-xls-probe reads the whole sheet first, in a process of its own: such a file ends
// only the probe, and the program reads the file itself once the probe has come through.
#pragma once

#include <chrono>
#include <optional>
#include <string>

namespace tri {

enum class TrialRead { Passed, Crashed, Hung, NotStarted };

inline constexpr std::chrono::milliseconds kTrialReadPatience = std::chrono::seconds(60);

// The probe beside the running program (as installed, or the program in its build folder),
// else in the build folder the program was compiled for; none when neither has it.
std::optional<std::string> findXlsProbe();

// Runs `probe` on the workbook at `path`, naming the sheet to read when one is known. A probe
// that ends with a signal or a non-zero code has crashed; one still running after `patience`
// is killed. NotStarted means that the program has to do without the guard.
TrialRead trialRead(const std::string& probe, const std::string& path,
                    const std::optional<std::string>& sheet,
                    std::chrono::milliseconds patience = kTrialReadPatience);

}  // namespace tri
