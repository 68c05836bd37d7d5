// tessarine-site: the site tools without a window.
#include <cstdio>
#include <cstring>

#include "cli/AnalyseCommand.h"
#include "cli/ReplaceCommand.h"
#include "cli/SpellCommand.h"
#include "cli/StatsCommand.h"
#include "cli/StripCommand.h"
#include "cli/TidyCommand.h"

namespace {

void PrintUsage(std::FILE* out) {
  std::fputs(
      "usage: tessarine-site COMMAND [ARGS]\n"
      "\n"
      "commands:\n"
      "  analyse START_PAGE      check the site reachable from START_PAGE; writes\n"
      "                          LinkReport.txt and BrokenLinks.txt beside it\n"
      "  analyse --page PAGE     analyse one page: its links, images and weight\n"
      "  replace [--match-case] FIND [--with REPLACEMENT] FILE...\n"
      "                          count FIND in each FILE, or replace it\n"
      "  spell [--dict LANG] PAGE  the misspelled words of a page\n"
      "  stats LOG [-o REPORT]   the HTML report of an access log\n"
      "  strip PAGE [-o OUT]     the page's text without its markup\n"
      "  tidy [--clean OUT [options]] PAGE  validate or clean a page with HTML Tidy\n"
      "\n"
      "  --help                  show this text\n",
      out);
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 2) {
    PrintUsage(stderr);
    return 2;
  }
  if (std::strcmp(argv[1], "--help") == 0 || std::strcmp(argv[1], "-h") == 0) {
    PrintUsage(stdout);
    return 0;
  }
  if (std::strcmp(argv[1], "analyse") == 0) return tessarine::RunAnalyseCommand(argc - 2, argv + 2);
  if (std::strcmp(argv[1], "replace") == 0) return tessarine::RunReplaceCommand(argc - 2, argv + 2);
  if (std::strcmp(argv[1], "spell") == 0) return tessarine::RunSpellCommand(argc - 2, argv + 2);
  if (std::strcmp(argv[1], "stats") == 0) return tessarine::RunStatsCommand(argc - 2, argv + 2);
  if (std::strcmp(argv[1], "strip") == 0) return tessarine::RunStripCommand(argc - 2, argv + 2);
  if (std::strcmp(argv[1], "tidy") == 0) return tessarine::RunTidyCommand(argc - 2, argv + 2);
  std::fprintf(stderr, "tessarine-site: unknown command '%s'\n", argv[1]);
  PrintUsage(stderr);
  return 2;
}
