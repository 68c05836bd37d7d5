#pragma once
// Writing a document to disk: the Save As dialog and the writers, with their error table.

#include <string>
#include <string_view>

namespace tessarine {

class Application;
class DocumentWindow;

// The Open and Save As filter, one text for both.
extern const char* const kOpenSaveFilter;

// Returns the chosen path, or "" when cancelled.
std::string SaveAsDialog(Application& app);

enum class SaveMode { Command, Prompt };
// Writes the window's text and one CR LF to `path`. The prompt's writer also ends by
// focusing the edit control. True when the text was written; after a failure, shown with
// its error number, the document keeps its caption and stays changed.
bool SaveFile(Application& app, DocumentWindow& window, const std::string& path, SaveMode mode);

// File, Save (an untitled caption asks for a name) and File, Save As; the toolbar's Save
// button is File, Save.
void FileSaveCommand(Application& app, bool saveAs);

// Replaces `path` with `bytes` through a temporary file beside it, so a failure never
// leaves a half-written target; the target's permissions are kept and a symbolic link is
// written through, to the file it names, even one that doesn't exist yet. Returns 0 or the error
// number (75 access, 61 disk full, 53 not found, 76 path not found, 57 other I/O).
int WriteFileReplacing(const std::string& path, std::string_view first, std::string_view second);
std::string ErrorDescription(int number);

}  // namespace tessarine
