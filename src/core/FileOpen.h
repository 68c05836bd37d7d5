#pragma once
// Reading files into document windows: the Open dialog, OpenFile, the Mac and UNIX imports
// and export, plain-text import and Insert File. A file is one string of bytes.

#include <string>
#include <vector>

namespace tessarine {

class Application;

extern const char* const kImportMacFilter;
extern const char* const kImportUnixFilter;
extern const char* const kExportFilter;
extern const char* const kInsertFileFilter;
extern const char* const kImportTextFilter;

// The kinds of document, by name alone.
bool IsTemplateName(const std::string& name);    // upper-cased last three are "TZT"
bool IsStyleSheetName(const std::string& name);  // lower-cased last four are ".css"

// True if the path names a file that can be opened for reading; a folder, a device or a
// file we may not read counts as missing.
bool FileExists(const std::string& path);
// Reads a whole regular file. Returns 0, or the error number of the failure (53 gone,
// 75 access or not a file, 7 too large for memory, 57 read error).
int ReadWholeFile(const std::string& path, std::string& bytes);

// Compares each open window's caption with `path` exactly; brings the match forward when
// `activate` is true.
bool IsDocumentOpen(Application& app, const std::string& path, bool activate = true);

// Loads one file into a new window; false when nothing was opened.
bool OpenFile(Application& app, const std::string& path);
// File, Open: the dialog with multiple selection, then each chosen file.
void OpenFileDialog(Application& app);
// The dialog's answer: one path, or the folder and the names separated by NULs.
std::vector<std::string> SplitDialogSelection(const std::string& answer);
// "/dir/page.html" less its file title: "/dir/".
std::string PathLessFileTitle(const std::string& path);

// An unchanged active window captioned "untitled:1" (any case) is closed so that the file
// takes its place.
void GiveWayIfUntouchedFirstWindow(Application& app);
// A style sheet in the active window: the style manager takes over.
void ApplyStyleSheetRow(Application& app);

// Import with foreign line ends; `kind` is "Mac" or "UNIX".
void ImportForeignFile(Application& app, const std::string& kind);
// Every `lineEnd` becomes CR LF; nothing else is looked at.
bool OpenWithLineEnd(Application& app, const std::string& path, char lineEnd);
// A copy of the active document with Mac (CR) or UNIX (LF) line ends.
void ExportForeignFile(Application& app, const std::string& kind);

// A text file as a new untitled page that shows it.
void ImportTextFileCommand(Application& app);
bool ImportTextFile(Application& app, const std::string& path);
// ">" "&gt;", "<" "&lt;", CR LF "<BR>" CR LF; ampersands stay.
std::string TextFileAsHtml(std::string text);

// Insert File: the file's bytes replace the selection, uncoloured.
void InsertFile(Application& app);

}  // namespace tessarine
