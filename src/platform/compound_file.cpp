#include "platform/compound_file.h"

#include <algorithm>
#include <fstream>
#include <iterator>

namespace tri {

namespace {

constexpr size_t kHeaderSize = 512;
constexpr size_t kEntrySize = 128;
constexpr size_t kNameLengthOffset = 64;
constexpr unsigned kMaxNameBytes = 64;
constexpr uint32_t kLastRegularSector = 0xFFFFFFFA;
constexpr uint32_t kEndOfChain = 0xFFFFFFFE;
constexpr size_t kHeaderFatSlots = 109;
constexpr unsigned kStreamEntry = 2;

// Workbook record types.
constexpr unsigned kEndOfGlobals = 0x000A;
constexpr unsigned kWindow1 = 0x003D;
constexpr unsigned kBoundSheet = 0x0085;

void appendUtf8(std::string& text, unsigned code) {
  if (code < 0x80) {
    text += static_cast<char>(code);
  } else if (code < 0x800) {
    text += static_cast<char>(0xC0 | code >> 6);
    text += static_cast<char>(0x80 | (code & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | code >> 12);
    text += static_cast<char>(0x80 | (code >> 6 & 0x3F));
    text += static_cast<char>(0x80 | (code & 0x3F));
  }
}

// A sheet name of a BIFF8 sheet record: a character count, a flag byte (bit 0: two bytes a
// character), then the characters.
std::optional<std::string> sheetName(const unsigned char* data, size_t length) {
  if (length < 8) return std::nullopt;
  const size_t count = data[6];
  const bool wide = data[7] & 1;
  if (8 + count * (wide ? 2 : 1) > length) return std::nullopt;
  std::string name;
  for (size_t i = 0; i < count; ++i) {
    appendUtf8(name, wide ? data[8 + 2 * i] | unsigned{data[9 + 2 * i]} << 8 : data[8 + i]);
  }
  return name;
}

}  // namespace

CompoundFile::CompoundFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  try {
    bytes_.assign(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  } catch (const std::exception&) {
    bytes_.clear();
  }
}

bool CompoundFile::readHeader() {
  static const unsigned char signature[] = {0xD0, 0xCF, 0x11, 0xE0, 0xA1, 0xB1, 0x1A, 0xE1};
  if (bytes_.size() < kHeaderSize || !std::equal(signature, signature + 8, bytes_.begin()))
    return false;
  unsigned shift = u16(0x1E);
  if (shift != 9 && shift != 12) return false;
  sectorSize_ = size_t{1} << shift;
  collectFatSectors();
  return true;
}

std::vector<size_t> CompoundFile::directoryEntries() const {
  std::vector<size_t> entries;
  size_t steps = bytes_.size() / sectorSize_ + 1;  // a looping chain ends here
  for (uint32_t sector = u32(0x30); sector < kLastRegularSector && steps > 0; --steps) {
    size_t start = sectorStart(sector);
    if (start + sectorSize_ > bytes_.size()) break;
    for (size_t entry = start; entry < start + sectorSize_; entry += kEntrySize) {
      entries.push_back(entry);
    }
    sector = fatEntry(sector);
  }
  return entries;
}

bool CompoundFile::hasDamagedEntryName() {
  if (!readHeader()) return false;
  for (size_t entry : directoryEntries()) {
    if (u16(entry + kNameLengthOffset) > kMaxNameBytes) return true;
  }
  return false;
}

// The stream named "Workbook" (or "Book", of older workbooks) when it lies in regular
// sectors, as a stream of 4096 bytes or more does: those of Excel and of most writers.
std::optional<std::vector<unsigned char>> CompoundFile::workbookStream() const {
  static const std::u16string names[] = {u"Workbook", u"Book"};
  for (size_t entry : directoryEntries()) {
    if (bytes_[entry + 66] != kStreamEntry) continue;
    const unsigned nameBytes = u16(entry + kNameLengthOffset);
    if (nameBytes < 2 || nameBytes > kMaxNameBytes) continue;
    std::u16string name;
    for (size_t at = entry; at < entry + nameBytes - 2; at += 2) {
      name += static_cast<char16_t>(u16(at));
    }
    if (std::find(std::begin(names), std::end(names), name) == std::end(names)) continue;
    const size_t size = u32(entry + 120);
    if (size < u32(0x38)) return std::nullopt;  // in the mini stream
    std::vector<unsigned char> stream;
    size_t steps = bytes_.size() / sectorSize_ + 1;
    for (uint32_t sector = u32(entry + 116);
         sector < kLastRegularSector && steps > 0 && stream.size() < size; --steps) {
      size_t start = sectorStart(sector);
      if (start + sectorSize_ > bytes_.size()) return std::nullopt;
      stream.insert(stream.end(), bytes_.begin() + start, bytes_.begin() + start + sectorSize_);
      sector = fatEntry(sector);
    }
    if (stream.size() < size) return std::nullopt;
    stream.resize(size);
    return stream;
  }
  return std::nullopt;
}

std::optional<std::string> CompoundFile::activeSheetName() {
  if (!readHeader()) return std::nullopt;
  const auto stream = workbookStream();
  if (!stream) return std::nullopt;
  std::vector<std::optional<std::string>> sheets;
  std::optional<unsigned> active;
  // The records of the workbook's globals, up to their end record.
  for (size_t at = 0; at + 4 <= stream->size();) {
    const unsigned type = (*stream)[at] | unsigned{(*stream)[at + 1]} << 8;
    const size_t length = (*stream)[at + 2] | size_t{(*stream)[at + 3]} << 8;
    const unsigned char* data = stream->data() + at + 4;
    if (at + 4 + length > stream->size()) break;
    if (type == kBoundSheet) sheets.push_back(sheetName(data, length));
    if (type == kWindow1 && length >= 12 && !active) active = data[10] | unsigned{data[11]} << 8;
    if (type == kEndOfGlobals && at > 0) break;
    at += 4 + length;
  }
  if (!active || *active >= sheets.size()) return std::nullopt;
  return sheets[*active];
}

// The FAT sectors: 109 listed in the header, the rest in the chain of extra list sectors.
void CompoundFile::collectFatSectors() {
  fatSectors_.clear();
  for (size_t slot = 0; slot < kHeaderFatSlots; ++slot) addFatSector(u32(0x4C + 4 * slot));
  size_t slotsPerSector = sectorSize_ / 4 - 1;
  size_t steps = bytes_.size() / sectorSize_ + 1;
  for (uint32_t sector = u32(0x44); sector < kLastRegularSector && steps > 0; --steps) {
    size_t start = sectorStart(sector);
    if (start + sectorSize_ > bytes_.size()) return;
    for (size_t slot = 0; slot < slotsPerSector; ++slot) addFatSector(u32(start + 4 * slot));
    sector = u32(start + 4 * slotsPerSector);
  }
}

void CompoundFile::addFatSector(uint32_t sector) {
  if (sector < kLastRegularSector) fatSectors_.push_back(sector);
}

uint32_t CompoundFile::fatEntry(uint32_t sector) const {
  size_t perSector = sectorSize_ / 4;
  if (sector / perSector >= fatSectors_.size()) return kEndOfChain;
  return u32(sectorStart(fatSectors_[sector / perSector]) + 4 * (sector % perSector));
}

// Little-endian values; bytes beyond the file read as all ones, which ends any chain.
uint32_t CompoundFile::u32(size_t at) const {
  if (at + 4 > bytes_.size()) return 0xFFFFFFFF;
  return u16(at) | uint32_t{u16(at + 2)} << 16;
}

unsigned CompoundFile::u16(size_t at) const {
  if (at + 2 > bytes_.size()) return 0xFFFF;
  return bytes_[at] | unsigned{bytes_[at + 1]} << 8;
}

}  // namespace tri
