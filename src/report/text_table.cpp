#include "report/text_table.h"

#include <algorithm>

#include "platform/vbtext.h"

namespace tri::report {

namespace {

std::string csvField(const std::string& text) {
  if (text.find_first_of(",\"\n") == std::string::npos) return text;
  std::string quoted = "\"";
  for (char c : text) quoted += c == '"' ? std::string("\"\"") : std::string(1, c);
  return quoted + "\"";
}

bool looksNumeric(const std::string& text) { return !text.empty() && isNumberText(text); }

}  // namespace

void TextTable::print(std::ostream& out, bool csv) const {
  if (csv) {
    for (const auto* row : {&header_}) {
      for (size_t c = 0; c < row->size(); ++c) out << (c ? "," : "") << csvField((*row)[c]);
      out << "\n";
    }
    for (const auto& row : rows_) {
      for (size_t c = 0; c < row.size(); ++c) out << (c ? "," : "") << csvField(row[c]);
      out << "\n";
    }
    return;
  }
  std::vector<size_t> width(header_.size(), 0);
  std::vector<bool> numeric(header_.size(), true);
  for (size_t c = 0; c < header_.size(); ++c) width[c] = header_[c].size();
  for (const auto& row : rows_) {
    for (size_t c = 0; c < row.size() && c < width.size(); ++c) {
      width[c] = std::max(width[c], row[c].size());
      if (!row[c].empty() && !looksNumeric(row[c])) numeric[c] = false;
    }
  }
  auto line = [&](const std::vector<std::string>& row) {
    std::string text;
    for (size_t c = 0; c < width.size(); ++c) {
      const std::string cell = c < row.size() ? row[c] : "";
      const std::string pad(width[c] - std::min(width[c], cell.size()), ' ');
      text += (c ? "  " : "") + (numeric[c] ? pad + cell : cell + pad);
    }
    while (!text.empty() && text.back() == ' ') text.pop_back();
    out << text << "\n";
  };
  line(header_);
  size_t total = 0;
  for (size_t w : width) total += w;
  out << std::string(total + 2 * (width.empty() ? 0 : width.size() - 1), '-') << "\n";
  for (const auto& row : rows_) line(row);
}

}  // namespace tri::report
