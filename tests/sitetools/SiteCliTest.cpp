// tessarine-site analyse, run as a program.
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>

#include <cstdlib>

#include "sitetools/SiteTestSupport.h"

namespace tessarine {
namespace {

using sitetest::CompletionMessage;
using sitetest::CrLfLines;
using sitetest::ReadAll;
using sitetest::TempSite;

struct RunResult {
  int status = -1;
  std::string out;
  std::string err;
};

// Standard output goes to `outTo` when given (a device such as /dev/full).
RunResult RunSiteTool(const TempSite& site, const std::string& arguments,
                      const std::string& outTo = "") {
  const std::string out = outTo.empty() ? site.Base() + "stdout.txt" : outTo;
  const std::string err = site.Base() + "stderr.txt";
  // Run from the folder above the site, so that "site/..." is a relative path.
  const std::string command = "cd '" + site.Base() + "' && '" + TESSARINE_SITE_EXE + "' " +
                              arguments + " >'" + out + "' 2>'" + err + "' </dev/null";
  RunResult result;
  const int raw = std::system(command.c_str());
  if (raw != -1 && WIFEXITED(raw)) result.status = WEXITSTATUS(raw);
  if (outTo.empty()) result.out = ReadAll(out);
  result.err = ReadAll(err);
  return result;
}

TEST(SiteCli, AnalysePrintsRowsThenTheLabelsAndWritesTheReports) {
  TempSite site;
  site.Write("index.html",
             "<TITLE>Home</TITLE><A HREF=\"a.html\"> <A HREF=\"gone.html\">\r\n"
             "<IMG SRC=\"none.gif\">");
  site.Write("a.html", "<TITLE></TITLE><A HREF=\"#nowhere\">");
  // A relative start page: the reports still name it by its full path.
  const RunResult run = RunSiteTool(site, "analyse site/sub/../index.html");
  const std::string root = site.Root();
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, "gone.html\tBroken Link\t" + root + "index.html\n" +
                         "none.gif\tMissing Image\t" + root + "index.html\n" +
                         "Missing Title\tWeb page is missing title\t" + root + "a.html\n" +
                         "#nowhere\tBroken Anchor\t" + root + "a.html\n" +
                         " 4 Errors in Site\tNumber of page in site:  2\n");
  EXPECT_EQ(run.err, CompletionMessage(root) + "\n");
  EXPECT_EQ(ReadAll(root + "BrokenLinks.txt"),
            CrLfLines({root + "index.html", "          gone.html", "          none.gif", "", "",
                       root + "a.html", "          #nowhere"}));
}

TEST(SiteCli, AnalysePagePrintsLinksThenTitleWeightSizeAndTime) {
  TempSite site;
  const std::string page = "<TITLE>One</TITLE><A HREF=\"two.html\"><A HREF=\"x.html\">";
  site.Write("one.html", page);
  site.Write("two.html", "<TITLE>Two</TITLE>");
  const RunResult run = RunSiteTool(site, "analyse --page '" + site.Root() + "one.html'");
  const std::string size = std::to_string(page.size());
  EXPECT_EQ(run.status, 0);
  const std::string position = std::to_string(page.find("two.html\"") + 9);
  EXPECT_EQ(run.out, "two.html\tOK\tTwo\t " + position + "\n" +
                         "x.html\tBroken Link\t\t\n"
                         "File Title:\tOne\n"
                         "Document weight (file size including images, etc.):  " +
                         size + " bytes\n " + size + " bytes\n" + " 0 minutes  0 seconds\n");
  EXPECT_EQ(run.err, "");
}

TEST(SiteCli, UsageErrorsAndUnreadableStartPagesExitWithTwo) {
  TempSite site;
  site.Mkdir("folder");
  EXPECT_EQ(RunSiteTool(site, "").status, 2);
  EXPECT_EQ(RunSiteTool(site, "analyse").status, 2);
  EXPECT_EQ(RunSiteTool(site, "analyse a.html b.html").status, 2);
  EXPECT_EQ(RunSiteTool(site, "frobnicate").status, 2);
  const RunResult missing = RunSiteTool(site, "analyse '" + site.Root() + "none.html'");
  EXPECT_EQ(missing.status, 2);
  EXPECT_EQ(missing.out, "");
  EXPECT_FALSE(std::filesystem::exists(site.Root() + "LinkReport.txt"));
  EXPECT_EQ(RunSiteTool(site, "analyse --page '" + site.Root() + "folder'").status, 2);

  const RunResult help = RunSiteTool(site, "--help");
  EXPECT_EQ(help.status, 0);
  EXPECT_NE(help.out.find("analyse START_PAGE"), std::string::npos);
}

TEST(SiteCli, ReportsOrOutputThatCannotBeWrittenExitWithOneAndTheReason) {
  TempSite site;
  site.Write("index.html", "<A HREF=\"gone.html\">");
  ASSERT_EQ(::mkfifo((site.Root() + "BrokenLinks.txt").c_str(), 0644), 0);
  const RunResult fifo = RunSiteTool(site, "analyse site/index.html");
  EXPECT_EQ(fifo.status, 1);
  EXPECT_NE(fifo.err.find("BrokenLinks.txt: not a regular file"), std::string::npos) << fifo.err;
  EXPECT_EQ(fifo.out, "gone.html\tBroken Link\t" + site.Root() +
                          "index.html\n 1 Errors in Site\tNumber of page in site:  1\n");

  std::filesystem::remove(site.Root() + "BrokenLinks.txt");
  for (const char* arguments : {"analyse site/index.html", "analyse --page site/index.html"}) {
    const RunResult full = RunSiteTool(site, arguments, "/dev/full");
    EXPECT_EQ(full.status, 1) << arguments;
    EXPECT_NE(full.err.find("cannot write standard output: No space left on device"),
              std::string::npos)
        << full.err;
  }
}

}  // namespace
}  // namespace tessarine
