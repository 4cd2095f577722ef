// Arrays with the runtime's fixed bounds: indices run from 0 to an upper bound, and an
// index outside is a "Subscript out of range" Fault naming the array and the index.
// Storage is taken on demand, so a bound of 999 by 999 costs only what is used.
#pragma once

#include <algorithm>
#include <array>
#include <map>
#include <string>
#include <vector>

#include "platform/fault.h"

namespace tri {

[[noreturn]] void throwSubscript(const char* array, const std::vector<long>& indices);

// One index, 0 .. upper.
template <class T>
class Bounded {
 public:
  Bounded(const char* name, long upper) : name_(name), upper_(upper) {}

  T& operator[](long i) {
    check(i);
    if (static_cast<size_t>(i) >= items_.size()) items_.resize(i + 1);
    return items_[i];
  }
  const T& operator[](long i) const {
    check(i);
    return static_cast<size_t>(i) < items_.size() ? items_[i] : empty_;
  }
  long upper() const { return upper_; }
  void clear() { items_.clear(); }

 private:
  void check(long i) const {
    if (i < 0 || i > upper_) throwSubscript(name_, {i});
  }
  const char* name_;
  long upper_;
  std::vector<T> items_;
  inline static const T empty_{};
};

// Two indices, 0 .. upper1 by 0 .. upper2, each row taken on demand.
template <class T>
class Bounded2 {
 public:
  Bounded2(const char* name, long upper1, long upper2)
      : name_(name), upper1_(upper1), upper2_(upper2) {}

  T& operator()(long i, long j) {
    check(i, j);
    if (static_cast<size_t>(i) >= rows_.size()) rows_.resize(i + 1);
    auto& row = rows_[i];
    if (static_cast<size_t>(j) >= row.size()) grow(row, j);
    return row[j];
  }
  const T& operator()(long i, long j) const {
    check(i, j);
    if (static_cast<size_t>(i) >= rows_.size()) return empty_;
    const auto& row = rows_[i];
    return static_cast<size_t>(j) < row.size() ? row[j] : empty_;
  }
  void clear() { rows_.clear(); }
  void clearRow(long i) {
    check(i, 0);
    if (static_cast<size_t>(i) < rows_.size()) rows_[i].clear();
  }

 private:
  // Rows filled one entry after another grow in steps, not by one entry each time; entries
  // never written read as the empty value either way.
  void grow(std::vector<T>& row, long j) {
    const size_t wanted =
        std::max<size_t>(j + 1, std::min<size_t>(2 * row.size() + 8, upper2_ + 1));
    row.resize(wanted);
  }
  void check(long i, long j) const {
    if (i < 0 || i > upper1_ || j < 0 || j > upper2_) throwSubscript(name_, {i, j});
  }
  const char* name_;
  long upper1_;
  long upper2_;
  std::vector<std::vector<T>> rows_;
  inline static const T empty_{};
};

// N indices, each 0 .. its upper bound, held sparsely: for arrays that would be huge if
// dense and hold little, such as the limit tenors of every drawing of every project.
template <class T, size_t N>
class Sparse {
 public:
  using Key = std::array<long, N>;
  Sparse(const char* name, Key uppers) : name_(name), uppers_(uppers) {}

  template <class... I>
  T& operator()(I... indices) {
    Key key{static_cast<long>(indices)...};
    check(key);
    return items_[key];
  }
  template <class... I>
  const T& get(I... indices) const {
    Key key{static_cast<long>(indices)...};
    check(key);
    auto it = items_.find(key);
    return it == items_.end() ? empty_ : it->second;
  }
  void clear() { items_.clear(); }
  // Raises the subscript Fault for indices outside the bounds, without storing anything.
  template <class... I>
  void checkIndex(I... indices) const {
    check(Key{static_cast<long>(indices)...});
  }
  // Removes every entry whose indices begin with `prefix`.
  template <class... I>
  void erasePrefix(I... prefix) {
    const std::array<long, sizeof...(I)> head{static_cast<long>(prefix)...};
    std::erase_if(items_, [&](const auto& item) {
      return std::equal(head.begin(), head.end(), item.first.begin());
    });
  }

 private:
  void check(const Key& key) const {
    for (size_t d = 0; d < N; ++d) {
      if (key[d] < 0 || key[d] > uppers_[d]) throwSubscript(name_, {key.begin(), key.end()});
    }
  }
  const char* name_;
  Key uppers_;
  std::map<Key, T> items_;
  inline static const T empty_{};
};

}  // namespace tri
