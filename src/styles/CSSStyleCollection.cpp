#include "styles/CSSStyleCollection.h"

#include "core/TextServices.h"

namespace tessarine {

CSSStyleCollection::StylePtr CSSStyleCollection::Add(CSSstyle style, const std::string& key) {
  return Add(std::make_shared<CSSstyle>(std::move(style)), key);
}

CSSStyleCollection::StylePtr CSSStyleCollection::Add(StylePtr made, const std::string& key) {
  std::string folded = LCase(key);
  if (!folded.empty()) {
    if (!byKey_.emplace(folded, made).second) return nullptr;
  }
  entries_.emplace_back(std::move(folded), made);
  return made;
}

CSSStyleCollection::StylePtr CSSStyleCollection::Item(std::string_view key) const {
  const auto found = byKey_.find(LCase(key));
  return found == byKey_.end() ? nullptr : found->second;
}

CSSStyleCollection::StylePtr CSSStyleCollection::Item(std::size_t index) const {
  if (index < 1 || index > entries_.size()) return nullptr;
  return entries_[index - 1].second;
}

void CSSStyleCollection::EraseAt(std::size_t zeroBased) {
  if (!entries_[zeroBased].first.empty()) byKey_.erase(entries_[zeroBased].first);
  entries_.erase(entries_.begin() + static_cast<std::ptrdiff_t>(zeroBased));
}

bool CSSStyleCollection::Remove(std::string_view key) {
  const std::string folded = LCase(key);
  if (folded.empty() || !byKey_.count(folded)) return false;
  for (std::size_t i = 0; i < entries_.size(); ++i)
    if (entries_[i].first == folded) {
      EraseAt(i);
      return true;
    }
  return false;
}

bool CSSStyleCollection::Remove(std::size_t index) {
  if (index < 1 || index > entries_.size()) return false;
  EraseAt(index - 1);
  return true;
}

void CSSStyleCollection::Reserve(std::size_t count) {
  entries_.reserve(count);
  byKey_.reserve(count);
}

void CSSStyleCollection::Clear() {
  entries_.clear();
  byKey_.clear();
}

}  // namespace tessarine
