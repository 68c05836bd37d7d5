#include "cli/StatsCommand.h"

#include <cstdio>
#include <cstring>
#include <filesystem>
#include <string>

#include "cli/CommandIo.h"
#include "sitetools/AccessLogStats.h"
#include "sitetools/AccessStatsReport.h"
#include "sitetools/AccessStatsWizard.h"

namespace tessarine {
namespace {

void PrintStatsUsage(std::FILE* out) {
  std::fputs(
      "usage: tessarine-site stats LOG [-o REPORT]\n"
      "\n"
      "Counts the hits of an access log (accesslog.txt) by day, month, hour, operating\n"
      "system, browser version and domain, and writes the HTML report. The log is read\n"
      "in one pass, in blocks, whatever its size.\n"
      "\n"
      "  -o REPORT   write the report to REPORT (replaced whole), and percntbar.gif beside\n"
      "              it when missing; without it the report goes to standard output\n"
      "  --help      show this text\n"
      "\n"
      "exit status: 0 done, 2 usage error or a log or report that cannot be read or written\n",
      out);
}

}  // namespace

int RunStatsCommand(int argc, char** argv) {
  std::string log, report;
  for (int i = 0; i < argc; ++i) {
    if (cli::IsHelp(argv[i])) {
      PrintStatsUsage(stdout);
      return 0;
    }
    if (std::strcmp(argv[i], "-o") == 0 && i + 1 < argc && report.empty()) {
      report = argv[++i];
    } else if (argv[i][0] != '-' && log.empty()) {
      log = argv[i];
    } else {
      PrintStatsUsage(stderr);
      return 2;
    }
  }
  if (log.empty()) {
    PrintStatsUsage(stderr);
    return 2;
  }
  AccessLogCounter counter;
  const LogReadResult read = CountAccessLogFile(log, counter);
  if (read != LogReadResult::Ok) {
    std::fprintf(stderr, "tessarine-site stats: %s: %s\n", log.c_str(),
                 read == LogReadResult::NotFound ? "file not found" : "cannot read the file");
    return 2;
  }
  if (!cli::WriteOutput("stats", report, AccessStatsReport(counter.Stats()))) return 2;
  if (!report.empty()) {
    const auto folder = std::filesystem::absolute(report).parent_path().string();
    if (!EnsurePercentBarImage(folder)) {
      std::fprintf(stderr, "tessarine-site stats: cannot write %s beside the report\n",
                   kPercentBarName);
      return 2;
    }
  }
  return 0;
}

}  // namespace tessarine
