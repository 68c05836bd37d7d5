#include "styles/CSSStyleCollection.h"

#include "core/TextServices.h"

namespace tessarine {

namespace {

std::uint64_t KeyHash(std::string_view folded) {
  std::uint64_t h = 14695981039346656037ull;
  for (const char c : folded) h = (h ^ static_cast<unsigned char>(c)) * 1099511628211ull;
  return h;
}

}  // namespace

long CSSStyleCollection::Find(std::string_view folded, std::uint64_t hash) const {
  if (slots_.empty()) return -1;
  const std::size_t mask = slots_.size() - 1;
  const auto check = static_cast<std::uint32_t>(hash >> 32);
  for (std::size_t at = hash & mask; slots_[at].entry >= 0; at = (at + 1) & mask) {
    const Slot& slot = slots_[at];
    if (slot.check == check && entries_[static_cast<std::size_t>(slot.entry)].first == folded)
      return slot.entry;
  }
  return -1;
}

void CSSStyleCollection::Index(std::size_t entry, std::uint64_t hash) {
  const std::size_t mask = slots_.size() - 1;
  std::size_t at = hash & mask;
  while (slots_[at].entry >= 0) at = (at + 1) & mask;
  slots_[at] = {static_cast<std::int32_t>(entry), static_cast<std::uint32_t>(hash >> 32)};
}

void CSSStyleCollection::Reindex(std::size_t slots) {
  std::size_t size = 16;
  while (size < slots) size *= 2;
  slots_.assign(size, Slot{});
  for (std::size_t i = 0; i < entries_.size(); ++i)
    if (!entries_[i].first.empty()) Index(i, KeyHash(entries_[i].first));
}

CSSStyleCollection::StylePtr CSSStyleCollection::Add(CSSstyle style, const std::string& key) {
  return Add(std::make_shared<CSSstyle>(std::move(style)), key);
}

CSSStyleCollection::StylePtr CSSStyleCollection::Add(StylePtr made, const std::string& key) {
  std::string folded = LCase(key);
  if (!folded.empty()) {
    const std::uint64_t hash = KeyHash(folded);
    if (Find(folded, hash) >= 0) return nullptr;
    if ((keyed_ + 1) * 2 > slots_.size()) Reindex((keyed_ + 1) * 4);
    Index(entries_.size(), hash);
    ++keyed_;
  }
  entries_.emplace_back(std::move(folded), made);
  return made;
}

CSSStyleCollection::StylePtr CSSStyleCollection::Item(std::string_view key) const {
  const std::string folded = LCase(key);
  const long at = Find(folded, KeyHash(folded));
  return at < 0 ? nullptr : entries_[static_cast<std::size_t>(at)].second;
}

CSSStyleCollection::StylePtr CSSStyleCollection::Item(std::size_t index) const {
  if (index < 1 || index > entries_.size()) return nullptr;
  return entries_[index - 1].second;
}

void CSSStyleCollection::EraseAt(std::size_t zeroBased) {
  if (!entries_[zeroBased].first.empty()) --keyed_;
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(zeroBased));
  // The entries behind it moved up: rare enough to index anew.
  Reindex(slots_.size());
}

bool CSSStyleCollection::Remove(std::string_view key) {
  const std::string folded = LCase(key);
  if (folded.empty()) return false;
  const long at = Find(folded, KeyHash(folded));
  if (at < 0) return false;
  EraseAt(static_cast<std::size_t>(at));
  return true;
}

bool CSSStyleCollection::Remove(std::size_t index) {
  if (index < 1 || index > entries_.size()) return false;
  EraseAt(index - 1);
  return true;
}

void CSSStyleCollection::Reserve(std::size_t count) {
  entries_.reserve(count);
  if (count * 2 > slots_.size()) Reindex(count * 2);
}

void CSSStyleCollection::Clear() {
  entries_.clear();
  slots_.clear();
  keyed_ = 0;
}

}  // namespace tessarine
