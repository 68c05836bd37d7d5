#include "cli/StripCommand.h"

#include <cstdio>
#include <cstring>
#include <string>

#include "cli/CommandIo.h"
#include "sitetools/HtmlStripper.h"

namespace tessarine {
namespace {

void PrintStripUsage(std::FILE* out) {
  std::fputs(
      "usage: tessarine-site strip PAGE [-o OUT]\n"
      "\n"
      "Writes the text of PAGE without its markup: tags go, line breaks, rules and list\n"
      "items become line breaks, images become \" [IMAGE] \", entities become characters,\n"
      "and the text is cut into lines of 80 characters. Lines end in CR LF.\n"
      "\n"
      "  -o OUT    write to OUT (replaced whole) instead of standard output\n"
      "  --help    show this text\n"
      "\n"
      "exit status: 0 done, 2 usage error or a file that cannot be read or written\n",
      out);
}

}  // namespace

int RunStripCommand(int argc, char** argv) {
  std::string page, output;
  for (int i = 0; i < argc; ++i) {
    if (cli::IsHelp(argv[i])) {
      PrintStripUsage(stdout);
      return 0;
    }
    if (std::strcmp(argv[i], "-o") == 0 && i + 1 < argc && output.empty()) {
      output = argv[++i];
    } else if (argv[i][0] != '-' && page.empty()) {
      page = argv[i];
    } else {
      PrintStripUsage(stderr);
      return 2;
    }
  }
  if (page.empty()) {
    PrintStripUsage(stderr);
    return 2;
  }
  const auto text = cli::ReadInput("strip", page);
  if (!text) return 2;
  const std::string stripped = StripHtml(*text, IsValidUtf8(*text));
  return cli::WriteOutput("strip", output, stripped) ? 0 : 2;
}

}  // namespace tessarine
