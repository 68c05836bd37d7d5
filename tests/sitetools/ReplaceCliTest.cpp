// tessarine-site replace, run as a program.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>

#include "sitetools/GlobalReplace.h"
#include "sitetools/SiteTestSupport.h"

namespace tessarine {
namespace {

using sitetest::ReadAll;
using sitetest::TempSite;

struct ToolRun {
  int status = -1;
  std::string out;
  std::string err;
};

ToolRun RunReplace(const TempSite& site, const std::string& arguments) {
  const std::string out = site.Base() + "stdout.txt";
  const std::string err = site.Base() + "stderr.txt";
  const std::string command = "cd '" + site.Root() + "' && '" + TESSARINE_SITE_EXE + "' replace " +
                              arguments + " >'" + out + "' 2>'" + err + "' </dev/null";
  ToolRun run;
  const int raw = std::system(command.c_str());
  if (raw != -1 && WIFEXITED(raw)) run.status = WEXITSTATUS(raw);
  run.out = ReadAll(out);
  run.err = ReadAll(err);
  return run;
}

TEST(ReplaceCli, CountsWithoutWithAndReplacesWithIt) {
  TempSite site;
  site.Write("a.html", "Cat cat CAT");
  site.Write("b.html", "dog");
  const std::string root = site.Root();

  ToolRun run = RunReplace(site, "cat a.html b.html");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, root + "a.html\t 3\n" + root + "b.html\t 0\n");
  EXPECT_EQ(ReadAll(root + "a.html"), "Cat cat CAT");
  EXPECT_FALSE(std::filesystem::exists(root + kGlobalReplaceReportName));

  run = RunReplace(site, "--match-case cat --with 'big cat' a.html b.html");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, root + "a.html\t 1\n" + root + "b.html\t 0\n");
  EXPECT_EQ(ReadAll(root + "a.html"), "Cat big cat CAT\r\n");
  const std::string report = ReadAll(root + kGlobalReplaceReportName);
  EXPECT_NE(report.find("REPLACE THIS TEXT: cat\r\nWITH THIS TEXT: big cat\r\n\r\n 1   " + root +
                        "a.html\r\n 0   " + root + "b.html\r\n"),
            std::string::npos);
}

TEST(ReplaceCli, UnreadableFilesAndUsageErrorsExitWithTwo) {
  TempSite site;
  site.Write("a.html", "x");
  const std::string root = site.Root();
  ToolRun run = RunReplace(site, "x --with y a.html gone.html");
  EXPECT_EQ(run.status, 2);
  EXPECT_EQ(run.out, root + "a.html\t 1\n" + root + "gone.html\tFile could not be opened\n");
  EXPECT_NE(run.err.find("Can't open file: " + root + "gone.html\n"), std::string::npos);
  EXPECT_FALSE(std::filesystem::exists(root + "gone.html"));

  for (const char* bad : {"", "x", "x --with", "--with a --with b x a.html"}) {
    run = RunReplace(site, bad);
    EXPECT_EQ(run.status, 2) << bad;
    EXPECT_NE(run.err.find("usage: tessarine-site replace"), std::string::npos) << bad;
  }
  run = RunReplace(site, "--help");
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find("--match-case"), std::string::npos);
}

}  // namespace
}  // namespace tessarine
