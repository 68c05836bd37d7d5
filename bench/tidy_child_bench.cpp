// Validating a 10 MB page with libtidy in a child process against the same run in this
// process, alternated in the same run: the child's cost is the fork and the wait.
//   tidy_child_bench [PAGE|-] [RUNS]   (without PAGE, or with "-", a page of 10 MB is made)

#include <sys/resource.h>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "sitetools/TidyRunner.h"

namespace {

using namespace tessarine;
using Clock = std::chrono::steady_clock;

std::string MakePage(std::size_t size) {
  std::string page = "<HTML><HEAD><TITLE>Bench</TITLE></HEAD><BODY>\r\n";
  for (int n = 0; page.size() < size; ++n) {
    page += "<P>Paragraph " + std::to_string(n) +
            " with <B>bold</B>, <I>italic</I> and a <A HREF=\"p" + std::to_string(n) +
            ".html\">link</A>&nbsp;&amp; an image <IMG SRC=\"a.gif\"><BR>\r\n";
    if (n % 5 == 0) page += "<TABLE><TR><TD>cell<TD>cell</TR></TABLE>\r\n";
  }
  return page + "</BODY></HTML>\r\n";
}

// CPU seconds (user + system) of this process, or of its waited-for children.
double CpuSeconds(int who) {
  rusage u{};
  ::getrusage(who, &u);
  return u.ru_utime.tv_sec + u.ru_stime.tv_sec + (u.ru_utime.tv_usec + u.ru_stime.tv_usec) / 1e6;
}

double Median(std::vector<double> v) {
  std::sort(v.begin(), v.end());
  return v[v.size() / 2];
}

}  // namespace

int main(int argc, char** argv) {
  std::string page;
  if (argc > 1 && std::string(argv[1]) != "-") {
    std::ifstream in(argv[1], std::ios::binary);
    std::ostringstream s;
    s << in.rdbuf();
    page = s.str();
  } else {
    page = MakePage(10 << 20);
  }
  const int runs = argc > 2 ? std::max(1, std::atoi(argv[2])) : 3;
  const std::string errors =
      (std::filesystem::temp_directory_path() / "tidy-bench-errors.txt").string();
  TidyJob job{{}, page, errors, ""};
  std::vector<double> here, child, hereCpu, childCpu;
  for (int i = 0; i < runs; ++i) {
    const double s0 = CpuSeconds(RUSAGE_SELF);
    auto t0 = Clock::now();
    const int rc = RunTidyHere(job);
    auto t1 = Clock::now();
    const double s1 = CpuSeconds(RUSAGE_SELF), c1 = CpuSeconds(RUSAGE_CHILDREN);
    const TidyOutcome outcome = RunTidyInChild(job);
    auto t2 = Clock::now();
    // The child's work and the parent's fork and wait.
    childCpu.push_back(CpuSeconds(RUSAGE_CHILDREN) - c1 + CpuSeconds(RUSAGE_SELF) - s1);
    hereCpu.push_back(s1 - s0);
    if (rc != outcome.tidyResult) {
      std::fprintf(stderr, "results differ: %d in process, %d in the child\n", rc,
                   outcome.tidyResult);
      return 1;
    }
    here.push_back(std::chrono::duration<double>(t1 - t0).count());
    child.push_back(std::chrono::duration<double>(t2 - t1).count());
  }
  const double h = Median(here), c = Median(child);
  const double hc = Median(hereCpu), cc = Median(childCpu);
  std::printf(
      "page %.1f MB, %d runs each, medians: in process %.3f s wall %.3f s cpu, child %.3f s "
      "wall %.3f s cpu; child/in-process wall %.3f (%+.1f%%) cpu %.3f (%+.1f%%)\n",
      page.size() / 1048576.0, runs, h, hc, c, cc, c / h, (c / h - 1) * 100, cc / hc,
      (cc / hc - 1) * 100);
  std::filesystem::remove(errors);
  return 0;
}
