// The compound-file container of an .xls workbook, read by us only as far as FreeXL needs
// help: a directory FreeXL would misread, and which sheet the workbook was saved with active.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace tri {

class CompoundFile {
 public:
  // Reads the whole file; a folder or an unreadable file reads as no bytes (FreeXL then
  // says why).
  explicit CompoundFile(const std::string& path);

  // FreeXL 1.0.6 trusts the name length of a directory entry and reads past the 64-byte
  // name when that length is damaged, so such a file must be turned away before FreeXL sees
  // it. False as well when the file is not a compound file at all.
  bool hasDamagedEntryName();

  // The name of the sheet that was active when the workbook was saved, from its workbook
  // records; nothing when the file does not say (or not in a way read here).
  std::optional<std::string> activeSheetName();

 private:
  bool readHeader();
  void collectFatSectors();
  void addFatSector(uint32_t sector);
  uint32_t fatEntry(uint32_t sector) const;
  size_t sectorStart(uint32_t sector) const { return (size_t{sector} + 1) * sectorSize_; }
  // The directory entries' offsets in the file, in directory order.
  std::vector<size_t> directoryEntries() const;
  std::optional<std::vector<unsigned char>> workbookStream() const;
  uint32_t u32(size_t at) const;
  unsigned u16(size_t at) const;

  std::vector<unsigned char> bytes_;
  size_t sectorSize_ = 512;
  std::vector<uint32_t> fatSectors_;
};

}  // namespace tri
