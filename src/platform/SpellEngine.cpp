#include "platform/SpellEngine.h"

#include <cstdlib>

namespace tessarine {

namespace {
// True when one insertion, deletion or substitution turns a into b.
bool OneEditApart(const std::string& a, const std::string& b) {
  const size_t la = a.size(), lb = b.size();
  if (la > lb + 1 || lb > la + 1 || a == b) return false;
  size_t i = 0;
  while (i < la && i < lb && a[i] == b[i]) ++i;
  if (la == lb) return a.compare(i + 1, std::string::npos, b, i + 1, std::string::npos) == 0;
  if (la < lb) return a.compare(i, std::string::npos, b, i + 1, std::string::npos) == 0;
  return a.compare(i + 1, std::string::npos, b, i, std::string::npos) == 0;
}
}  // namespace

std::vector<std::string> WordListSpellEngine::Suggest(const std::string& word) const {
  std::vector<std::string> out;
  for (const auto& w : words_)
    if (OneEditApart(word, w)) out.push_back(w);
  return out;
}

}  // namespace tessarine
