#include "sitetools/SpellText.h"

#include <cstring>

namespace tessarine {
namespace {

bool IsWordByte(unsigned char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c >= 0x80;
}

bool StartsNoCase(std::string_view text, std::size_t at, std::string_view word) {
  if (text.size() - at < word.size()) return false;
  for (std::size_t k = 0; k < word.size(); ++k) {
    char c = text[at + k];
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
    if (c != word[k]) return false;
  }
  return true;
}

// The position just after the first `what` (any case) from `at`, or the end.
std::size_t After(std::string_view text, std::size_t at, std::string_view what) {
  for (std::size_t i = at; i + what.size() <= text.size(); ++i) {
    const void* lt = std::memchr(text.data() + i, what[0], text.size() - i);
    if (!lt) break;
    i = static_cast<const char*>(lt) - text.data();
    if (StartsNoCase(text, i, what)) return i + what.size();
  }
  return text.size();
}

}  // namespace

bool HasLetter(std::string_view word) {
  for (unsigned char c : word)
    if ((c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c >= 0x80) return true;
  return false;
}

// At a "<" or "&": moves past the markup that starts there.
void WordWalker::SkipMarkup() {
  const std::size_t n = text_.size();
  if (text_[at_] == '&') {
    // An entity: a name or number and its ";". A lone "&" is a separator.
    std::size_t i = at_ + 1;
    if (i < n && text_[i] == '#') ++i;
    while (i < n && i - at_ < 12 && IsWordByte(static_cast<unsigned char>(text_[i])) &&
           static_cast<unsigned char>(text_[i]) < 0x80)
      ++i;
    at_ = (i < n && text_[i] == ';') ? i + 1 : at_ + 1;
    return;
  }
  if (StartsNoCase(text_, at_, "<!--")) {
    at_ = After(text_, at_ + 4, "-->");
    return;
  }
  const bool script = StartsNoCase(text_, at_, "<script");
  const bool style = StartsNoCase(text_, at_, "<style");
  // A tag ends at the first ">" outside quotes.
  std::size_t i = at_ + 1;
  char quote = 0;
  for (; i < n; ++i) {
    const char c = text_[i];
    if (quote) {
      if (c == quote) quote = 0;
    } else if (c == '"' || c == '\'') {
      quote = c;
    } else if (c == '>') {
      break;
    }
  }
  at_ = i < n ? i + 1 : n;
  if (script) at_ = After(text_, at_, "</script");
  if (style) at_ = After(text_, at_, "</style");
}

bool WordWalker::Next(WordSpan& word) {
  const std::size_t n = text_.size();
  while (at_ < n) {
    const unsigned char c = static_cast<unsigned char>(text_[at_]);
    if (c == '<' || c == '&') {
      SkipMarkup();
      continue;
    }
    if (!IsWordByte(c)) {
      ++at_;
      continue;
    }
    const std::size_t start = at_;
    while (at_ < n) {
      const unsigned char d = static_cast<unsigned char>(text_[at_]);
      if (IsWordByte(d)) {
        ++at_;
      } else if (d == '\'' && at_ + 1 < n &&
                 IsWordByte(static_cast<unsigned char>(text_[at_ + 1]))) {
        at_ += 2;  // an apostrophe inside a word: "don't"
      } else {
        break;
      }
    }
    const std::string_view w = text_.substr(start, at_ - start);
    if (!HasLetter(w)) continue;
    word = {start, at_ - start};
    return true;
  }
  return false;
}

}  // namespace tessarine
