#include "cli/ReplaceCommand.h"

#include <cstdio>
#include <cstring>
#include <ctime>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

#include "sitetools/GlobalReplace.h"

namespace tessarine {
namespace {

// No documents are open here, and the command line itself is the answer to the question.
class ConsoleReplaceHost : public GlobalReplaceHost {
 public:
  bool IsOpenAsDocument(const std::string&) override { return false; }
  void ShowMessage(const std::string& text) override { std::fprintf(stderr, "%s\n", text.c_str()); }
  bool AskYesNo(const std::string&) override { return true; }
};

}  // namespace

void PrintReplaceUsage(bool toError) {
  std::fputs(
      "usage: tessarine-site replace [--match-case] FIND [--with REPLACEMENT] FILE...\n"
      "\n"
      "Counts the occurrences of FIND in each FILE, letters of any case unless\n"
      "--match-case is given. With --with, replaces them by REPLACEMENT: each file with\n"
      "a hit is rewritten whole through a temporary file (its permissions kept, one line\n"
      "break added at its end), and the run is appended to \"Global Replace Report.txt\"\n"
      "in the folder of the first FILE.\n"
      "Prints one line per file: the path, a TAB, and the count (or \"File could not be\n"
      "opened\" for a file that is empty or cannot be read, \"File could not be saved\"\n"
      "for one whose rewrite failed and which is left as it was).\n"
      "Messages go to standard error.\n"
      "Exit status: 0 when every file was read (and rewritten), 2 for a usage error or\n"
      "a file that could not be read or saved.\n",
      toError ? stderr : stdout);
}

int RunReplaceCommand(int argc, char** argv) {
  bool matchCase = false;
  std::optional<std::string> replacement;
  std::vector<std::string> operands;
  bool optionsEnded = false;
  for (int i = 0; i < argc; ++i) {
    const char* arg = argv[i];
    if (!optionsEnded && (std::strcmp(arg, "--help") == 0 || std::strcmp(arg, "-h") == 0)) {
      PrintReplaceUsage(false);
      return 0;
    }
    if (!optionsEnded && std::strcmp(arg, "--") == 0) {
      optionsEnded = true;
    } else if (!optionsEnded && std::strcmp(arg, "--match-case") == 0) {
      matchCase = true;
    } else if (!optionsEnded && std::strcmp(arg, "--with") == 0) {
      if (i + 1 >= argc || replacement) {
        PrintReplaceUsage(true);
        return 2;
      }
      replacement = argv[++i];
    } else {
      operands.emplace_back(arg);
    }
  }
  if (operands.size() < 2) {
    PrintReplaceUsage(true);
    return 2;
  }

  GlobalReplaceInputs inputs;
  inputs.findText = operands[0];
  inputs.replaceText = replacement.value_or("");
  inputs.matchCase = matchCase;
  std::vector<std::string> files;
  for (std::size_t i = 1; i < operands.size(); ++i) {
    std::error_code error;
    std::filesystem::path path = std::filesystem::absolute(operands[i], error);
    files.push_back(error ? operands[i] : path.lexically_normal().string());
  }
  const std::string folder = std::filesystem::path(files.front()).parent_path().string();

  const std::time_t t = std::time(nullptr);
  std::tm now{};
  localtime_r(&t, &now);
  ConsoleReplaceHost host;
  const GlobalReplaceRun run = RunGlobal(replacement ? GlobalMode::Replace : GlobalMode::Find,
                                         folder, files, inputs, host, now);
  bool allDone = true;
  for (const GlobalReplaceRow& row : run.rows) {
    std::printf("%s\t%s\n", row.path.c_str(), row.countText.c_str());
    if (row.outcome == GlobalReplaceRow::Outcome::NotOpened ||
        row.outcome == GlobalReplaceRow::Outcome::NotSaved) {
      allDone = false;
    }
  }
  std::fflush(stdout);
  return allDone ? 0 : 2;
}

}  // namespace tessarine
