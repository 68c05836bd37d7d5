#pragma once
// The four choices of what the file list shows, as the menu offers them and the
// "FileList" setting stores them.

#include <string>
#include <vector>

namespace tessarine {

struct FileListFilter {
  const char* command;  // the menu entry's name
  const char* word;     // the stored word
  const char* caption;
};

inline constexpr FileListFilter kFileListFilters[] = {
    {"mnuBothview", "both", "&HTML and Image Files"},
    {"mnuHTMLview", "html", "HT&ML Files Only"},
    {"mnuImageview", "image", "&Image Files Only"},
    {"mnuAllFileview", "all", "&All Files"},
};

// The stored word as the list uses it: anything unknown shows both pages and pictures.
std::string FileListWord(const std::string& stored);

// The name patterns of a semicolon pattern list. "*.*" means every file, those without a
// dot in their names included.
std::vector<std::string> NamePatterns(const std::string& semicolonPatterns);

}  // namespace tessarine
