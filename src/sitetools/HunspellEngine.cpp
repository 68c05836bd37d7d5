#include "sitetools/HunspellEngine.h"

#include <hunspell/hunspell.hxx>

#include <algorithm>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <set>

#include "sitetools/HtmlStripper.h"

namespace tessarine {
namespace fs = std::filesystem;

namespace {

// Windows-1252 bytes as UTF-8: Latin-1 for the upper half, the few 0x80-0x9F letters
// and marks by table, anything else as a question mark.
std::string SingleByteToUtf8(const std::string& bytes) {
  static const char16_t kHigh[32] = {
      0x20AC, 0,      0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
      0x2039, 0x0152, 0,      0x017D, 0,      0,      0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
      0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0,      0x017E, 0x0178};
  std::string out;
  for (unsigned char c : bytes) {
    char32_t cp = c;
    if (c >= 0x80 && c < 0xA0) cp = kHigh[c - 0x80] ? kHigh[c - 0x80] : U'?';
    if (cp < 0x80) {
      out += static_cast<char>(cp);
    } else if (cp < 0x800) {
      out += static_cast<char>(0xC0 | (cp >> 6));
      out += static_cast<char>(0x80 | (cp & 0x3F));
    } else {
      out += static_cast<char>(0xE0 | (cp >> 12));
      out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
      out += static_cast<char>(0x80 | (cp & 0x3F));
    }
  }
  return out;
}

}  // namespace

std::vector<std::string> DictionaryFolders() {
  std::vector<std::string> folders;
  if (const char* path = std::getenv("DICPATH")) {
    std::string all = path;
    for (std::size_t start = 0; start <= all.size();) {
      const std::size_t colon = std::min(all.find(':', start), all.size());
      if (colon > start) folders.push_back(all.substr(start, colon - start));
      start = colon + 1;
    }
  }
  for (const char* f : {"/usr/share/hunspell", "/usr/share/myspell", "/usr/share/myspell/dicts"})
    folders.emplace_back(f);
  return folders;
}

std::vector<std::string> InstalledDictionaries(const std::vector<std::string>& folders) {
  std::set<std::string> found;
  for (const auto& folder : folders) {
    std::error_code error;
    for (fs::directory_iterator it(folder, error), end; !error && it != end; it.increment(error)) {
      const fs::path& p = it->path();
      if (p.extension() != ".dic") continue;
      fs::path aff = p;
      aff.replace_extension(".aff");
      if (fs::exists(aff, error)) found.insert(p.stem().string());
    }
  }
  return {found.begin(), found.end()};
}

std::string ChooseDictionary(const std::vector<std::string>& installed, const std::string& wanted) {
  for (const std::string& choice : {wanted, std::string("en_US")}) {
    if (std::find(installed.begin(), installed.end(), choice) != installed.end()) return choice;
  }
  return installed.empty() ? std::string() : installed.front();
}

HunspellSpellEngine::~HunspellSpellEngine() = default;

std::unique_ptr<HunspellSpellEngine> HunspellSpellEngine::Open(
    const std::string& language, const std::vector<std::string>& folders,
    const std::string& customDictionary, std::string& error) {
  for (const auto& folder : folders) {
    const fs::path dic = fs::path(folder) / (language + ".dic");
    const fs::path aff = fs::path(folder) / (language + ".aff");
    std::error_code ignored;
    if (language.empty() || !fs::is_regular_file(dic, ignored) ||
        !fs::is_regular_file(aff, ignored))
      continue;
    std::unique_ptr<HunspellSpellEngine> engine(new HunspellSpellEngine);
    engine->hunspell_ = std::make_unique<Hunspell>(aff.c_str(), dic.c_str());
    engine->language_ = language;
    engine->customDictionary_ = customDictionary;
    engine->utf8Dictionary_ = engine->hunspell_->get_dict_encoding() == "UTF-8";
    // The user's words: a missing list is simply empty.
    std::ifstream words(customDictionary, std::ios::binary);
    for (std::string line; std::getline(words, line);) {
      if (!line.empty() && line.back() == '\r') line.pop_back();
      if (!line.empty()) engine->hunspell_->add(engine->ToDictionary(line));
    }
    return engine;
  }
  error = language.empty()
              ? "No spelling dictionary is installed. Install one (for example the "
                "hunspell-en-us package) to check spelling."
              : "The spelling dictionary \"" + language +
                    "\" is not installed. Install it (for example the hunspell-en-us package) "
                    "to check spelling.";
  return nullptr;
}

std::string HunspellSpellEngine::ToDictionary(const std::string& word) const {
  if (!utf8Dictionary_ || IsValidUtf8(word)) return word;
  return SingleByteToUtf8(word);
}

bool HunspellSpellEngine::Check(const std::string& word) const {
  return hunspell_->spell(ToDictionary(word));
}

std::vector<std::string> HunspellSpellEngine::Suggest(const std::string& word) const {
  std::vector<std::string> out = hunspell_->suggest(ToDictionary(word));
  if (utf8Dictionary_ && !IsValidUtf8(word)) {
    // A single-byte document can take only suggestions it can hold as they are.
    std::erase_if(out, [](const std::string& s) {
      return std::any_of(s.begin(), s.end(), [](char c) { return (c & 0x80) != 0; });
    });
  }
  return out;
}

void HunspellSpellEngine::AddWord(const std::string& word) {
  if (word.empty()) return;
  hunspell_->add(ToDictionary(word));
  // Appending one line never puts the words already there at risk.
  std::ofstream list(customDictionary_, std::ios::binary | std::ios::app);
  list << word << "\n";
}

}  // namespace tessarine
