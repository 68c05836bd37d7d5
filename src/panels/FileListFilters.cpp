#include "panels/FileListFilters.h"

namespace tessarine {

std::string FileListWord(const std::string& stored) {
  for (const FileListFilter& f : kFileListFilters) {
    if (stored == f.word) return stored;
  }
  return "both";
}

std::vector<std::string> NamePatterns(const std::string& semicolonPatterns) {
  std::vector<std::string> patterns;
  std::size_t start = 0;
  while (start <= semicolonPatterns.size()) {
    std::size_t end = semicolonPatterns.find(';', start);
    if (end == std::string::npos) end = semicolonPatterns.size();
    std::string p = semicolonPatterns.substr(start, end - start);
    if (p == "*.*") p = "*";
    if (!p.empty()) patterns.push_back(p);
    start = end + 1;
  }
  return patterns;
}

}  // namespace tessarine
