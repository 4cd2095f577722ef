// The workbook reader: cells of .xls fixtures, faults on unreadable files, the in-memory sheet.
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
#include <utility>
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

void writeBytes(const std::string& path, const Bytes& bytes) {
  std::ofstream out(path, std::ios::binary);
  out.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
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

void expectNumber(const Sheet& sheet, int row, int column, double value) {
  Cell cell = sheet.cell(row, column);
  EXPECT_EQ(cell.kind, Cell::Kind::Number) << "row " << row << ", column " << column;
  EXPECT_EQ(cell.number, value) << "row " << row << ", column " << column;
}

void expectText(const Sheet& sheet, int row, int column, const std::string& text) {
  Cell cell = sheet.cell(row, column);
  EXPECT_EQ(cell.kind, Cell::Kind::Text) << "row " << row << ", column " << column;
  EXPECT_EQ(cell.text, text) << "row " << row << ", column " << column;
}

void expectEmpty(const Sheet& sheet, int row, int column) {
  EXPECT_TRUE(sheet.cell(row, column).isEmpty()) << "row " << row << ", column " << column;
}

// Non-empty cells of a column from row 1 on, up to the first empty one.
int columnRun(const Sheet& sheet, int column) {
  int rows = 0;
  while (!sheet.cell(rows + 1, column).isEmpty()) ++rows;
  return rows;
}

TEST(SheetXls, ReadsTheFirstHoleOfSmallCellByCell) {
  auto sheet = openXlsSheet(fixture("small.xls"));
  const std::vector<double> header = {120, 340, 0, 250.5, 246.5, 224.25, 224.25};
  for (int row : {1, 2, 4, 5, 6, 7}) expectNumber(*sheet, row, 1, header[row - 1]);
  expectText(*sheet, 3, 1, "S-1");
  const char* lithologies[] = {"cover", "ore", "waste", "ore"};
  for (int layer = 0; layer < 4; ++layer) expectText(*sheet, 8 + layer, 1, lithologies[layer]);
  expectNumber(*sheet, 13, 1, 1.2345);  // the tenor of the first ore layer, four decimals
  expectNumber(*sheet, 19, 1, 2.9);     // density of the last layer
  expectNumber(*sheet, 23, 1, 3.75);    // length of the last layer
  expectNumber(*sheet, 27, 1, 0.4);     // fifth quantity of the last layer
  expectEmpty(*sheet, 28, 1);
  EXPECT_EQ(columnRun(*sheet, 1), 7 + 5 * 4);
  EXPECT_EQ(columnRun(*sheet, 4), 7 + 5 * 3);
}

TEST(SheetXls, KeepsANumericLookingNameAsTextAndNegativeNumbers) {
  auto sheet = openXlsSheet(fixture("small.xls"));
  expectText(*sheet, 3, 2, "101");
  expectNumber(*sheet, 4, 2, -12.5);
  EXPECT_EQ(sheet->cell(4, 2).valueText(), "-12.5");
  EXPECT_EQ(sheet->cell(1, 4).valueText(), "210.25");
  EXPECT_EQ(sheet->cell(13, 1).valueText(), "1.2345");
}

TEST(SheetXls, AddressesOutsideTheSheetAreEmpty) {
  auto sheet = openXlsSheet(fixture("small.xls"));
  for (auto [row, column] : std::vector<std::pair<int, int>>{
           {0, 1}, {1, -1}, {INT_MIN, INT_MIN}, {28, 4}, {1, 5}, {65536, 1}, {INT_MAX, 1}}) {
    expectEmpty(*sheet, row, column);
  }
}

TEST(SheetXls, CellKindsOfTheFirstSheet) {
  auto sheet = openXlsSheet(fixture("cell_kinds.xls"));
  expectNumber(*sheet, 1, 1, 7);
  expectNumber(*sheet, 1, 2, 2.5);
  expectText(*sheet, 1, 3, "ore");
  expectText(*sheet, 1, 4, "101");
  // Dates and times are day numbers shown as their text.
  for (auto [column, days, shown] :
       std::vector<std::tuple<int, double, std::string>>{{1, 44259, "2021-03-04"},
                                                         {2, 44259.4375, "2021-03-04 10:30:00"},
                                                         {3, 0.4375, "10:30:00"}}) {
    const Cell date = sheet->cell(2, column);
    EXPECT_TRUE(date.holdsNumber()) << shown;
    EXPECT_DOUBLE_EQ(date.number, days) << shown;
    EXPECT_EQ(date.valueText(), shown);
  }
  expectEmpty(*sheet, 2, 4);  // a formatted blank
  EXPECT_EQ(sheet->cell(3, 1).valueText(), "1E-05");
  expectNumber(*sheet, 3, 2, -12.5);
  expectEmpty(*sheet, 3, 3);  // written as an empty text
  expectText(*sheet, 5, 6, "corner");
  expectEmpty(*sheet, 5, 7);
  expectEmpty(*sheet, 6, 6);
}

TEST(SheetXls, TheSheetSavedActiveIsTheOneRead) {
  auto sheet = openXlsSheet(fixture("second_active.xls"));
  expectText(*sheet, 3, 1, "S-1");
  expectNumber(*sheet, 13, 1, 1.2345);
  // A workbook that names no active sheet other than its first is read from the first.
  expectNumber(*openXlsSheet(fixture("cell_kinds.xls")), 1, 1, 7);
}

TEST(SheetXls, LogsWithGapsTextsAndZeros) {
  auto blank = openXlsSheet(fixture("blank_inside.xls"));
  expectNumber(*blank, 14, 2, 2.8);
  expectEmpty(*blank, 15, 2);
  expectNumber(*blank, 16, 2, 2.9);
  EXPECT_EQ(columnRun(*blank, 2), 14);

  auto text = openXlsSheet(fixture("text_in_number.xls"));
  expectText(*text, 12, 2, "n/a");
  expectNumber(*text, 13, 2, 2.65);

  auto zero = openXlsSheet(fixture("zero_tenor.xls"));
  expectNumber(*zero, 12, 1, 0);
  EXPECT_EQ(zero->cell(12, 1).valueText(), "0");

  auto fractional = openXlsSheet(fixture("fractional.xls"));
  EXPECT_EQ(columnRun(*fractional, 1), 7 + 5 * 2);
  EXPECT_EQ(columnRun(*fractional, 2), 7 + 12);

  auto sevenRows = openXlsSheet(fixture("seven_rows.xls"));
  EXPECT_EQ(columnRun(*sevenRows, 2), 7);
}

TEST(SheetXls, TheRealDataSetHasOneColumnPerHole) {
  auto sheet = openXlsSheet(fixture("babbitt/babbitt-holes.xls"));
  int holes = 0;
  while (!sheet->cell(1, holes + 1).isEmpty()) ++holes;
  EXPECT_EQ(holes, 255);
  expectEmpty(*sheet, 1, 256);
  expectText(*sheet, 3, 1, "34873");
  expectText(*sheet, 8, 1, "cover");
  expectText(*sheet, 9, 1, "ore");
  expectText(*sheet, 10, 1, "waste");
  int deepest = 0;
  for (int column = 1; column <= holes; ++column) {
    int rows = columnRun(*sheet, column);
    EXPECT_EQ((rows - 7) % 5, 0) << "column " << column;
    deepest = std::max(deepest, rows);
  }
  EXPECT_EQ(deepest, 7 + 5 * 27);
}

class SheetXlsFaults : public ::testing::Test {
 protected:
  // Writes the bytes to a file of the folder and expects opening it to be a Workbook Fault
  // that names the file and the reason.
  void expectUnreadable(const std::string& name, const Bytes& bytes, const std::string& reason) {
    std::string path = folder.file(name);
    writeBytes(path, bytes);
    std::string message = workbookFaultOf(path);
    EXPECT_NE(message.find(path), std::string::npos) << message;
    EXPECT_NE(message.find(reason), std::string::npos) << message;
  }

  TempDir folder;
};

// Starts with `head` and is padded to `size` bytes, as a whole file of that kind would be.
Bytes fileStartingWith(const std::string& head, size_t size) {
  Bytes bytes(head.begin(), head.end());
  bytes.resize(size, '\0');
  return bytes;
}

TEST_F(SheetXlsFaults, FilesThatAreNotWorkbooks) {
  const std::string notXls = "not an .xls workbook";
  std::string csv;
  while (csv.size() < 2000) csv += "120\t340\tS-1\t250.5\t246.5\t224.25\t224.25\n";
  expectUnreadable("text.xls", Bytes(csv.begin(), csv.end()), notXls);
  expectUnreadable("image.xls", fileStartingWith("\x89PNG\r\n\x1a\n", 3000), notXls);
  expectUnreadable("book.xlsx", fileStartingWith("PK\x03\x04\x14", 5000), notXls);
  expectUnreadable("noise.xls", randomBytes(7, 8192), notXls);
  expectUnreadable("empty.xls", {}, "too short");
  const std::string absent = folder.file("absent.xls");
  const std::string message = workbookFaultOf(absent);
  EXPECT_NE(message.find(absent), std::string::npos) << message;
  EXPECT_NE(message.find("does not exist"), std::string::npos) << message;
}

TEST_F(SheetXlsFaults, CutShortOrDamagedWorkbooks) {
  for (const char* name : {"small.xls", "babbitt/babbitt-holes.xls"}) {
    Bytes whole = readBytes(fixture(name));
    ASSERT_GT(whole.size(), 1024u);
    expectUnreadable("half.xls", Bytes(whole.begin(), whole.begin() + whole.size() / 2), "");
  }
  // A valid compound-file header followed by noise.
  Bytes header = readBytes(fixture("small.xls"));
  header.resize(512);
  Bytes noise = randomBytes(11, 4096);
  header.insert(header.end(), noise.begin(), noise.end());
  expectUnreadable("noise_after_header.xls", header, "");
  std::filesystem::create_directory(folder.file("folder.xls"));
  EXPECT_NE(workbookFaultOf(folder.file("folder.xls")).find("folder.xls"), std::string::npos);
}

TEST_F(SheetXlsFaults, ADirectoryEntryNameLongerThanItsField) {
  Bytes bytes = readBytes(fixture("small.xls"));
  const char name[] = "W\0o\0r\0k\0b\0o\0o\0k\0";
  auto entry = std::search(bytes.begin(), bytes.end(), name, name + sizeof name - 1);
  ASSERT_NE(entry, bytes.end());
  entry[64] = '\x12';  // the name length, at most 64 bytes, now 10770
  entry[65] = '\x2a';
  expectUnreadable("long_name.xls", bytes, "directory is damaged");
}

// Were the probe not run, or run on another file, FreeXL would crash this test program.
TEST_F(SheetXlsFaults, AWorkbookThatCrashesTheParserEndsInAFault) {
  ASSERT_TRUE(findXlsProbe()) << "the workbook guard's probe program is missing";
  std::string message = workbookFaultOf(fixture("huge_dimension.xls"));
  EXPECT_NE(message.find("huge_dimension.xls"), std::string::npos) << message;
  EXPECT_NE(message.find("badly damaged"), std::string::npos) << message;
  // The path reaches the probe as it is, whatever it holds.
  const std::string oddName = folder.file("-x 'huge' \"$(dimension)\" ;.xls");
  writeBytes(oddName, readBytes(fixture("huge_dimension.xls")));
  EXPECT_NE(workbookFaultOf(oddName).find("badly damaged"), std::string::npos);
  // The program goes on reading other workbooks.
  EXPECT_FALSE(openXlsSheet(fixture("small.xls"))->cell(1, 1).isEmpty());
}

TEST_F(SheetXlsFaults, TheGuardTellsHowItsProbeEnded) {
  const std::optional<std::string> probe = findXlsProbe();
  ASSERT_TRUE(probe);
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

// Damage anywhere in a workbook either still reads or ends in a Workbook Fault, never a crash.
TEST_F(SheetXlsFaults, ScrambledBytesNeverCrash) {
  Bytes original = readBytes(fixture("small.xls"));
  std::mt19937 generator(2024);
  for (int round = 0; round < 40; ++round) {
    Bytes damaged = original;
    for (int hit = 0; hit < 24; ++hit) {
      damaged[generator() % damaged.size()] = static_cast<char>(generator() & 0xFF);
    }
    std::string path = folder.file("scrambled.xls");
    writeBytes(path, damaged);
    try {
      auto sheet = openXlsSheet(path);
      for (int column = 1; column <= 6; ++column) {
        for (int row = 1; row <= 30; ++row) sheet->cell(row, column).valueText();
      }
    } catch (const Fault& fault) {
      EXPECT_EQ(fault.kind(), FaultKind::Workbook) << fault.what();
    }
  }
}

TEST_F(SheetXlsFaults, WorkbooksWithoutAReadableSheet) {
  std::string noSheet = workbookFaultOf(fixture("no_sheet.xls"));
  EXPECT_NE(noSheet.find("no_sheet.xls"), std::string::npos) << noSheet;
  EXPECT_NE(noSheet.find("no sheet"), std::string::npos) << noSheet;
  std::string password = workbookFaultOf(fixture("password.xls"));
  EXPECT_NE(password.find("password.xls"), std::string::npos) << password;
  EXPECT_NE(password.find("password-protected"), std::string::npos) << password;
}

TEST(SheetGrid, GrowingKeepsEarlierCellsAndOverwritesReplaceTheKind) {
  GridSheet grid;
  EXPECT_THROW(grid.setText(1, 0, "x"), Fault);
  grid.setNumber(1, 1, 7);
  grid.setText(200, 30, "far");
  expectNumber(grid, 1, 1, 7);
  expectText(grid, 200, 30, "far");
  grid.setText(1, 1, "seven");
  expectText(grid, 1, 1, "seven");
  grid.setNumber(200, 30, 0);
  expectNumber(grid, 200, 30, 0);
  EXPECT_EQ(grid.cell(200, 30).text, "");
  grid.setText(1, 1, "");
  expectEmpty(grid, 1, 1);
}

}  // namespace
}  // namespace tri
