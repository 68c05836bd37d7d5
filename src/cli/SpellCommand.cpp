#include "cli/SpellCommand.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>

#include "cli/CommandIo.h"
#include "core/Startup.h"
#include "sitetools/HtmlStripper.h"
#include "sitetools/HunspellEngine.h"
#include "sitetools/SpellText.h"

namespace tessarine {
namespace {

void PrintSpellUsage(std::FILE* out) {
  std::fputs(
      "usage: tessarine-site spell [--dict LANG] PAGE\n"
      "\n"
      "Prints each misspelled word of PAGE as LINE:COLUMN, a TAB and the word (both\n"
      "numbers from 1; a column counts characters). Tags, attributes, comments, entities\n"
      "and script and style blocks are not checked. The words of custom.dic in the\n"
      "application folder ($TESSARINE_HOME, else ~/.local/share/Tessarine) are known.\n"
      "\n"
      "  --dict LANG   the Hunspell dictionary to use (default en_US, else the first\n"
      "                one installed)\n"
      "  --help        show this text\n"
      "\n"
      "exit status: 0 no misspelled word, 1 some, 2 usage error, unreadable page or no\n"
      "dictionary\n",
      out);
}

}  // namespace

int RunSpellCommand(int argc, char** argv) {
  std::string page, language;
  for (int i = 0; i < argc; ++i) {
    if (cli::IsHelp(argv[i])) {
      PrintSpellUsage(stdout);
      return 0;
    }
    if (std::strcmp(argv[i], "--dict") == 0 && i + 1 < argc && language.empty()) {
      language = argv[++i];
    } else if (argv[i][0] != '-' && page.empty()) {
      page = argv[i];
    } else {
      PrintSpellUsage(stderr);
      return 2;
    }
  }
  if (page.empty()) {
    PrintSpellUsage(stderr);
    return 2;
  }
  const auto text = cli::ReadInput("spell", page);
  if (!text) return 2;
  const auto folders = DictionaryFolders();
  const std::string chosen =
      language.empty() ? ChooseDictionary(InstalledDictionaries(folders), "en_US") : language;
  const std::string custom =
      (std::filesystem::path(PrepareApplicationFolder("")) / "custom.dic").string();
  std::string error;
  auto engine = HunspellSpellEngine::Open(chosen, folders, custom, error);
  if (!engine) {
    std::fprintf(stderr, "tessarine-site spell: %s\n", error.c_str());
    return 2;
  }

  const bool utf8 = IsValidUtf8(*text);
  std::string out;
  std::size_t line = 1, scanned = 0, column = 1;
  bool found = false;
  WordWalker walker(*text);
  WordSpan span;
  while (walker.Next(span)) {
    const std::string word = text->substr(span.start, span.length);
    if (engine->Check(word)) continue;
    // Line and column of the word, counted on from the last one.
    for (; scanned < span.start; ++scanned) {
      const char c = (*text)[scanned];
      if (c == '\n' ||
          (c == '\r' && (scanned + 1 >= text->size() || (*text)[scanned + 1] != '\n'))) {
        ++line;
        column = 1;
      } else if (c != '\r' && (!utf8 || (static_cast<unsigned char>(c) & 0xC0) != 0x80)) {
        ++column;
      }
    }
    out += std::to_string(line) + ":" + std::to_string(column) + "\t" + word + "\n";
    found = true;
  }
  if (!cli::WriteOutput("spell", "", out)) return 2;
  return found ? 1 : 0;
}

}  // namespace tessarine
