// A fresh temporary folder per test, removed with everything in it at the end.
#pragma once

#include <string>

namespace tri {

class TempDir {
 public:
  TempDir();
  ~TempDir();
  TempDir(const TempDir&) = delete;
  TempDir& operator=(const TempDir&) = delete;

  const std::string& path() const { return path_; }
  // A path inside the folder.
  std::string file(const std::string& name) const;

 private:
  std::string path_;
};

// A file of the committed fixtures or samples.
std::string fixture(const std::string& name);
std::string sample(const std::string& name);

}  // namespace tri
