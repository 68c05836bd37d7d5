#include "styles/CSSFunctions.h"

#include <algorithm>
#include <bit>
#include <cstdint>
#include <cstring>
#include <memory>

#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "styles/StyleState.h"

namespace tessarine {

namespace {

constexpr auto npos = std::string_view::npos;

std::string_view TrimBlanks(std::string_view s) {
  while (!s.empty() && s.front() == ' ') s.remove_prefix(1);
  while (!s.empty() && s.back() == ' ') s.remove_suffix(1);
  return s;
}

// The text without its tabs, carriage returns and line feeds. Runs of kept bytes are copied
// whole: this runs over every rule of a sheet.
std::string RemoveLineBreaksAndTabs(std::string_view s) {
  std::string out;
  out.reserve(s.size());
  std::size_t from = 0;
  for (std::size_t i = 0; i < s.size(); ++i) {
    if (s[i] != '\t' && s[i] != '\r' && s[i] != '\n') continue;
    out.append(s.data() + from, i - from);
    from = i + 1;
  }
  out.append(s.data() + from, s.size() - from);
  return out;
}

constexpr std::uint64_t kOnes = 0x0101010101010101ull;
constexpr std::uint64_t kHigh = 0x8080808080808080ull;

// The top bit of each byte of `x` that is `c`, for the lowest such byte at least.
std::uint64_t BytesEqual(std::uint64_t x, char c) {
  const std::uint64_t y = x ^ (static_cast<unsigned char>(c) * kOnes);
  return (y - kOnes) & ~y & kHigh;
}

bool IsLineBreakOrTab(char c) {
  return c == '\t' || c == '\r' || c == '\n';
}

// The one-line form of declarations added to `out`: tabs and line breaks out, and the first
// blank behind each semicolon dropped; `afterSemicolon` follows every semicolon. Eight
// bytes at a step: a step stores all eight and keeps those before the first byte to act on.
// This runs over every rule of a sheet, both ways.
void AppendOneLine(std::string& out, std::string_view s, std::string_view afterSemicolon) {
  const std::size_t kept = out.size();
  // Room for a semicolon in every byte, and for the last step's store.
  out.resize(kept + s.size() * (1 + afterSemicolon.size()) + 8);
  char* to = out.data() + kept;
  const char* p = s.data();
  const char* const end = p + s.size();
  while (p < end) {
    if (end - p >= 8) {
      std::uint64_t x;
      std::memcpy(&x, p, 8);
      std::memcpy(to, &x, 8);
      const std::uint64_t hit =
          BytesEqual(x, '\t') | BytesEqual(x, '\r') | BytesEqual(x, '\n') | BytesEqual(x, ';');
      const std::size_t ordinary = hit ? std::countr_zero(hit) / 8 : 8;
      p += ordinary;
      to += ordinary;
      if (!hit) continue;
    } else if (!IsLineBreakOrTab(*p) && *p != ';') {
      *to++ = *p++;
      continue;
    }
    if (*p++ != ';') continue;  // a tab or line break goes
    *to++ = ';';
    for (const char c : afterSemicolon) *to++ = c;
    // The first blank behind it goes too, line breaks and tabs between not counting.
    while (p < end && IsLineBreakOrTab(*p)) ++p;
    if (p < end && *p == ' ') ++p;
  }
  out.resize(static_cast<std::size_t>(to - out.data()));
}

// Tabs and line breaks removed, then the blanks at both ends.
std::string SelectorText(std::string_view s) {
  return std::string(TrimBlanks(RemoveLineBreaksAndTabs(s)));
}

}  // namespace

bool IsBlankGap(std::string_view gap) {
  bool wantLf = false;
  for (char c : gap) {
    if (c == ' ' || c == '\t') continue;
    if (wantLf) {
      if (c != '\n') return false;
      wantLf = false;
    } else if (c == '\r') {
      wantLf = true;
    } else {
      return false;
    }
  }
  return !wantLf;
}

std::string_view DocumentStyleSheet(std::string_view text, std::string_view caption) {
  if (caption.find(".css") != npos) return text;
  const std::size_t style = FindNoCase(text, "<STYLE");
  if (style == npos) return {};
  const std::size_t open = text.find('>', style);
  const std::size_t close = FindNoCase(text, "</STYLE", style);
  if (open == npos || close == npos || close <= open) return {};
  return text.substr(open + 1, close - open - 1);
}

std::string GetDocumentStyleSheet(Application& app) {
  DocumentWindow* w = app.ActiveDocument();
  if (!w) return {};
  return std::string(DocumentStyleSheet(w->Edit().View(), w->Caption()));
}

namespace {

// Calls `rule(selector stretch, declarations)` for every closed rule, in order.
template <typename Visit>
void ForEachStyleRule(std::string_view sheet, Visit&& rule) {
  std::size_t previousEnd = 0;  // where the next selector begins
  std::size_t start = 0;
  while (start < sheet.size()) {
    const std::size_t open = sheet.find('{', start);
    if (open == npos) break;
    const std::size_t close = sheet.find('}', open + 1);
    if (close == npos) break;
    rule(sheet.substr(previousEnd, open - previousEnd), sheet.substr(open + 1, close - open - 1));
    previousEnd = close + 1;
    // The character just behind the "}" is never looked at for the next "{".
    start = close + 2;
  }
}

}  // namespace

std::vector<StyleRule> ScanStyleRules(std::string_view sheet) {
  std::vector<StyleRule> rules;
  ForEachStyleRule(sheet, [&rules](std::string_view selector, std::string_view declarations) {
    rules.push_back({SelectorText(selector), std::string(declarations)});
  });
  return rules;
}

namespace {

// The styles read from one sheet are carved from shared blocks: one allocation for many
// rules, where a style apiece would be a large allocation each (and a heap clean-up each).
// The blocks go with the last of their styles.
class StyleBlocks {
 public:
  void* Take(std::size_t size, std::size_t align) {
    used_ = (used_ + align - 1) / align * align;
    if (blocks_.empty() || used_ + size > kBlockSize) {
      blocks_.emplace_back(new std::byte[std::max(size, kBlockSize)]);  // not cleared
      used_ = 0;
    }
    void* at = blocks_.back().get() + used_;
    used_ += size;
    return at;
  }

 private:
  // Under the size for which the heap takes fresh pages from the system every time.
  static constexpr std::size_t kBlockSize = 60 * 1024;
  std::vector<std::unique_ptr<std::byte[]>> blocks_;
  std::size_t used_ = 0;
};

template <typename T>
struct BlockAllocator {
  using value_type = T;
  explicit BlockAllocator(std::shared_ptr<StyleBlocks> b) : blocks(std::move(b)) {}
  template <typename U>
  BlockAllocator(const BlockAllocator<U>& other) : blocks(other.blocks) {}
  T* allocate(std::size_t n) { return static_cast<T*>(blocks->Take(sizeof(T) * n, alignof(T))); }
  void deallocate(T*, std::size_t) {}
  template <typename U>
  bool operator==(const BlockAllocator<U>& other) const {
    return blocks == other.blocks;
  }
  std::shared_ptr<StyleBlocks> blocks;
};

void ParseInto(StyleState& state, std::shared_ptr<CSSstyle> made, const std::string& selector,
               std::string&& declarations);

}  // namespace

std::vector<std::string> LoadStyleRules(StyleState& state, std::string_view sheet) {
  std::vector<std::string> selectors;
  // Every rule has a "{": their count bounds the rules.
  std::size_t braces = 0;
  for (std::size_t at = sheet.find('{'); at != npos; at = sheet.find('{', at + 1)) ++braces;
  selectors.reserve(braces);
  state.Styles.Reserve(state.Styles.Count() + braces);
  const BlockAllocator<CSSstyle> blocks(std::make_shared<StyleBlocks>());
  ForEachStyleRule(sheet, [&](std::string_view selectorText, std::string_view declarations) {
    std::string oneLine;
    // Room for a declaration or two more, as a changed rule is written over its old text.
    oneLine.reserve(declarations.size() + 40);
    AppendOneLine(oneLine, declarations, {});
    std::string selector = SelectorText(selectorText);
    ParseInto(state, std::allocate_shared<CSSstyle>(blocks), selector, std::move(oneLine));
    selectors.push_back(std::move(selector));
  });
  return selectors;
}

std::string FindStyleDefinition(std::string_view selector, std::string_view sheet) {
  const std::string upper = UCase(sheet);
  const std::string wanted = UCase(selector);
  std::size_t start = 0;
  while (start < sheet.size()) {
    const std::size_t match = upper.find(wanted, start);
    if (match == npos) return {};
    const std::size_t open = sheet.find('{', match);
    if (open == npos) return {};
    const std::size_t matchEnd = match + wanted.size();
    if (open >= matchEnd && IsBlankGap(sheet.substr(matchEnd, open - matchEnd))) {
      const std::size_t close = sheet.find('}', match);
      if (close == npos || close < open) return {};
      return RemoveLineBreaksAndTabs(sheet.substr(open + 1, close - open - 1));
    }
    start = open + 1;
  }
  return {};
}

void SplitValueAndUnit(std::string_view value, std::string& unit, std::string& number) {
  const std::string_view v = TrimBlanks(value);
  auto isDigit = [](char c) { return c >= '0' && c <= '9'; };
  const bool digitFirst = !v.empty() && isDigit(v.front());
  std::size_t stop = npos;
  for (std::size_t i = 0; i < v.size(); ++i)
    if (isDigit(v[i]) != digitFirst) {
      stop = i;
      break;
    }
  if (stop == npos) {
    number = digitFirst ? std::string(v) : std::string();
    unit = digitFirst ? std::string() : std::string(v);
  } else if (digitFirst) {
    number = std::string(TrimBlanks(v.substr(0, stop)));
    unit = std::string(TrimBlanks(v.substr(stop)));
  } else {
    // The unit takes the first digit as well, and the number loses the value's last
    // character: ".5em" gives ".5" and "5e". Pages were written against this.
    unit = std::string(TrimBlanks(v.substr(0, stop + 1)));
    number = std::string(v.substr(stop, v.size() - stop - 1));
  }
}

void ParseStyleDefinition(StyleState& state, const std::string& selector,
                          const std::string& declarations) {
  ParseStyleDefinition(state, selector, std::string(declarations));
}

void ParseStyleDefinition(StyleState& state, const std::string& selector,
                          std::string&& declarations) {
  ParseInto(state, std::make_shared<CSSstyle>(), selector, std::move(declarations));
}

namespace {

void ParseInto(StyleState& state, std::shared_ptr<CSSstyle> made, const std::string& selector,
               std::string&& declarations) {
  made->StyleName = selector;
  made->Definition = std::move(declarations);
  // A style that is not taken is filled, then lost with the dialog, without name or text.
  state.CurrentStyle = state.Styles.Add(made, selector) ? made : std::make_shared<CSSstyle>();
  CSSstyle& s = *state.CurrentStyle;
  const std::string_view text = made->Definition;

  std::string_view rest = text;
  while (true) {
    const std::size_t semicolon = rest.find(';');
    const std::string_view piece = TrimBlanks(rest.substr(0, semicolon));
    const std::size_t colon = piece.find(':');
    if (colon != npos) {
      const std::string_view name = TrimBlanks(piece.substr(0, colon));
      const std::string_view value = TrimBlanks(piece.substr(colon + 1));
      // Property names are short: fold them without a heap string.
      char folded[24];
      std::string_view key;
      if (name.size() <= sizeof folded) {
        for (std::size_t i = 0; i < name.size(); ++i)
          folded[i] =
              (name[i] >= 'A' && name[i] <= 'Z') ? static_cast<char>(name[i] + 32) : name[i];
        key = std::string_view(folded, name.size());
      }
      auto measure = [&value](std::string& number, std::string& unit) {
        SplitValueAndUnit(value, unit, number);
      };
      if (key == "font-size") {
        measure(s.FontSize, s.FontSizeUnit);
      } else if (key == "font-weight") {
        std::string number;
        SplitValueAndUnit(value, s.FontWeight, number);  // "bold" stays, 700 is lost
      } else if (key == "font-family") {
        s.FontFamily = value;
      } else if (key == "font-style") {
        s.FontStyle = value;
      } else if (key == "font-variant") {
        s.FontVariant = value;
      } else if (key == "color") {
        s.Color = value;
      } else if (key == "text-decoration") {
        s.TextDecoration = value;
      } else if (key == "text-transform") {
        s.TextTransform = value;
      } else if (key == "text-indent") {
        measure(s.TextIndent, s.TextIndentUnit);
      } else if (key == "letter-spacing") {
        measure(s.LetterSpacing, s.LetterSpacingUnit);
      } else if (key == "line-height") {
        measure(s.LineHeight, s.LineHeightUnit);
      } else if (key == "text-align") {
        s.TextAlign = value;
      } else if (key == "vertical-align") {
        s.VerticalAlign = value;
      } else if (key == "background") {
        s.BackgroundImage = value;
      } else if (key == "background-color") {
        s.BackgroundColor = value;
      } else if (key == "width") {
        measure(s.StyleWidth, s.StyleWidthUnit);
      } else if (key == "height") {
        measure(s.StyleHeight, s.StyleHeightUnit);
      } else if (key == "left") {
        measure(s.StyleLeft, s.StyleLeftUnit);
      } else if (key == "top") {
        measure(s.StyleTop, s.StyleTopUnit);
      } else if (key == "position") {
        s.Position = value;
      } else if (key == "visibility") {
        s.Visibility = value;
      } else if (key == "z-index") {
        s.ZIndex = value;
      } else if (!name.empty() && !value.empty()) {
        s.ExtraAttributes.append(name).append(":").append(value).append(";\r\n");
      }
    }
    if (semicolon == npos) break;
    rest.remove_prefix(semicolon + 1);
  }
}

}  // namespace

std::string FormattedStyleDefinition(std::string_view declarations, int mode) {
  std::string d;
  if (mode == kStyleForDisplay) {
    d = "\r\n    ";
    AppendOneLine(d, declarations, "\r\n    ");
  } else if (mode == kStyleForDocument) {
    AppendDocumentLayout(d, declarations);
  } else {
    AppendOneLine(d, declarations, {});
  }
  return d;
}

void AppendDocumentLayout(std::string& out, std::string_view declarations) {
  const std::size_t kept = out.size();
  out += '\t';
  AppendOneLine(out, declarations, "\r\n\t");
  // Drops the last line break and tab; too short a text is left as it is.
  if (out.size() - kept >= 3) out.resize(out.size() - 3);
}

void FormatStyleDefinition(std::string& declarations, int mode) {
  declarations = FormattedStyleDefinition(declarations, mode);
}

namespace {

// Where the rule of an upper-cased selector starts in the upper-cased text, and its "{":
// the first match that has only white space up to the next "{". A later match before that
// "{" is never looked at: the search goes on from the "{".
bool FindRule(std::string_view upper, std::string_view selector, std::size_t& match,
              std::size_t& open) {
  std::size_t start = 0;
  while (start < upper.size()) {
    match = upper.find(selector, start);
    if (match == npos) return false;
    open = upper.find('{', match);
    if (open == npos) return false;
    const std::size_t matchEnd = match + selector.size();
    if (open >= matchEnd && IsBlankGap(upper.substr(matchEnd, open - matchEnd))) return true;
    start = std::max(open, match + 1);
  }
  return false;
}

}  // namespace

std::vector<TextEdit> StyleWriteEdits(std::string_view text, std::string_view selector,
                                      std::string_view declarations, bool embedded, bool remove) {
  std::vector<TextEdit> edits;
  std::string upper = UCase(text);
  std::string changed;
  if (embedded && upper.find("<STYLE") == npos) {
    TextEdit block;
    const std::size_t head = upper.find("</HEAD>");
    if (head != npos && head > 0) {
      block = {static_cast<std::int64_t>(head), 0,
               "\r\n<STYLE type=\"text/css\">\r\n\r\n</STYLE>\r\n\r\n"};
    } else {
      // Seven past the tag's 1-based position, counted as a 0-based offset: one character
      // beyond the tag, as pages made with it have it.
      const std::size_t html = upper.find("<HTML>");
      const std::size_t at = (html == npos ? 0 : html + 1) + 6;
      block = {static_cast<std::int64_t>(std::min(at, text.size())), 0,
               "\r\n<HEAD>\r\n<STYLE type='text/css'>\r\n\r\n</STYLE>\r\n\r\n</HEAD>"};
    }
    changed = std::string(text);
    ApplyTextEdits(changed, {block});
    edits.push_back(std::move(block));
    text = changed;
    upper = UCase(text);
  }

  std::size_t insertAt = upper.size();
  if (embedded) {
    const std::size_t style = upper.find("<STYLE");
    const std::size_t gt = style == npos ? npos : upper.find('>', style);
    insertAt = gt == npos ? 0 : gt + 1;
  }

  const std::string wanted = UCase(selector);
  std::size_t match = 0, open = 0;
  if (FindRule(upper, wanted, match, open)) {
    const std::size_t close = upper.find('}', match);
    if (remove) {
      if (close != npos)
        edits.push_back(
            {static_cast<std::int64_t>(match), static_cast<std::int64_t>(close - match + 1), ""});
    } else {
      // A "}" missing, or standing before the "{", leaves nothing selected: the new body
      // goes in before the old one.
      const std::size_t length = (close == npos || close < open) ? 0 : close - open + 1;
      edits.push_back({static_cast<std::int64_t>(open), static_cast<std::int64_t>(length),
                       "{\r\n" + std::string(declarations) + "\r\n}"});
    }
  } else {
    // Also for a removal: removing a rule that is not there writes it.
    edits.push_back(
        {static_cast<std::int64_t>(insertAt), 0,
         "\r\n" + std::string(selector) + "\r\n{\r\n" + std::string(declarations) + "\r\n}\r\n"});
  }
  return edits;
}

void ApplyTextEdits(std::string& text, const std::vector<TextEdit>& edits) {
  for (const TextEdit& e : edits) {
    const auto start = std::min<std::size_t>(static_cast<std::size_t>(e.start), text.size());
    text.replace(start, static_cast<std::size_t>(e.length), e.text);
  }
}

void WriteStyleDefinition(Application& app, const std::string& selector,
                          const std::string& declarations, bool embedded, bool remove) {
  EditControl* edit = app.ActiveEdit();
  if (!edit) return;
  for (const TextEdit& e :
       StyleWriteEdits(edit->View(), selector, declarations, embedded, remove)) {
    edit->Select(e.start, e.length);
    edit->ReplaceSel(e.text);
  }
}

}  // namespace tessarine
