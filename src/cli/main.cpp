// tessarine-site: the site tools without a window.
#include <cstdio>
#include <cstring>

#include "cli/AnalyseCommand.h"

namespace {

void PrintUsage(std::FILE* out) {
  std::fputs(
      "usage: tessarine-site COMMAND [ARGS]\n"
      "\n"
      "commands:\n"
      "  analyse START_PAGE      check the site reachable from START_PAGE; writes\n"
      "                          LinkReport.txt and BrokenLinks.txt beside it\n"
      "  analyse --page PAGE     analyse one page: its links, images and weight\n"
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
  std::fprintf(stderr, "tessarine-site: unknown command '%s'\n", argv[1]);
  PrintUsage(stderr);
  return 2;
}
