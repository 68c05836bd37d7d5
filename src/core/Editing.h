#pragma once
// What a document's edit control does on its own events: keys, mouse, change and drops,
// and the Edit menu's commands. The window forwards the events; the edits happen here.

#include <functional>
#include <string>
#include <string_view>

#include "core/Find.h"

namespace tessarine {

class Application;
class DocumentWindow;
class EditControl;

// The key codes the handlers look at; a toolkit maps its keys onto them.
enum EditKey : int {
  kKeyTab = 9,
  kKeyEnter = 13,
  kKeySpace = 32,
  kKeyLessComma = 188,      // "<" and ","
  kKeyGreaterPeriod = 190,  // ">" and "."
  kKeyQuote = 222,          // both quote characters
};

// What a dropped file needs from the tag-building conventions; empty ones are the
// conventions' own RelativePath and CheckSaveWarning.
struct DropServices {
  // The URL prefix from the document (by its caption) to a folder; empty for none.
  std::function<std::string(const std::string& caption, const std::string& folder)> relativePath;
  // Shows the save warning when it applies.
  std::function<void()> checkSaveWarning;
};

struct EditingState {
  // True while the toolbar's find box has the focus: the key handlers then do nothing.
  bool SuppressEditKeys = false;
  DropServices drop;
  FindState find;
};

// Key-down; true when the key is swallowed, false when it goes on to the control.
bool EditKeyDown(Application& app, DocumentWindow& window, int keyCode, bool shift, bool ctrl);
void EditKeyUp(Application& app, DocumentWindow& window, int keyCode, bool shift);

// Tab (or Shift+Tab, `outdent`) on a selection that spans lines.
void BlockIndent(EditControl& edit, bool outdent);
// The tabs that auto-tab types after Enter: as many as the position of the last TAB in
// the line before the caret's.
int AutoTabCount(const EditControl& edit);

// Status panels: length and caret line after a change; the line alone on a click or key.
void UpdateStatusOnChange(Application& app, DocumentWindow& window);
void UpdateLinePanel(Application& app, DocumentWindow& window);
void OnEditMouseMove(Application& app);

// A file dropped on the control: a link, an image or a style sheet by its extension.
// False when the name means nothing to a document.
bool DropFile(Application& app, DocumentWindow& window, const std::string& path);
// The tag a drop writes, for a path already made relative; `selected` goes between the
// link's tags.
std::string DroppedFileTag(const std::string& name, const std::string& path, bool upperCase,
                           const std::string& selected, int width, int height, bool sizeKnown);

// The Edit menu.
void mnuUndo(Application& app);
void mnuRedo(Application& app);
// Replace All as the user runs it: the whole run is one undo step.
bool ReplaceAllAsOneStep(Application& app, const FindReplaceInputs& in);
void mnuCut(Application& app);
void mnuCopy(Application& app);
void mnuPaste(Application& app);
void mnuSelectAll(Application& app);
// Toggles the flag for new windows and sets this window's wrap from it; the new flag.
bool mnuWordWrap(Application& app);

// Line ends of pasted text as the documents have them: CR LF.
std::string ToCrLf(std::string_view text);

}  // namespace tessarine
