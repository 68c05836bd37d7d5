#include "sitetools/HtmlStripper.h"

#include <array>
#include <cstring>

namespace tessarine {
namespace {

constexpr std::size_t kLineLength = 80;
constexpr std::string_view kLineBreak = "\r\n";

char Upper(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 'a' + 'A') : c;
}
char Lower(char c) {
  return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

// Does the text at `at` start with `word` (given in the fold's case)?
bool StartsFolded(std::string_view text, std::size_t at, std::string_view word, bool upper) {
  if (text.size() - at < word.size()) return false;
  for (std::size_t k = 0; k < word.size(); ++k) {
    const char c = text[at + k];
    if ((upper ? Upper(c) : Lower(c)) != word[k]) return false;
  }
  return true;
}

struct TagRule {
  std::string_view prefix;  // upper case, after "<"
  std::string_view emitted;
  std::size_t skip;
};

const std::string& Hyphens() {
  static const std::string rule =
      std::string(kLineBreak) + std::string(93, '-') + std::string(kLineBreak);
  return rule;
}

struct EntityRule {
  std::string_view name;  // lower case, after "&"
  std::string_view emitted;
};

// The buffer and its length in characters; a CR LF counts as two, as a text's length does.
class LineBuffer {
 public:
  LineBuffer(std::string& out, bool utf8) : out_(out), utf8_(utf8) {}
  void Append(std::string_view bytes) {
    buffer_.append(bytes);
    if (!utf8_) {
      length_ += bytes.size();
      return;
    }
    for (char c : bytes)
      if ((static_cast<unsigned char>(c) & 0xC0) != 0x80) ++length_;
  }
  void Append(char c) { Append(std::string_view(&c, 1)); }
  // The end of a step: a buffer of exactly 80 characters becomes a line.
  void EndStep() {
    if (length_ == kLineLength) Flush();
  }
  void Flush() {
    out_.append(buffer_);
    out_.append(kLineBreak);
    buffer_.clear();
    length_ = 0;
  }

 private:
  std::string& out_;
  bool utf8_;
  std::string buffer_;
  std::size_t length_ = 0;
};

// The length of the UTF-8 sequence that starts with `lead`, 1 for a stray byte.
std::size_t SequenceLength(unsigned char lead) {
  if (lead >= 0xF0 && lead < 0xF8) return 4;
  if (lead >= 0xE0) return lead < 0xF0 ? 3 : 1;
  if (lead >= 0xC0) return 2;
  return 1;
}

}  // namespace

bool IsValidUtf8(std::string_view bytes) {
  std::size_t i = 0;
  const std::size_t n = bytes.size();
  while (i < n) {
    const unsigned char c = static_cast<unsigned char>(bytes[i]);
    if (c < 0x80) {
      ++i;
      continue;
    }
    std::size_t len;
    unsigned int cp;
    if (c >= 0xC2 && c <= 0xDF) {
      len = 2;
      cp = c & 0x1F;
    } else if (c >= 0xE0 && c <= 0xEF) {
      len = 3;
      cp = c & 0x0F;
    } else if (c >= 0xF0 && c <= 0xF4) {
      len = 4;
      cp = c & 0x07;
    } else {
      return false;
    }
    if (n - i < len) return false;
    for (std::size_t k = 1; k < len; ++k) {
      const unsigned char t = static_cast<unsigned char>(bytes[i + k]);
      if ((t & 0xC0) != 0x80) return false;
      cp = (cp << 6) | (t & 0x3F);
    }
    if ((len == 3 && cp < 0x800) || (len == 4 && (cp < 0x10000 || cp > 0x10FFFF)) ||
        (cp >= 0xD800 && cp <= 0xDFFF))
      return false;
    i += len;
  }
  return true;
}

std::string StripHtml(std::string_view page, bool utf8) {
  static const std::array<TagRule, 6> kTags{{{"BR>", kLineBreak, 3},
                                             {"HR", Hyphens(), 2},
                                             {"LI>", kLineBreak, 3},
                                             {"/H", kLineBreak, 4},
                                             {"/CENTER", kLineBreak, 7},
                                             {"IMG", " [IMAGE] ", 0}}};
  static const std::string ntildeLatin(1, static_cast<char>(241));
  const std::string_view ntilde = utf8 ? std::string_view("\xC3\xB1") : ntildeLatin;
  const std::array<EntityRule, 15> entities{{{"quot;", "\""},
                                             {"nbsp;", " "},
                                             {"lt;", "<"},
                                             {"gt;", ">"},
                                             {"amp;", "&"},
                                             {"ouml;", "o"},
                                             {"ntilde;", ntilde},
                                             {"ae", "ae"},
                                             {"a", "a"},
                                             {"e", "e"},
                                             {"i", "i"},
                                             {"o", "o"},
                                             {"u", "u"},
                                             {"c", "c"},
                                             {"y", "y"}}};

  std::string out;
  out.reserve(page.size() + page.size() / 40 + 2);
  LineBuffer buffer(out, utf8);
  const std::size_t n = page.size();
  std::size_t i = 0;
  while (i < n) {
    const char c = page[i];
    if (c == '<') {
      std::size_t at = i + 1;
      for (const TagRule& rule : kTags) {
        if (StartsFolded(page, i + 1, rule.prefix, true)) {
          buffer.Append(rule.emitted);
          at = i + rule.skip;
          break;
        }
      }
      // Nothing more is copied up to and with the next ">" (the end when there is none).
      const void* close = at < n ? std::memchr(page.data() + at, '>', n - at) : nullptr;
      i = close ? static_cast<std::size_t>(static_cast<const char*>(close) - page.data()) + 1 : n;
    } else if (c == '\r' && i + 1 < n && page[i + 1] == '\n') {
      buffer.Append(' ');
      i += 2;
    } else if (c == '&') {
      ++i;
      for (const EntityRule& rule : entities) {
        if (StartsFolded(page, i, rule.name, false)) {
          buffer.Append(rule.emitted);
          i += rule.name.size();
          break;
        }
      }
    } else {
      // One character per step; in a UTF-8 page a character is its whole sequence.
      std::size_t len = utf8 ? SequenceLength(static_cast<unsigned char>(c)) : 1;
      if (len > n - i) len = n - i;
      buffer.Append(page.substr(i, len));
      i += len;
    }
    buffer.EndStep();
  }
  buffer.Flush();
  return out;
}

}  // namespace tessarine
