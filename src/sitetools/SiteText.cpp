#include "sitetools/SiteText.h"

#include <algorithm>

namespace tessarine {
namespace {

char UpperChar(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}

}  // namespace

std::string UpperAscii(std::string_view text) {
  std::string out(text);
  for (char& c : out) c = UpperChar(c);
  return out;
}

std::string LowerAscii(std::string_view text) {
  std::string out(text);
  for (char& c : out) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return out;
}

bool StartsWithNoCase(std::string_view text, std::string_view prefix) {
  if (text.size() < prefix.size()) return false;
  for (std::size_t i = 0; i < prefix.size(); ++i) {
    if (UpperChar(text[i]) != UpperChar(prefix[i])) return false;
  }
  return true;
}

bool EndsWithNoCase(std::string_view text, std::string_view suffix) {
  if (text.size() < suffix.size()) return false;
  return StartsWithNoCase(text.substr(text.size() - suffix.size()), suffix);
}

std::string TrimBlanks(std::string_view text) {
  std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  std::size_t last = text.find_last_not_of(' ');
  return std::string(text.substr(first, last - first + 1));
}

std::string NumberText(std::int64_t value) {
  return value < 0 ? std::to_string(value) : " " + std::to_string(value);
}

std::string NativeSeparators(std::string text) {
  std::replace(text.begin(), text.end(), '\\', '/');
  return text;
}

AnchorIndex::AnchorIndex(std::string_view upperText) {
  static constexpr std::string_view kName = "NAME=";
  for (std::size_t at = upperText.find(kName); at != std::string_view::npos;
       at = upperText.find(kName, at + 1)) {
    const std::size_t offset = at + kName.size();
    keys_.push_back(Key{std::string(upperText.substr(offset, kKeyLength)), offset});
  }
  std::sort(keys_.begin(), keys_.end(),
            [](const Key& a, const Key& b) { return a.start < b.start; });
}

bool AnchorIndex::HoldsNameFollowedBy(std::string_view what, std::string_view upperText) const {
  // The keys that start with `what` (or with its first kKeyLength characters) sort right at
  // or after it, side by side.
  const std::string_view head = what.substr(0, kKeyLength);
  auto it = std::lower_bound(keys_.begin(), keys_.end(), head,
                             [](const Key& key, std::string_view h) { return key.start < h; });
  for (; it != keys_.end() && std::string_view(it->start).substr(0, head.size()) == head; ++it) {
    if (what.size() <= kKeyLength) return true;
    if (upperText.substr(std::min(it->offset, upperText.size()), what.size()) == what) return true;
  }
  return false;
}

bool AnchorIndex::HoldsAnchor(std::string_view upperAnchor, std::string_view upperText) const {
  std::string quoted = "\"";
  quoted += upperAnchor;
  quoted += '"';
  return HoldsNameFollowedBy(upperAnchor, upperText) || HoldsNameFollowedBy(quoted, upperText);
}

std::size_t AnchorIndex::Bytes() const {
  std::size_t bytes = sizeof(AnchorIndex);
  for (const Key& key : keys_) bytes += sizeof(Key) + key.start.capacity();
  return bytes;
}

bool TextHoldsAnchor(std::string_view upperText, std::string_view upperAnchor) {
  std::string bare = "NAME=";
  bare += upperAnchor;
  std::string quoted = "NAME=\"";
  quoted += upperAnchor;
  quoted += '"';
  return upperText.find(bare) != std::string_view::npos ||
         upperText.find(quoted) != std::string_view::npos;
}

}  // namespace tessarine
