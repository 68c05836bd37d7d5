#pragma once
// Search within the active document: FindText under every caller, the Find/Replace
// dialog's commands, Find Next and the toolbar's find box with its history.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

class Application;
class SettingsStore;
using Pos = std::int64_t;

struct FindState {
  std::string FindWhat;            // the text of the last search
  std::int16_t FindDirection = 1;  // 1 down, 0 up
  std::int16_t FindMatchCase = 0;  // 1 when the case must match
  bool FindFinished = false;       // the last search found nothing
  Pos LastFoundStart = -1;         // the SelStart left by the last search; none yet
  bool NewSearch = false;          // a fresh search starts from the dialog
  std::int64_t ReplaceCount = 0;
  std::string ReplaceSummary;
};

extern const char* const kFinishedSearching;

// Zero-based index of the first `needle` at or after `from`, or -1. Case is folded for
// ASCII letters unless `matchCase`.
Pos SearchDown(std::string_view text, Pos from, std::string_view needle, bool matchCase);
// Walking back from `from` - 2 to 0: the first index whose needle-long piece matches, or -1.
Pos SearchUp(std::string_view text, Pos from, std::string_view needle, bool matchCase);

// Selects the match in the active control and keeps the globals; says it is finished when
// there is none, except for the page-structure needles, which stay silent. `direction` 1
// searches down, 0 up. `text` is the active control's text. True when a match was found.
bool FindText(Application& app, Pos start, std::string_view text, std::string_view needle,
              int direction, bool matchCase);
// The same on the active control's text as it stands, without copying it.
bool FindText(Application& app, Pos start, std::string_view needle, int direction, bool matchCase);

// The dialog FindReplaceDialog: its inputs by control name.
struct FindReplaceInputs {
  std::string txtFind;
  std::string txtReplace;
  bool optDirectionDown = true;
  bool chkCase = false;
};

// The commands that take the needle from txtFind stop on an empty box: false then.
bool ValidateFindReplace(const FindReplaceInputs& in);
// Loads the dialog: direction down, case as last stored.
FindReplaceInputs LoadFindReplace(Application& app);
void cmdFind(Application& app, const FindReplaceInputs& in);
void cmdReplace(Application& app, const FindReplaceInputs& in);
// True when the dialog is to be hidden (the search is finished).
bool cmdReplaceAll(Application& app, const FindReplaceInputs& in);
void cmdCancel(Application& app, const FindReplaceInputs& in);

// mnuSFind, mnuReplace and the toolbar's Find button: the selection (if any) becomes the
// text to find and a new search starts. Fills `in.txtFind`.
void PrepareFindDialog(Application& app, FindReplaceInputs& in);
// mnuSFindNext: false when there is nothing to find again, and the dialog is to be shown.
bool mnuSFindNext(Application& app);

// The toolbar's find box on Enter: searches down ignoring case from the caret, and when
// `text` isn't the first entry rebuilds the history, stores it and returns true.
bool QuickFind(Application& app, const std::string& text, std::vector<std::string>& history);
// The new text first, then the old entries but an equal one (ignoring case); five at most.
std::vector<std::string> RebuildSearchHistory(const std::vector<std::string>& history,
                                              const std::string& text);
void SaveSearchHistory(SettingsStore& store, const std::vector<std::string>& history);

}  // namespace tessarine
