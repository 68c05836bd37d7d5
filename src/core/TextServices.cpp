#include "core/TextServices.h"

#include <algorithm>
#include <cstdint>
#include <cstring>

#include "core/Application.h"
#include "core/Styles.h"
#include "platform/EditControl.h"

namespace tessarine {

std::string LCase(std::string_view text) {
  std::string out(text);
  for (char& c : out)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  return out;
}

std::string UCase(std::string_view text) {
  std::string out(text.size(), '\0');
  UpperCaseInto(text.data(), text.size(), out.data());
  return out;
}

void UpperCaseInto(const char* from, std::size_t size, char* to) {
  constexpr std::uint64_t kOnes = 0x0101010101010101ull;
  constexpr std::uint64_t kHigh = 0x8080808080808080ull;
  std::size_t i = 0;
  for (; i + 8 <= size; i += 8) {
    std::uint64_t x;
    std::memcpy(&x, from + i, 8);
    // Each byte's top bit: its low seven bits reach 'a', pass 'z', or it is no ASCII byte.
    const std::uint64_t low7 = x & ~kHigh;
    const std::uint64_t fromA = low7 + (0x80 - 'a') * kOnes;
    const std::uint64_t pastZ = low7 + (0x80 - 'z' - 1) * kOnes;
    x ^= (fromA & ~pastZ & ~x & kHigh) >> 2;
    std::memcpy(to + i, &x, 8);
  }
  for (; i < size; ++i) {
    const char c = from[i];
    to[i] = (c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c;
  }
}

namespace {

char Upper(char c) {
  return (c >= 'a' && c <= 'z') ? static_cast<char>(c - 32) : c;
}

}  // namespace

bool EqualsNoCase(std::string_view a, std::string_view b) {
  if (a.size() != b.size()) return false;
  for (std::size_t i = 0; i < a.size(); ++i)
    if (Upper(a[i]) != Upper(b[i])) return false;
  return true;
}

std::size_t FindNoCase(std::string_view text, std::string_view needle, std::size_t from) {
  if (from > text.size()) return std::string_view::npos;
  if (needle.empty()) return from;
  if (needle.size() > text.size() - from) return std::string_view::npos;
  // Places to try are found with memchr, in both cases for a letter.
  const char first = Upper(needle[0]);
  const char other = (first >= 'A' && first <= 'Z') ? static_cast<char>(first + 32) : first;
  const std::string_view rest = needle.substr(1);
  const char* const begin = text.data();
  const char* const last = begin + (text.size() - needle.size());  // the last place to try
  auto next = [last](const char* at, char c) {
    const void* hit =
        at <= last ? std::memchr(at, c, static_cast<std::size_t>(last - at) + 1) : nullptr;
    return static_cast<const char*>(hit);
  };
  const char* a = next(begin + from, first);
  const char* b = other == first ? nullptr : next(begin + from, other);
  while (a || b) {
    const char* at = !b || (a && a < b) ? a : b;
    if (EqualsNoCase(std::string_view(at + 1, rest.size()), rest))
      return static_cast<std::size_t>(at - begin);
    if (at == a)
      a = next(a + 1, first);
    else
      b = next(b + 1, other);
  }
  return std::string_view::npos;
}

long long InStrNoCase(long long start, std::string_view text, std::string_view needle) {
  if (start < 1) start = 1;
  const auto lower = [](char c) { return (c >= 'A' && c <= 'Z') ? static_cast<char>(c + 32) : c; };
  const auto from =
      text.begin() + std::min<long long>(start - 1, static_cast<long long>(text.size()));
  const auto it = std::search(from, text.end(), needle.begin(), needle.end(),
                              [&](char a, char b) { return lower(a) == lower(b); });
  if (it == text.end() && !needle.empty()) return 0;
  return static_cast<long long>(it - text.begin()) + 1;
}

void EmptyUndoBuffer(Application& app) {
  if (EditControl* e = app.ActiveEdit()) e->EmptyUndoBuffer();
}

namespace {
std::string Cased(Application& app, const std::string& text, bool keepCase) {
  return (keepCase || app.settings.TagCaseUpper) ? text : LCase(text);
}
}  // namespace

void InsertAtCaret(Application& app, const std::string& text, bool keepCase) {
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  EmptyUndoBuffer(app);
  e->ReplaceSel(Cased(app, text, keepCase));
  // The insertion itself is no step for Undo either: Undo stops here.
  EmptyUndoBuffer(app);
  e->SetFocus();
  app.textServices.ReplaceSelectionOnce = false;
}

void WrapSelection(Application& app, const std::string& startTag, const std::string& endTag,
                   bool keepCase) {
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  TextServiceState& ts = app.textServices;
  EmptyUndoBuffer(app);
  const std::string selected = e->SelText();
  if (selected.empty()) {
    const std::string endText = Cased(app, endTag, keepCase);
    e->ReplaceSel(Cased(app, startTag + endTag, keepCase));
    e->SetFocus();
    e->SetSelStart(e->SelStart() - static_cast<Pos>(endText.size()));
  } else if (!ts.ReplaceSelectionOnce) {
    const Pos n = static_cast<Pos>(selected.size());
    const std::string endText = Cased(app, endTag, keepCase);
    e->ReplaceSel(Cased(app, startTag, keepCase) + selected + endText);
    e->SetSelStart(e->SelStart() - (n + static_cast<Pos>(endText.size())));
    e->SetSelLength(n);
    e->SetFocus();
  } else {
    e->ReplaceSel(Cased(app, startTag, keepCase));
  }
  EmptyUndoBuffer(app);
  ts.LastStartTag = startTag;
  ts.LastEndTag = endTag;
  ts.ReplaceSelectionOnce = false;
}

void InsertInHeadAndBody(Application& app, std::string& headText, std::string& bodyText) {
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  EmptyUndoBuffer(app);
  const Style insertion = e->InsertionStyle();
  const Style plain = MakeStyle(StyleKind::Plain, IsBold(insertion), IsItalic(insertion));
  if (!bodyText.empty()) {
    const Pos selStart = e->SelStart(), selLength = e->SelLength();
    const std::string text = e->Text();
    const long long b = InStrNoCase(1, text, "<BODY");
    const long long g = b ? InStrNoCase(b, text, ">") : 0;
    const long long end = g ? InStrNoCase(g, text, "</BODY") : 0;
    // Inside the body: from just behind the body tag up to its end tag.
    if (g > 0 && end > 0 && selStart >= g && selStart < end) {
      e->Select(selStart, selLength);
    } else {
      e->SetSelStart(g);
      bodyText = "\r\n\r\n" + bodyText;
    }
    e->ReplaceSel(bodyText);
  }
  if (!headText.empty()) {
    const std::string text = e->Text();
    const long long h = InStrNoCase(1, text, "</HEAD>");
    if (h > 1) {
      e->SetSelStart(h - 1);
      headText = "\r\n" + headText;
    } else {
      // One past the end of "<HTML>", and position 6 when there is none.
      e->SetSelStart(InStrNoCase(1, text, "<HTML>") + 6);
      headText = "\r\n\r\n<HEAD>\r\n" + headText + "\r\n</HEAD>";
    }
    e->SetInsertionStyle(plain);
    e->ReplaceSel(headText);
  }
  EmptyUndoBuffer(app);
}

}  // namespace tessarine
