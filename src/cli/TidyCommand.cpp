#include "cli/TidyCommand.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>

#include <unistd.h>

#include "cli/CommandIo.h"
#include "sitetools/SiteFiles.h"
#include "sitetools/TidyRunner.h"

namespace tessarine {
namespace {

void PrintTidyUsage(std::FILE* out) {
  std::fputs(
      "usage: tessarine-site tidy [--clean OUT [options]] PAGE\n"
      "\n"
      "Runs HTML Tidy on PAGE and prints its errors and warnings. With --clean the\n"
      "cleaned page is written to OUT (replaced whole, and only when Tidy made one).\n"
      "Tidy runs in a child process: a page that makes it crash gives a message.\n"
      "\n"
      "cleaning options, set in this order:\n"
      "  --alt-text TEXT       add TEXT as the alternative text of images lacking one\n"
      "  --font-to-css         convert FONT tags to CSS style rules (clean)\n"
      "  --uppercase           write tags in upper case\n"
      "  --break-before-br     a line break before each <BR>\n"
      "  --drop-paragraphs     drop empty paragraphs (drop-empty-paras)\n"
      "  --xhtml               write XHTML\n"
      "  --indent [SPACES]     indent blocks automatically, by SPACES (default 2)\n"
      "  --indent-attributes   one attribute a line\n"
      "  --wrap COLUMNS        wrap lines after COLUMNS (default: no wrapping)\n"
      "  --help                show this text\n"
      "\n"
      "exit status: 0 no message, 1 warnings only, 2 errors, or a page that cannot be\n"
      "read, a usage error, or a Tidy that stopped\n",
      out);
}

bool IsNumber(const char* text) {
  if (!*text) return false;
  for (; *text; ++text)
    if (*text < '0' || *text > '9') return false;
  return true;
}

}  // namespace

int RunTidyCommand(int argc, char** argv) {
  std::string page, output;
  CleanOptions clean;
  bool anyOption = false;
  for (int i = 0; i < argc; ++i) {
    const char* a = argv[i];
    const bool hasValue = i + 1 < argc;
    if (cli::IsHelp(a)) {
      PrintTidyUsage(stdout);
      return 0;
    }
    bool option = true;
    if (std::strcmp(a, "--clean") == 0 && hasValue && output.empty()) {
      output = argv[++i];
      option = false;
    } else if (std::strcmp(a, "--alt-text") == 0 && hasValue) {
      clean.addAltText = true;
      clean.altText = argv[++i];
    } else if (std::strcmp(a, "--font-to-css") == 0) {
      clean.fontToCss = true;
    } else if (std::strcmp(a, "--uppercase") == 0) {
      clean.upperCaseTags = true;
    } else if (std::strcmp(a, "--break-before-br") == 0) {
      clean.breakBeforeBr = true;
    } else if (std::strcmp(a, "--drop-paragraphs") == 0) {
      clean.paragraphsToBreaks = true;
    } else if (std::strcmp(a, "--xhtml") == 0) {
      clean.formatXhtml = true;
    } else if (std::strcmp(a, "--indent") == 0) {
      clean.indent = true;
      if (hasValue && IsNumber(argv[i + 1])) clean.indentSpaces = argv[++i];
    } else if (std::strcmp(a, "--indent-attributes") == 0) {
      clean.wrapAttributes = true;
    } else if (std::strcmp(a, "--wrap") == 0 && hasValue && IsNumber(argv[i + 1])) {
      clean.wrap = true;
      clean.wrapChars = argv[++i];
    } else if (a[0] != '-' && page.empty()) {
      page = a;
      option = false;
    } else {
      PrintTidyUsage(stderr);
      return 2;
    }
    anyOption = anyOption || option;
  }
  if (page.empty() || (anyOption && output.empty())) {
    PrintTidyUsage(stderr);
    return 2;
  }
  const auto text = cli::ReadInput("tidy", page);
  if (!text) return 2;

  TidyJob job;
  if (!output.empty()) job.options = CleanOptionSequence(clean);
  job.page = *text;
  job.outputFile = output;
  // The report goes through a private file, printed whole and removed.
  char reportPath[] = "/tmp/tessarine-tidy-XXXXXX";
  const int fd = ::mkstemp(reportPath);
  if (fd < 0) {
    std::fprintf(stderr, "tessarine-site tidy: cannot make a temporary file\n");
    return 2;
  }
  ::close(fd);
  job.errorFile = reportPath;
  const TidyOutcome outcome = RunTidyInChild(job);
  const auto report = ReadFileText(reportPath, std::int64_t{1} << 30);
  std::error_code ignored;
  std::filesystem::remove(reportPath, ignored);
  if (report) cli::WriteOutput("tidy", "", *report);
  const std::string failure = TidyFailureMessage(outcome);
  if (!failure.empty()) {
    std::fprintf(stderr, "tessarine-site tidy: %s\n", failure.c_str());
    return 2;
  }
  if (outcome.tidyResult < 0) {
    std::fprintf(stderr, "tessarine-site tidy: Tidy could not process %s\n", page.c_str());
    return 2;
  }
  if (!output.empty() && !outcome.outputWritten)
    std::fprintf(stderr, "tessarine-site tidy: no cleaned page was written to %s\n",
                 output.c_str());
  return outcome.tidyResult;
}

}  // namespace tessarine
