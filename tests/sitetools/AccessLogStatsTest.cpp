// The access log's line rules, its streaming, the report and the wizard's run.
#include <gtest/gtest.h>

#include <fstream>
#include <iterator>

#include "core/Application.h"
#include "platform/HeadlessPlatform.h"
#include "sitetools/AccessLogStats.h"
#include "sitetools/AccessStatsReport.h"
#include "sitetools/AccessStatsWizard.h"
#include "sitetools/PageToolRun.h"

namespace tessarine {
namespace {

using pagetooltest::RunTool;
using pagetooltest::TempFolder;

std::string ReadData(const std::string& name) {
  std::ifstream in(std::string(TESSARINE_TEST_DATA) + "/" + name, std::ios::binary);
  return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
}

AccessStats CountLine(const std::string& line) {
  AccessLogCounter counter;
  counter.AddLine(line);
  return counter.Stats();
}

TEST(AccessLogLine, BrowserRules) {
  struct Case {
    const char* line;
    int ie, netscape;  // the entry that gains a hit, -1 for none
  } cases[] = {
      {"14   3   11/23/2026|Mozilla/4.0 (compatible; MSIE 5.0; Windows 98)|x.com", 5, -1},
      {"14   3   11/23/2026|Mozilla/4.7 [en] (X11; U; Linux 2.2.12 i686)|x.com", -1, 4},
      {"14   3   11/23/2026|Mozilla/4.0 (compatible; MSIE 6.0)|x.com", -1, -1},
      {"14   3   11/23/2026|Mozilla/5.0 (X11)|x.com", -1, 5},
      {"14   3   11/23/2026|MSIE 4.01|x.com", 4, -1},
      {"14   3   11/23/2026|MSIE x|x.com", -1, -1},
      {"14   3   11/23/2026|Mozilla/x|x.com", -1, -1},
      // No "Mozilla/": column 8 stands in for the version.
      {"14   3 2 11/23/2026|Lynx|x.com", -1, 2},
      {"14   3   11/23/2026|Lynx|x.com", -1, -1},
  };
  for (const auto& c : cases) {
    const AccessStats s = CountLine(c.line);
    EXPECT_EQ(s.totalHits, 1) << c.line;
    for (int v = 0; v < 6; ++v) {
      EXPECT_EQ(s.ieHits[v], v == c.ie ? 1 : 0) << c.line << " IE " << v;
      EXPECT_EQ(s.netscapeHits[v], v == c.netscape ? 1 : 0) << c.line << " Netscape " << v;
    }
  }
}

TEST(AccessLogLine, OperatingSystemFirstRowWins) {
  const std::pair<const char*, OsRow> cases[] = {
      {"Mozilla/4.0 (compatible; MSIE 5.0; Windows 98)", OsRow::Windows98},
      {"Mozilla/4.7 [en] (X11; U; Linux 2.2.12 i686)", OsRow::Linux},
      {"Mozilla/3.0 (Win16; Win95)", OsRow::Windows95},
      {"Mozilla/3.0 (Windows 3.1)", OsRow::Windows3x},
      {"Mozilla/4.0 (WinNT)", OsRow::WindowsNT},
      {"Mozilla/4.0 (Mac_PPC)", OsRow::MacOS},
      {"Mozilla/4.0 (IRIX 6.5)", OsRow::Unix},
      {"Mozilla/3.0 WebTV/1.2", OsRow::WebTV},
      {"Mozilla/4.0 (windows 98)", OsRow::Unknown},  // exact case
  };
  for (const auto& [agent, row] : cases) {
    const AccessStats s = CountLine(std::string("14   3   11/23/2026|") + agent + "|x.com");
    for (int r = 0; r < kOsRows; ++r)
      EXPECT_EQ(s.osHits[r], r == static_cast<int>(row) ? 1 : 0) << agent << " row " << r;
  }
}

TEST(AccessLogLine, ColumnsAndTheirRanges) {
  AccessStats s = CountLine("07   2   03/01/2026|x|y.com");
  EXPECT_EQ(s.hourHits[7], 1);
  EXPECT_EQ(s.dayHits[2], 1);
  EXPECT_EQ(s.monthHits[3], 1);
  // Out of range: no counter moves, the hit still counts.
  s = CountLine("25   9   13/01/2026|x|y.com");
  EXPECT_EQ(s.totalHits, 1);
  for (auto n : s.hourHits) EXPECT_EQ(n, 0);
  for (auto n : s.dayHits) EXPECT_EQ(n, 0);
  for (auto n : s.monthHits) EXPECT_EQ(n, 0);
  // Missing columns read as 0 (counted, never shown); "4:" reads as 4.
  s = CountLine("4:");
  EXPECT_EQ(s.hourHits[4], 1);
  EXPECT_EQ(s.dayHits[0], 1);
  EXPECT_EQ(s.monthHits[0], 1);
}

TEST(AccessLogLine, DomainByTheTrimmedEnd) {
  const std::pair<const char*, std::vector<DomainRow>> cases[] = {
      {"dial.aol.com", {DomainRow::Com, DomainRow::Aol}},
      {"www.example.com   ", {DomainRow::Com}},
      {"www.example.COM", {DomainRow::Other}},
      {"host.example.com|", {DomainRow::Unresolved}},
      {"a.org", {DomainRow::Org}},
      {"a.de", {DomainRow::De}},
      {"a.co.uk", {DomainRow::Uk}},
      {"10.0.0.1", {DomainRow::Other}},
      {"a.com .net", {DomainRow::Net}},
  };
  for (const auto& [host, rows] : cases) {
    const AccessStats s = CountLine(std::string("14   3   11/23/2026|x|") + host);
    for (int r = 0; r < kDomainRows; ++r) {
      const bool expected =
          std::find(rows.begin(), rows.end(), static_cast<DomainRow>(r)) != rows.end();
      EXPECT_EQ(s.domainHits[r], expected ? 1 : 0) << host << " row " << r;
    }
  }
}

TEST(AccessLogLine, SkippedLinesAreNoHits) {
  AccessLogCounter counter;
  CountAccessLogText("# header\n\n\r\n#14   3\r\n", counter);
  EXPECT_EQ(counter.Stats(), AccessStats{});
}

// A line fed in pieces of any size counts as the same line whole: the scanner must see
// texts and endings that straddle pieces, and only the first "MSIE" or "Mozilla/".
TEST(AccessLogStream, PiecesOfAnySizeCountAsTheWholeLine) {
  const std::string lines[] = {
      "14   3   11/23/2026|Mozilla/4.0 (compatible; MSIE 5.0; Windows 98)|dial.aol.com",
      "09   2   01/05/2026|Mozilla/4.7 [en] (X11; Linux)|MSIE 3|host.example.net     ",
      "23   7   12/31/2026|Mozilla/2.0 (Win16)   Mozilla/4|10.0.0.1|  ",
      "12   9 3 13/01/2026|Mac_PPC" + std::string(300, ' ') + "a.co.uk",
  };
  for (const std::string& line : lines) {
    const AccessStats whole = CountLine(line);
    for (std::size_t size = 1; size <= line.size(); ++size) {
      AccessLogCounter counter;
      counter.BeginLine();
      for (std::size_t at = 0; at < line.size(); at += size) counter.Feed(line.substr(at, size));
      counter.EndLine();
      ASSERT_EQ(counter.Stats(), whole) << line << " in pieces of " << size;
    }
  }
}

TEST(AccessLogStream, LineEndsAndBlocksOfAnySize) {
  TempFolder folder;
  std::string log = ReadData("accessstats/accesslog.txt");
  AccessLogCounter inMemory;
  CountAccessLogText(log, inMemory);
  EXPECT_EQ(inMemory.Stats().totalHits, 5);
  const std::string path = folder.Write("accesslog.txt", log);
  for (std::size_t block : {1, 2, 3, 7, 64, 1 << 20}) {
    AccessLogCounter counter;
    ASSERT_EQ(CountAccessLogFile(path, counter, block), LogReadResult::Ok);
    EXPECT_EQ(counter.Stats(), inMemory.Stats()) << "blocks of " << block;
  }
  // LF alone and CR alone end lines as CR LF does.
  for (const char* end : {"\n", "\r"}) {
    std::string other;
    for (char c : log) {
      if (c == '\n') continue;
      other += c == '\r' ? std::string(end) : std::string(1, c);
    }
    AccessLogCounter counter;
    CountAccessLogText(other, counter);
    EXPECT_EQ(counter.Stats(), inMemory.Stats());
  }
  AccessLogCounter none;
  EXPECT_EQ(CountAccessLogFile(folder.Path("missing.txt"), none), LogReadResult::NotFound);
  EXPECT_EQ(CountAccessLogFile(folder.Path(""), none), LogReadResult::NotFound);
}

TEST(AccessLogStream, BinaryAndHugeLinesCountOnce) {
  using namespace std::string_literals;
  std::string log = "14   3   11/23/2026|\0\xFF\x01 Linux|x.com\n"s;
  log.append(std::string("14   3   11/23/2026|", 20) + std::string(3 << 20, 'x') +
             "MSIE 4.0|a.de\n");
  log += "00\0\n"s;
  TempFolder folder;
  AccessLogCounter counter;
  ASSERT_EQ(CountAccessLogFile(folder.Write("log", log), counter, 4096), LogReadResult::Ok);
  EXPECT_EQ(counter.Stats().totalHits, 3);
  EXPECT_EQ(counter.Stats().Os(OsRow::Linux), 1);
  EXPECT_EQ(counter.Stats().ieHits[4], 1);
  EXPECT_EQ(counter.Stats().Domain(DomainRow::De), 1);
}

TEST(AccessStatsReport, SmallLogByteForByte) {
  AccessLogCounter counter;
  CountAccessLogText(ReadData("accessstats/accesslog.txt"), counter);
  EXPECT_EQ(AccessStatsReport(counter.Stats()), ReadData("accessstats/accessstats.html"));
}

TEST(AccessStatsReport, PercentAndBarWidth) {
  AccessStats s;
  s.totalHits = 200;
  s.dayHits[2] = 50;
  s.dayHits[1] = 200;
  const std::string report = AccessStatsReport(s);
  EXPECT_NE(report.find("<FONT SIZE=2>Monday</FONT></TD>\r\n"
                        "    <TD align=center><FONT SIZE=2> 50</FONT></TD>\r\n"
                        "    <TD align=center><FONT SIZE=2> 25%</FONT></TD>\r\n"
                        "    <TD><IMG SRC=\"percntbar.gif\" WIDTH=101  HEIGHT=5"),
            std::string::npos);
  EXPECT_NE(report.find("Sunday</FONT></TD>\r\n    <TD align=center><FONT SIZE=2> 200</FONT>"
                        "</TD>\r\n    <TD align=center><FONT SIZE=2> 100%</FONT></TD>\r\n"
                        "    <TD><IMG SRC=\"percntbar.gif\" WIDTH=401 HEIGHT=5"),
            std::string::npos);
  EXPECT_NE(report.find("Tuesday</FONT></TD>\r\n    <TD align=center><FONT SIZE=2> 0</FONT>"
                        "</TD>\r\n    <TD align=center><FONT SIZE=2> 0%</FONT></TD>\r\n"
                        "    <TD><IMG SRC=\"percntbar.gif\" WIDTH=1  HEIGHT=5"),
            std::string::npos);
}

TEST(AccessStatsReport, EmptyLogLeavesPercentAndWidthEmpty) {
  const std::string report = AccessStatsReport(AccessStats{});
  EXPECT_NE(report.find("Total Hits:  0<BR><BR>"), std::string::npos);
  EXPECT_NE(report.find("<FONT SIZE=2>%</FONT></TD>\r\n    <TD><IMG SRC=\"percntbar.gif\" "
                        "WIDTH= HEIGHT=5"),
            std::string::npos);
  EXPECT_EQ(report.find("WIDTH=1"), std::string::npos);
}

TEST(AccessStatsReport, ShippedBarImageIsTheWrittenOne) {
  EXPECT_EQ(ReadData("../../data/percntbar.gif"), PercentBarImage());
}

TEST(AccessStatsWizard, ChecksInOrder) {
  const std::pair<const char*, const char*> cases[] = {
      {"", "Please enter the Access Log path and filename."},
      {"HTTP://example.com/accesslog.txt",
       "Please enter the path and filename of the Access Log found on your computer's hard "
       "drive."},
      {"/home/me/accesslog.txt", nullptr},
  };
  for (const auto& [path, message] : cases) {
    const CheckResult check = ValidateAccessStats({path});
    ASSERT_EQ(check.has_value(), message != nullptr) << path;
    if (check) {
      EXPECT_EQ(check->message, message);
      EXPECT_EQ(check->field, "logPath");
    }
  }
}

TEST(AccessStatsWizard, RunWritesReportAndImageAndOpensIt) {
  TempFolder folder;
  HeadlessPlatform platform;
  Application app(platform.Get(), folder.Path(""));
  folder.Write("accesslog.txt", ReadData("accessstats/accesslog.txt"));
  EXPECT_TRUE(RunAccessStats(app, {"  " + folder.Path("accesslog.txt") + " "}, folder.Path("")));
  EXPECT_EQ(folder.Read("accessstats.html"), ReadData("accessstats/accessstats.html"));
  EXPECT_EQ(folder.Read("percntbar.gif"), PercentBarImage());
  ASSERT_EQ(platform.shell.opened.size(), 1u);
  EXPECT_EQ(platform.shell.opened[0], folder.Path("accessstats.html"));
  EXPECT_TRUE(platform.messages.shown().empty());

  EXPECT_FALSE(RunAccessStats(app, {folder.Path("none.txt")}, folder.Path("")));
  ASSERT_EQ(platform.messages.shown().size(), 1u);
  EXPECT_EQ(platform.messages.shown()[0].text,
            "File not found.  Please enter the correct path and filename in the box below.");
  EXPECT_EQ(platform.shell.opened.size(), 1u);
}

TEST(StatsCli, ReportToFileWithItsImageOrToStandardOutput) {
  TempFolder folder;
  folder.Write("accesslog.txt", ReadData("accessstats/accesslog.txt"));
  auto run = RunTool(folder, "stats accesslog.txt");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.out, ReadData("accessstats/accessstats.html"));
  EXPECT_FALSE(folder.Exists("percntbar.gif"));
  run = RunTool(folder, "stats accesslog.txt -o report.html");
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(folder.Read("report.html"), ReadData("accessstats/accessstats.html"));
  EXPECT_EQ(folder.Read("percntbar.gif"), PercentBarImage());
  // An image already there is the user's and stays.
  folder.Write("percntbar.gif", "mine");
  EXPECT_EQ(RunTool(folder, "stats accesslog.txt -o report.html").status, 0);
  EXPECT_EQ(folder.Read("percntbar.gif"), "mine");
}

TEST(StatsCli, HelpUsageAndMissingLog) {
  TempFolder folder;
  auto run = RunTool(folder, "stats --help");
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find("usage: tessarine-site stats LOG"), std::string::npos);
  EXPECT_EQ(RunTool(folder, "stats").status, 2);
  run = RunTool(folder, "stats missing.txt -o report.html");
  EXPECT_EQ(run.status, 2);
  EXPECT_NE(run.err.find("missing.txt: file not found"), std::string::npos);
  EXPECT_FALSE(folder.Exists("report.html"));
}

}  // namespace
}  // namespace tessarine
