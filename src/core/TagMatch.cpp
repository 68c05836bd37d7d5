#include "core/TagMatch.h"

#include <algorithm>
#include <array>
#include <string>

namespace tessarine {
namespace {

constexpr Pos kTagReach = 4096;  // the longest tag the caret can stand in

bool IsNameChar(char c) {
  return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '-' ||
         c == ':' || c == '_' || c == '.';
}

char Lower(char c) {
  return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c;
}

bool SameName(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(),
                                            [](char x, char y) { return Lower(x) == Lower(y); });
}

bool IsVoid(std::string_view name) {
  static constexpr std::array<std::string_view, 16> kVoid = {
      "area", "base", "br",    "col",    "embed", "hr",  "img",      "input",
      "link", "meta", "param", "source", "track", "wbr", "basefont", "frame"};
  return std::any_of(kVoid.begin(), kVoid.end(),
                     [&](std::string_view v) { return SameName(v, name); });
}

// A tag read at `lt` (a "<" in `text`).
struct Tag {
  bool ok = false;
  bool closing = false;
  bool selfClosing = false;
  std::string_view name;
  std::size_t nameEnd = 0;  // one past the name
  std::size_t end = 0;      // one past ">"
};

Tag ReadTag(std::string_view text, std::size_t lt, std::size_t limit) {
  Tag t;
  std::size_t p = lt + 1;
  if (p < text.size() && text[p] == '/') {
    t.closing = true;
    ++p;
  }
  const std::size_t nameStart = p;
  while (p < text.size() && IsNameChar(text[p])) ++p;
  if (p == nameStart || !((text[nameStart] >= 'a' && text[nameStart] <= 'z') ||
                          (text[nameStart] >= 'A' && text[nameStart] <= 'Z')))
    return t;
  t.name = text.substr(nameStart, p - nameStart);
  t.nameEnd = p;
  // The tag's end, with quoted values skipped; none within reach is no tag.
  char quote = 0;
  const std::size_t stop = std::min(text.size(), limit);
  for (; p < stop; ++p) {
    const char c = text[p];
    if (quote) {
      if (c == quote) quote = 0;
    } else if (c == '"' || c == '\'') {
      quote = c;
    } else if (c == '<') {
      return t;  // another tag began first
    } else if (c == '>') {
      t.selfClosing = p > 0 && text[p - 1] == '/';
      t.end = p + 1;
      t.ok = true;
      return t;
    }
  }
  return t;
}

}  // namespace

TagMatch FindMatchingTag(std::string_view text, Pos offset, Pos caret, Pos reach) {
  TagMatch m;
  const Pos local = caret - offset;
  if (text.empty() || local < 0 || local > static_cast<Pos>(text.size())) return m;
  const auto at = static_cast<std::size_t>(local);

  // The "<" of the tag the caret stands in or just behind.
  std::size_t lt = std::string_view::npos;
  const std::size_t back = at > static_cast<std::size_t>(kTagReach) ? at - kTagReach : 0;
  for (std::size_t p = std::min(at, text.size() ? text.size() - 1 : 0) + 1; p-- > back;) {
    if (text[p] == '>' && p + 1 < at) break;  // a tag closed before the caret's
    if (text[p] == '<') {
      lt = p;
      break;
    }
  }
  if (lt == std::string_view::npos) return m;
  const Tag tag = ReadTag(text, lt, lt + kTagReach);
  if (!tag.ok || tag.selfClosing || IsVoid(tag.name)) return m;
  if (at > tag.end) return m;
  m.tagStart = offset + static_cast<Pos>(lt);
  m.tagLength = static_cast<Pos>(tag.nameEnd - lt);

  int depth = 1;
  if (!tag.closing) {
    const std::size_t limit = std::min(text.size(), tag.end + static_cast<std::size_t>(reach));
    for (std::size_t p = tag.end; p < limit; ++p) {
      if (text[p] != '<') continue;
      if (text.compare(p, 4, "<!--") == 0) {
        const std::size_t close = text.find("-->", p + 4);
        if (close == std::string_view::npos) return m;
        p = close + 2;
        continue;
      }
      const Tag t = ReadTag(text, p, p + kTagReach);
      if (!t.ok || !SameName(t.name, tag.name) || t.selfClosing) continue;
      depth += t.closing ? -1 : 1;
      if (depth == 0) {
        m.matchStart = offset + static_cast<Pos>(p);
        m.matchLength = static_cast<Pos>(t.nameEnd - p);
        m.found = true;
        return m;
      }
      p = t.end - 1;
    }
    return m;
  }
  const std::size_t floor = lt > static_cast<std::size_t>(reach) ? lt - reach : 0;
  for (std::size_t p = lt; p-- > floor;) {
    if (text[p] == '>' && p >= 2 && text.compare(p - 2, 3, "-->") == 0) {
      const std::size_t open = text.rfind("<!--", p - 2);
      if (open == std::string_view::npos || open < floor) return m;
      p = open;
      continue;
    }
    if (text[p] != '<') continue;
    const Tag t = ReadTag(text, p, lt);
    if (!t.ok || !SameName(t.name, tag.name) || t.selfClosing) continue;
    depth += t.closing ? 1 : -1;
    if (depth == 0) {
      m.matchStart = offset + static_cast<Pos>(p);
      m.matchLength = static_cast<Pos>(t.nameEnd - p);
      m.found = true;
      return m;
    }
  }
  return m;
}

}  // namespace tessarine
