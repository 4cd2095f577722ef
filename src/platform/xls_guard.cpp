#include "platform/xls_guard.h"

#include <signal.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <thread>
#include <vector>

extern char** environ;

namespace tri {

namespace {

constexpr char kProbeName[] = "trireserve-xls-probe";

std::string runningProgramFolder() {
  std::error_code error;
  const std::filesystem::path program = std::filesystem::read_symlink("/proc/self/exe", error);
  return error ? std::string() : program.parent_path().string();
}

bool isProgram(const std::string& path) {
  std::error_code error;
  return std::filesystem::is_regular_file(path, error) && access(path.c_str(), X_OK) == 0;
}

void reap(pid_t child, int& status) {
  while (waitpid(child, &status, 0) < 0 && errno == EINTR) {
  }
}

TrialRead awaitProbe(pid_t child, std::chrono::milliseconds patience) {
  const auto deadline = std::chrono::steady_clock::now() + patience;
  auto pause = std::chrono::microseconds(200);
  int status = 0;
  for (;;) {
    const pid_t done = waitpid(child, &status, WNOHANG);
    if (done == child) break;
    if (done < 0 && errno != EINTR) return TrialRead::NotStarted;
    if (std::chrono::steady_clock::now() > deadline) {
      kill(child, SIGKILL);
      reap(child, status);
      return TrialRead::Hung;
    }
    std::this_thread::sleep_for(pause);
    pause = std::min<std::chrono::microseconds>(pause * 2, std::chrono::milliseconds(20));
  }
  return WIFEXITED(status) && WEXITSTATUS(status) == 0 ? TrialRead::Passed : TrialRead::Crashed;
}

}  // namespace

std::optional<std::string> findXlsProbe() {
  for (const std::string& folder : {runningProgramFolder(), std::string(TRIRESERVE_PROBE_DIR)}) {
    const std::string candidate = folder + "/" + kProbeName;
    if (!folder.empty() && isProgram(candidate)) return candidate;
  }
  return std::nullopt;
}

TrialRead trialRead(const std::string& probe, const std::string& path,
                    const std::optional<std::string>& sheet, std::chrono::milliseconds patience) {
  std::vector<char*> arguments{const_cast<char*>(probe.c_str()), const_cast<char*>(path.c_str())};
  // A name with a zero byte matches no sheet, and without a name the probe reads the first.
  if (sheet && sheet->find('\0') == std::string::npos) {
    arguments.push_back(const_cast<char*>(sheet->c_str()));
  }
  arguments.push_back(nullptr);
  pid_t child = 0;
  if (posix_spawn(&child, probe.c_str(), nullptr, nullptr, arguments.data(), environ) != 0) {
    return TrialRead::NotStarted;
  }
  return awaitProbe(child, patience);
}

}  // namespace tri
