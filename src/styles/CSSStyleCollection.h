#pragma once
// The rules of the active document's style sheet: an ordered set keyed by selector. Keys
// ignore case, so "h1" and "H1" are one key; a style added without a key is reachable by
// index and enumeration only. Enumeration runs in order of insertion.

#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "styles/CSSstyle.h"

namespace tessarine {

class CSSStyleCollection {
 public:
  using StylePtr = std::shared_ptr<CSSstyle>;

  // Inserts the style at the end, under `key` unless it is empty, and returns it. A key
  // that is already there makes the insertion fail: nothing is added and null comes back.
  StylePtr Add(CSSstyle style, const std::string& key);
  StylePtr Add(StylePtr style, const std::string& key);
  // The style under a key, or at a 1-based index; null when there is none.
  StylePtr Item(std::string_view key) const;
  StylePtr Item(std::size_t index) const;
  // Deleted styles count: deletion only marks Status.
  std::size_t Count() const { return entries_.size(); }
  // False when there was no such style.
  bool Remove(std::string_view key);
  bool Remove(std::size_t index);
  void Clear();
  // Room for `count` styles in all, so that a large sheet is read without regrowing.
  void Reserve(std::size_t count);

  // Enumeration in order of insertion (NewEnum).
  class Iterator {
   public:
    explicit Iterator(std::vector<std::pair<std::string, StylePtr>>::const_iterator it) : it_(it) {}
    CSSstyle& operator*() const { return *it_->second; }
    CSSstyle* operator->() const { return it_->second.get(); }
    const StylePtr& Ptr() const { return it_->second; }
    Iterator& operator++() {
      ++it_;
      return *this;
    }
    bool operator==(const Iterator& other) const { return it_ == other.it_; }

   private:
    std::vector<std::pair<std::string, StylePtr>>::const_iterator it_;
  };
  Iterator begin() const { return Iterator(entries_.begin()); }
  Iterator end() const { return Iterator(entries_.end()); }

 private:
  void EraseAt(std::size_t zeroBased);

  // The entry under a folded key, or -1.
  long Find(std::string_view folded, std::uint64_t hash) const;
  void Index(std::size_t entry, std::uint64_t hash);
  void Reindex(std::size_t slots);

  // (folded key or "", style) in insertion order.
  std::vector<std::pair<std::string, StylePtr>> entries_;
  // The keyed entries by hash, open addressing; each slot keeps half the hash, so that most
  // misses never compare a key.
  struct Slot {
    std::int32_t entry = -1;
    std::uint32_t check = 0;
  };
  std::vector<Slot> slots_;
  std::size_t keyed_ = 0;
};

}  // namespace tessarine
