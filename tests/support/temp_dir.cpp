#include "support/temp_dir.h"

#include <cstdlib>
#include <filesystem>
#include <stdexcept>

namespace tri {

TempDir::TempDir() {
  std::string pattern = (std::filesystem::temp_directory_path() / "trireserve-XXXXXX").string();
  if (!mkdtemp(pattern.data())) throw std::runtime_error("cannot make a temporary folder");
  path_ = pattern;
}

TempDir::~TempDir() {
  std::error_code ignored;
  std::filesystem::remove_all(path_, ignored);
}

std::string TempDir::file(const std::string& name) const { return path_ + "/" + name; }

std::string fixture(const std::string& name) {
  return std::string(TRIRESERVE_FIXTURES) + "/" + name;
}

std::string sample(const std::string& name) { return std::string(TRIRESERVE_SAMPLES) + "/" + name; }

}  // namespace tri
