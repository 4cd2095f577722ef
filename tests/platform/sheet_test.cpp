// The workbook reader: cells of .xls fixtures and faults on unreadable files.
#include "platform/sheet.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <climits>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <optional>
#include <random>
#include <string>
#include <tuple>
#include <vector>

#include "platform/fault.h"
#include "platform/xls_guard.h"
#include "support/temp_dir.h"

namespace tri {
namespace {

using Bytes = std::vector<char>;

Bytes readBytes(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  return Bytes(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

Bytes randomBytes(unsigned seed, size_t count) {
  std::mt19937 generator(seed);
  Bytes bytes(count);
  for (char& byte : bytes) byte = static_cast<char>(generator() & 0xFF);
  return bytes;
}

// The message of the Workbook Fault that opening `path` ends in; fails the test otherwise.
std::string workbookFaultOf(const std::string& path) {
  try {
    openXlsSheet(path);
  } catch (const Fault& fault) {
    EXPECT_EQ(fault.kind(), FaultKind::Workbook) << fault.what();
    return fault.message();
  }
  ADD_FAILURE() << "no Fault for " << path;
  return {};
}

// A cell as "N value", "T text" or "-" for an empty one.
std::string cellOf(const Sheet& sheet, int row, int column) {
  const Cell cell = sheet.cell(row, column);
  if (cell.isEmpty()) return "-";
  return cell.kind == Cell::Kind::Text ? "T " + cell.text : "N " + cell.valueText();
}

// Non-empty cells of a column from row 1 on, up to the first empty one.
int columnRun(const Sheet& sheet, int column) {
  int rows = 0;
  while (!sheet.cell(rows + 1, column).isEmpty()) ++rows;
  return rows;
}

struct Expected {
  const char* workbook;
  int row, column;
  std::string cell;
};

TEST(SheetXls, ReadsCellsOfTheSheetSavedActive) {
  const Expected cells[] = {
      {"small.xls", 13, 1, "N 1.2345"},
      {"small.xls", 28, 1, "-"},
      {"small.xls", 3, 2, "T 101"},
      // Addresses outside the sheet are empty.
      {"small.xls", 0, 1, "-"},
      {"small.xls", 1, -1, "-"},
      {"small.xls", INT_MIN, INT_MIN, "-"},
      {"small.xls", 1, 5, "-"},
      {"small.xls", 65536, 1, "-"},
      {"small.xls", INT_MAX, 1, "-"},
      // Dates and times are day numbers shown as their text.
      {"cell_kinds.xls", 2, 1, "N 2021-03-04"},
      {"cell_kinds.xls", 2, 2, "N 2021-03-04 10:30:00"},
      {"cell_kinds.xls", 2, 3, "N 10:30:00"},
      {"cell_kinds.xls", 3, 1, "N 1E-05"},
      {"cell_kinds.xls", 2, 4, "-"},  // a formatted blank
      {"cell_kinds.xls", 3, 3, "-"},  // written as an empty text
      // The second sheet was saved active.
      {"second_active.xls", 3, 1, "T S-1"},
      {"second_active.xls", 13, 1, "N 1.2345"},
  };
  for (const Expected& e : cells) {
    EXPECT_EQ(cellOf(*openXlsSheet(fixture(e.workbook)), e.row, e.column), e.cell)
        << e.workbook << " row " << e.row << ", column " << e.column;
  }
  EXPECT_DOUBLE_EQ(openXlsSheet(fixture("cell_kinds.xls"))->cell(2, 2).number, 44259.4375);
  auto small = openXlsSheet(fixture("small.xls"));
  EXPECT_EQ(columnRun(*small, 1), 7 + 5 * 4);
  EXPECT_EQ(columnRun(*small, 4), 7 + 5 * 3);
}

TEST(SheetXls, FilesThatAreNoReadableWorkbookEndInAFaultNamingFileAndReason) {
  TempDir folder;
  std::string csv;
  while (csv.size() < 2000) csv += "120\t340\tS-1\t250.5\t246.5\t224.25\t224.25\n";
  const Bytes small = readBytes(fixture("small.xls"));
  Bytes noiseAfterHeader(small.begin(), small.begin() + 512);
  const Bytes noise = randomBytes(11, 4096);
  noiseAfterHeader.insert(noiseAfterHeader.end(), noise.begin(), noise.end());
  // A directory entry whose name length, at most 64 bytes, is now 10770.
  Bytes longName = small;
  const char name[] = "W\0o\0r\0k\0b\0o\0o\0k\0";
  auto entry = std::search(longName.begin(), longName.end(), name, name + sizeof name - 1);
  ASSERT_NE(entry, longName.end());
  entry[64] = '\x12';
  entry[65] = '\x2a';
  const std::string notXls = "not an .xls workbook";
  const std::tuple<std::string, Bytes, std::string> files[] = {
      {"text.xls", Bytes(csv.begin(), csv.end()), notXls},
      {"noise.xls", randomBytes(7, 8192), notXls},
      {"empty.xls", {}, "too short"},
      {"half.xls", Bytes(small.begin(), small.begin() + small.size() / 2), ""},
      {"noise_after_header.xls", noiseAfterHeader, ""},
      {"long_name.xls", longName, "directory is damaged"},
  };
  for (const auto& [file, bytes, reason] : files) {
    const std::string path = folder.file(file);
    std::ofstream(path, std::ios::binary)
        .write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    const std::string message = workbookFaultOf(path);
    EXPECT_NE(message.find(path), std::string::npos) << message;
    EXPECT_NE(message.find(reason), std::string::npos) << message;
  }
  std::filesystem::create_directory(folder.file("folder.xls"));
  const std::pair<std::string, std::string> named[] = {
      {folder.file("absent.xls"), "does not exist"},
      {folder.file("folder.xls"), "folder.xls"},
      {fixture("no_sheet.xls"), "no sheet"},
      {fixture("password.xls"), "password-protected"},
      // It crashes the parser, in the probe; the program goes on.
      {fixture("huge_dimension.xls"), "badly damaged"},
  };
  for (const auto& [path, reason] : named) {
    const std::string message = workbookFaultOf(path);
    EXPECT_NE(message.find(std::filesystem::path(path).filename().string()), std::string::npos)
        << message;
    EXPECT_NE(message.find(reason), std::string::npos) << message;
  }
  EXPECT_FALSE(openXlsSheet(fixture("small.xls"))->cell(1, 1).isEmpty());
}

// The probe reads a workbook before the program does, so that one that crashes the parser
// ends only the probe; were it not run, or run on another file, this test program would crash.
TEST(SheetXls, TheGuardsProbeReadsTheFileAsNamedAndTellsHowItEnded) {
  TempDir folder;
  const std::optional<std::string> probe = findXlsProbe();
  ASSERT_TRUE(probe) << "the workbook guard's probe program is missing";
  const std::string oddName = folder.file("-x 'huge' \"$(dimension)\" ;.xls");
  const Bytes crashing = readBytes(fixture("huge_dimension.xls"));
  std::ofstream(oddName, std::ios::binary)
      .write(crashing.data(), static_cast<std::streamsize>(crashing.size()));
  EXPECT_NE(workbookFaultOf(oddName).find("badly damaged"), std::string::npos);

  const std::string small = fixture("small.xls");
  EXPECT_EQ(trialRead(*probe, small, "no such sheet"), TrialRead::Passed);
  EXPECT_EQ(trialRead("/bin/false", small, std::nullopt), TrialRead::Crashed);
  EXPECT_EQ(trialRead(folder.file("missing-probe"), small, std::nullopt), TrialRead::NotStarted);
  // A probe that does not end is killed once the patience runs out.
  const auto start = std::chrono::steady_clock::now();
  EXPECT_EQ(trialRead("/bin/sleep", "30", std::nullopt, std::chrono::milliseconds(100)),
            TrialRead::Hung);
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(10));
}

}  // namespace
}  // namespace tri
