#include "core/Find.h"

#include <algorithm>
#include <array>
#include <cstring>

#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"

namespace tessarine {

const char* const kFinishedSearching = "Tessarine has finished searching the document.";

namespace {

using FoldTable = std::array<unsigned char, 256>;

// Folding to upper case the byte that is compared, never the whole text.
FoldTable MakeFold(bool matchCase) {
  FoldTable t{};
  for (int c = 0; c < 256; ++c)
    t[static_cast<size_t>(c)] =
        static_cast<unsigned char>(!matchCase && c >= 'a' && c <= 'z' ? c - 32 : c);
  return t;
}

bool EqualAt(const unsigned char* s, const unsigned char* needle, size_t n, const FoldTable& f) {
  for (size_t i = 0; i < n; ++i)
    if (f[s[i]] != f[needle[i]]) return false;
  return true;
}

// The callers that locate page structure search quietly.
bool IsSilentNeedle(std::string_view needle) {
  const std::string upper = UCase(needle);
  return upper == "<BODY" || upper == "<TITLE>" || upper == "<HEAD>" || upper == "</HEAD>";
}

Pos FromOf(const FindState& f, Pos start) {
  // Past the last match, so that it isn't found again; a fresh search takes the caret.
  Pos from = start == f.LastFoundStart ? start + 1 : start;
  if (f.NewSearch) from = start;
  return from;
}

void ShowFinished(Application& app) {
  const FindState& f = app.editing.find;
  app.messages.Show(f.ReplaceCount != 0 ? f.ReplaceSummary : kFinishedSearching, MsgButtons::OK,
                    MsgIcon::None, app.title);
}

bool Conclude(Application& app, Pos found, std::string_view needle) {
  FindState& f = app.editing.find;
  EditControl* e = app.ActiveEdit();
  if (found >= 0) {
    if (e) e->Select(found, static_cast<Pos>(needle.size()));
  } else if (!IsSilentNeedle(needle)) {
    f.FindFinished = true;
    ShowFinished(app);
  }
  if (e) f.LastFoundStart = e->SelStart();
  f.NewSearch = false;
  return found >= 0;
}

}  // namespace

Pos SearchDown(std::string_view text, Pos from, std::string_view needle, bool matchCase) {
  const size_t len = text.size(), n = needle.size();
  if (from < 0) from = 0;
  if (static_cast<size_t>(from) > len) return -1;
  if (n == 0) return from;
  if (n > len - static_cast<size_t>(from)) return -1;
  const auto* s = reinterpret_cast<const unsigned char*>(text.data());
  const auto* nd = reinterpret_cast<const unsigned char*>(needle.data());
  const FoldTable fold = MakeFold(matchCase);
  const unsigned char first = nd[0];
  if (n == 1 && fold[first] == first && (matchCase || first < 'A' || first > 'Z')) {
    const void* hit = std::memchr(s + from, first, len - static_cast<size_t>(from));
    return hit ? static_cast<const unsigned char*>(hit) - s : -1;
  }
  // Horspool over folded bytes.
  std::array<size_t, 256> shift;
  shift.fill(n);
  for (size_t i = 0; i + 1 < n; ++i) {
    const unsigned char c = fold[nd[i]];
    shift[c] = n - 1 - i;
    // Both cases of a letter shift alike.
    if (!matchCase && c >= 'A' && c <= 'Z') shift[c + 32u] = n - 1 - i;
  }
  const unsigned char last = fold[nd[n - 1]];
  for (size_t i = static_cast<size_t>(from); i + n <= len;) {
    const unsigned char c = s[i + n - 1];
    if (fold[c] == last && EqualAt(s + i, nd, n - 1, fold)) return static_cast<Pos>(i);
    i += shift[c];
  }
  return -1;
}

Pos SearchUp(std::string_view text, Pos from, std::string_view needle, bool matchCase) {
  const auto len = static_cast<Pos>(text.size()), n = static_cast<Pos>(needle.size());
  const auto* s = reinterpret_cast<const unsigned char*>(text.data());
  const auto* nd = reinterpret_cast<const unsigned char*>(needle.data());
  const FoldTable fold = MakeFold(matchCase);
  // A piece cut short by the end of the text never matches.
  for (Pos i = std::min(from - 2, len - n); i >= 0; --i)
    if (EqualAt(s + i, nd, static_cast<size_t>(n), fold)) return i;
  return -1;
}

bool FindText(Application& app, Pos start, std::string_view text, std::string_view needle,
              int direction, bool matchCase) {
  FindState& f = app.editing.find;
  f.FindFinished = false;
  const Pos from = FromOf(f, start);
  const Pos found = direction != 0 ? SearchDown(text, from, needle, matchCase)
                                   : SearchUp(text, from, needle, matchCase);
  return Conclude(app, found, needle);
}

bool FindText(Application& app, Pos start, std::string_view needle, int direction, bool matchCase) {
  EditControl* e = app.ActiveEdit();
  if (!e) return false;
  FindState& f = app.editing.find;
  f.FindFinished = false;
  const Pos from = FromOf(f, start), length = e->Length(), n = static_cast<Pos>(needle.size());
  Pos found = -1;
  if (direction != 0) {
    // Only the text behind the start is read, where the control's gap usually lies already.
    if (from >= 0 && from <= length) {
      const Pos q = SearchDown(e->RangeView(from, length - from), 0, needle, matchCase);
      if (q >= 0) found = from + q;
    }
  } else {
    // Backwards in growing windows: the control's gap, left at the last edit, is crossed
    // only near the caret, never moved across the whole text.
    Pos limit = from, hi = std::min(length, from - 2 + n);
    for (Pos chunk = 64 * 1024; limit - 2 >= 0; chunk *= 2) {
      const Pos lo = std::max<Pos>(0, hi - chunk);
      const Pos q = SearchUp(e->RangeView(lo, hi - lo), limit - lo, needle, matchCase);
      if (q >= 0) {
        found = lo + q;
        break;
      }
      if (lo == 0) break;
      // Next, the pieces that start before this window.
      limit = lo + 1;
      hi = std::min(length, lo - 1 + n);
    }
  }
  return Conclude(app, found, needle);
}

bool ValidateFindReplace(const FindReplaceInputs& in) {
  return !in.txtFind.empty();
}

FindReplaceInputs LoadFindReplace(Application& app) {
  FindReplaceInputs in;
  app.editing.find.FindDirection = 1;
  in.optDirectionDown = true;
  in.chkCase = app.editing.find.FindMatchCase != 0;
  in.txtFind = app.editing.find.FindWhat;
  return in;
}

void cmdFind(Application& app, const FindReplaceInputs& in) {
  if (!ValidateFindReplace(in)) return;
  FindState& f = app.editing.find;
  f.FindWhat = in.txtFind;
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  e->SetFocus();
  FindText(app, e->SelStart(), f.FindWhat, f.FindDirection, f.FindMatchCase != 0);
}

void cmdReplace(Application& app, const FindReplaceInputs& in) {
  EditControl* e = app.ActiveEdit();
  if (!e) return;
  // Whatever is selected is replaced: it isn't compared with the text to find.
  if (e->SelLength() > 0)
    e->ReplaceSel(in.txtReplace);
  else
    cmdFind(app, in);
}

bool cmdReplaceAll(Application& app, const FindReplaceInputs& in) {
  if (!ValidateFindReplace(in)) return false;
  FindState& f = app.editing.find;
  f.ReplaceCount = 0;
  f.FindFinished = false;
  f.FindWhat = in.txtFind;
  bool hide = false;
  Pos previous = -1;
  while (!f.FindFinished) {
    EditControl* e = app.ActiveEdit();
    if (!e) break;
    e->SetFocus();
    bool found = FindText(app, e->SelStart(), f.FindWhat, f.FindDirection, f.FindMatchCase != 0);
    // Upwards, a replacement that holds the needle is met again behind the caret; the
    // search goes on from its start rather than replacing inside it for ever.
    if (found && f.FindDirection == 0 && previous >= 0 && e->SelStart() >= previous) {
      e->SetSelStart(previous);
      found = FindText(app, previous, f.FindWhat, f.FindDirection, f.FindMatchCase != 0);
    }
    // The page-structure needles miss silently, without FindFinished: a miss ends the
    // loop all the same, or the caret's empty selection would be replaced for ever.
    if (!found) {
      f.ReplaceCount = 0;
      hide = true;
      break;
    }
    previous = e->SelStart();
    ++f.ReplaceCount;
    f.ReplaceSummary = "Tessarine has completed searching the document.  A total of " +
                       std::to_string(f.ReplaceCount) + " replacements were made";
    e->ReplaceSel(in.txtReplace);
  }
  f.FindFinished = false;
  return hide;
}

void cmdCancel(Application& app, const FindReplaceInputs& in) {
  app.editing.find.FindWhat = in.txtFind;
  app.editing.find.FindMatchCase = in.chkCase ? 1 : 0;
}

void PrepareFindDialog(Application& app, FindReplaceInputs& in) {
  if (EditControl* e = app.ActiveEdit(); e && e->SelLength() > 0) in.txtFind = e->SelText();
  app.editing.find.NewSearch = true;
}

bool mnuSFindNext(Application& app) {
  FindState& f = app.editing.find;
  if (f.FindWhat.empty()) return false;
  if (EditControl* e = app.ActiveEdit())
    FindText(app, e->SelStart(), f.FindWhat, f.FindDirection, f.FindMatchCase != 0);
  return true;
}

std::vector<std::string> RebuildSearchHistory(const std::vector<std::string>& history,
                                              const std::string& text) {
  std::vector<std::string> out{text};
  const std::string key = UCase(text);
  for (const std::string& old : history) {
    if (out.size() >= 5) break;
    if (UCase(old) != key) out.push_back(old);
  }
  return out;
}

void SaveSearchHistory(SettingsStore& store, const std::vector<std::string>& history) {
  for (size_t i = 0; i < 5; ++i)
    store.SaveSetting("Miscellaneous", "SearchKeyword" + std::to_string(i + 1),
                      i < history.size() ? history[i] : "");
}

bool QuickFind(Application& app, const std::string& text, std::vector<std::string>& history) {
  if (text.empty()) return false;
  app.editing.find.FindWhat = text;
  if (EditControl* e = app.ActiveEdit()) {
    e->SetFocus();
    FindText(app, e->SelStart(), text, 1, false);
  }
  if (!history.empty() && history.front() == text) return false;
  history = RebuildSearchHistory(history, text);
  SaveSearchHistory(app.store, history);
  return true;
}

}  // namespace tessarine
