#pragma once
// Text helpers of the site tools: the case folds of their searches, the number format of
// their labels, and the index that answers anchor questions on a page.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

// Folds ASCII letters only, so positions in the folded text are positions in the original.
std::string UpperAscii(std::string_view text);
std::string LowerAscii(std::string_view text);
bool StartsWithNoCase(std::string_view text, std::string_view prefix);
bool EndsWithNoCase(std::string_view text, std::string_view suffix);
// Trim: blanks only, not tabs or line breaks.
std::string TrimBlanks(std::string_view text);
// A number put into a text: one leading blank when not negative.
std::string NumberText(std::int64_t value);
// Every "\" becomes "/": a link's separators, both of which work.
std::string NativeSeparators(std::string text);

// Answers "does the upper-cased content hold "NAME=" followed by the anchor?" for every
// anchor link to a page without searching the whole page once per link. It keeps the start
// of the text after each "NAME=" and where it stood, so an anchor longer than that start is
// told by comparing the candidates with the text itself.
class AnchorIndex {
 public:
  static constexpr std::size_t kKeyLength = 128;

  AnchorIndex() = default;
  explicit AnchorIndex(std::string_view upperText);
  // True when HoldsAnchor needs the indexed text for this anchor.
  static bool NeedsText(std::string_view upperAnchor) {
    return upperAnchor.size() + 2 > kKeyLength;
  }
  // `upperText` is the text the index was made from; read only when NeedsText.
  bool HoldsAnchor(std::string_view upperAnchor, std::string_view upperText = {}) const;
  std::size_t Bytes() const;

 private:
  struct Key {
    std::string start;       // up to kKeyLength characters after "NAME="
    std::size_t offset = 0;  // where they stand in the text
  };
  bool HoldsNameFollowedBy(std::string_view what, std::string_view upperText) const;
  std::vector<Key> keys_;  // sorted by start
};

// The anchor test itself: "NAME=" and the anchor, or "NAME=" and the anchor in double quotes.
bool TextHoldsAnchor(std::string_view upperText, std::string_view upperAnchor);

}  // namespace tessarine
