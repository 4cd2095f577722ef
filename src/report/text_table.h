// The report's tables: aligned columns for people, or CSV with --csv.
#pragma once

#include <ostream>
#include <string>
#include <vector>

namespace tri::report {

class TextTable {
 public:
  explicit TextTable(std::vector<std::string> header) : header_(std::move(header)) {}
  void add(std::vector<std::string> row) { rows_.push_back(std::move(row)); }
  // Aligned columns (text to the left, numbers to the right) under a rule, or CSV with
  // every field that needs it quoted.
  void print(std::ostream& out, bool csv) const;

 private:
  std::vector<std::string> header_;
  std::vector<std::vector<std::string>> rows_;
};

}  // namespace tri::report
