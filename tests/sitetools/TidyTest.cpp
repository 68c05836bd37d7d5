// The validator and cleaner: the option order, Tidy in its child process, the error
// locations, the wizard's steps, and `tessarine-site tidy`.
#include <gtest/gtest.h>
#include <signal.h>
#include <tidy/tidy.h>
#include <unistd.h>

#include <cstdlib>

#include "sitetools/PageToolRun.h"
#include "sitetools/TidyRunner.h"
#include "sitetools/ValidateWizard.h"

namespace tessarine {
namespace {

using pagetooltest::RunTool;
using pagetooltest::TempFolder;
using Options = std::vector<TidyOption>;

TEST(TidyOptions, SetInTheirOrder) {
  CleanOptions none;
  EXPECT_EQ(CleanOptionSequence(none), (Options{{"indent", "no"}, {"wrap", "0"}}));

  CleanOptions all;
  all.addAltText = true;
  all.altText = "picture";
  all.fontToCss = all.upperCaseTags = all.breakBeforeBr = all.paragraphsToBreaks = true;
  all.formatXhtml = all.indent = all.wrapAttributes = all.wrap = true;
  // Ticked boxes whose numbers were cleared: indent by 2, and wrap stays off.
  EXPECT_EQ(CleanOptionSequence(all), (Options{{"alt-text", "picture"},
                                               {"clean", "yes"},
                                               {"uppercase-tags", "yes"},
                                               {"break-before-br", "yes"},
                                               {"drop-empty-paras", "yes"},
                                               {"drop-empty-paras", "yes"},
                                               {"output-xhtml", "yes"},
                                               {"indent", "auto"},
                                               {"indent-spaces", "2"},
                                               {"indent-attributes", "yes"},
                                               {"wrap", "0"}}));

  CleanOptions numbers;
  numbers.indent = numbers.wrap = true;
  numbers.indentSpaces = "4";
  numbers.indentUnits = "Tabs";  // still spaces
  numbers.wrapChars = "72 columns";
  EXPECT_EQ(CleanOptionSequence(numbers),
            (Options{{"indent", "auto"}, {"indent-spaces", "4"}, {"wrap", "0"}, {"wrap", "72"}}));

  // Beyond the box's three digits the indent stops at 999; below zero it is none.
  numbers.wrap = false;
  numbers.indentSpaces = "2222222222222";
  EXPECT_EQ(CleanOptionSequence(numbers)[1], (TidyOption{"indent-spaces", "999"}));
  numbers.indentSpaces = "-3";
  EXPECT_EQ(CleanOptionSequence(numbers)[1], (TidyOption{"indent-spaces", "0"}));
  // A wrap too large for any number type is held at the largest Tidy takes.
  numbers.wrap = true;
  numbers.wrapChars = std::string(60, '2');
  EXPECT_EQ(CleanOptionSequence(numbers).back(), (TidyOption{"wrap", "2147483647"}));
}

TEST(TidyOptions, EveryNameAndValueIsTidys) {
  CleanOptions all;
  all.addAltText = all.fontToCss = all.upperCaseTags = all.breakBeforeBr = true;
  all.paragraphsToBreaks = all.formatXhtml = all.indent = all.wrapAttributes = all.wrap = true;
  all.altText = "x";
  all.wrapChars = "60";
  TidyDoc doc = tidyCreate();
  for (const TidyOption& o : CleanOptionSequence(all))
    EXPECT_TRUE(tidyOptParseValue(doc, o.name.c_str(), o.value.c_str())) << o.name;
  tidyRelease(doc);
}

class TidyRun : public ::testing::Test {
 protected:
  TempFolder folder_;
};

TEST_F(TidyRun, CleaningAppliesTheOptions) {
  const std::string page =
      "<html><head><title>t</title></head><body><p>one</p><p></p><img src=\"a.gif\">"
      "</body></html>";
  CleanOptions o;
  o.upperCaseTags = o.paragraphsToBreaks = o.addAltText = true;
  o.altText = "a picture";
  TidyJob job{CleanOptionSequence(o), page, folder_.Path("errors.txt"), folder_.Path("out.html")};
  const TidyOutcome outcome = RunTidyInChild(job);
  ASSERT_TRUE(outcome.Ran());
  EXPECT_TRUE(outcome.outputWritten);
  const std::string out = folder_.Read("out.html");
  EXPECT_NE(out.find("<P>one</P>"), std::string::npos) << out;
  EXPECT_EQ(out.find("<P></P>"), std::string::npos) << out;
  EXPECT_NE(out.find("alt=\"a picture\""), std::string::npos) << out;
  // Same page, same options, in this process: the same page and report.
  TidyJob here = job;
  here.outputFile = folder_.Path("here.html");
  here.errorFile = folder_.Path("here-errors.txt");
  bool written = false;
  EXPECT_EQ(RunTidyHere(here, &written), outcome.tidyResult);
  EXPECT_TRUE(written);
  EXPECT_EQ(folder_.Read("here.html"), out);
  EXPECT_EQ(folder_.Read("here-errors.txt"), folder_.Read("errors.txt"));
}

TEST_F(TidyRun, SingleBytePageKeepsItsBytes) {
  TidyJob job{
      {}, "<title>caf\xE9</title><p>na\xEFve</p>", folder_.Path("e.txt"), folder_.Path("out.html")};
  ASSERT_TRUE(RunTidyInChild(job).outputWritten);
  EXPECT_NE(folder_.Read("out.html").find("<p>na\xEFve</p>"), std::string::npos);
}

TEST_F(TidyRun, ResultsCountWarningsAndErrors) {
  const std::pair<const char*, int> cases[] = {
      {"<!DOCTYPE html><html><head><title>x</title></head><body><p>ok</p></body></html>", 0},
      {"<title>x</title><p>missing doctype", 1},
      {"<title>x</title><foo>not html</foo>", 2},
  };
  for (const auto& [page, expected] : cases) {
    TidyJob job{{}, page, folder_.Path("e.txt"), ""};
    EXPECT_EQ(RunTidyInChild(job).tidyResult, expected) << page;
  }
  const std::string report = folder_.Read("e.txt");
  EXPECT_NE(report.find("Error: <foo> is not recognized!"), std::string::npos) << report;
}

TEST(ChildProcess, ExitCrashAndTimeLimit) {
  ChildResult r = RunInChildProcess([] { return 7; });
  EXPECT_EQ(r.status, ChildResult::Status::Exited);
  EXPECT_EQ(r.exitCode, 7);
  r = RunInChildProcess([]() -> int { std::abort(); });
  EXPECT_EQ(r.status, ChildResult::Status::Crashed);
  EXPECT_EQ(r.signal, SIGABRT);
  TidyOutcome crashed;
  crashed.child = r;
  EXPECT_NE(TidyFailureMessage(crashed).find("stopped on this page"), std::string::npos);
  EXPECT_FALSE(crashed.Ran());
  r = RunInChildProcess(
      []() -> int {
        for (;;) ::pause();
      },
      1);
  EXPECT_EQ(r.status, ChildResult::Status::TimedOut);
}

TEST(TidyLocation, MessagesToOffsets) {
  long long line = 0, column = 0;
  EXPECT_TRUE(ParseTidyLocation("line 12 column 5 - Warning: x", line, column));
  EXPECT_EQ(line, 12);
  EXPECT_EQ(column, 5);
  EXPECT_FALSE(ParseTidyLocation("Info: Document content looks like HTML5", line, column));
  EXPECT_FALSE(ParseTidyLocation("line x column 5", line, column));

  const std::string text = "<p>\r\n\tab</x>\r\n\xC3\xA9\xC3\xA9</y>\nlast\rcr";
  struct Case {
    long long line, column;
    std::size_t offset;
  } cases[] = {
      {1, 1, 0},
      {2, 11, 8},  // tab to column 9, "ab", then "</x>"
      {3, 3, 18},  // two UTF-8 letters count two columns
      {4, 2, 24},
      {5, 1, 28},   // LF alone and CR alone end lines
      {3, 99, 22},  // past the end of a line: its end
      {99, 1, text.size()},
  };
  for (const auto& c : cases)
    EXPECT_EQ(OffsetOfTidyLocation(text, c.line, c.column), c.offset) << c.line << ":" << c.column;
}

class RecordingHost : public ValidateHost {
 public:
  std::string text, title;
  std::vector<std::string> messages;
  std::string panel;
  int panelShown = 0;
  std::string DocumentText() override { return text; }
  std::string DocumentTitle() override { return title; }
  void ShowErrorPanel(const std::string* report) override {
    ++panelShown;
    if (report) panel = *report;
  }
  void ShowMessage(const std::string& m) override { messages.push_back(m); }
};

TEST(ValidateWizardSteps, ValidatePathFillsThePanelAndCloses) {
  RecordingHost host;
  host.text = "<title>x</title><p>text";
  ValidateWizard wizard(host);
  ValidateView v = wizard.Start();
  EXPECT_EQ(v.heading, "Step 1: Validate and Clean your HTML");
  EXPECT_FALSE(v.previousEnabled);
  v = wizard.Next();
  EXPECT_EQ(v.page, ValidatePage::ValidationDone);
  EXPECT_EQ(v.nextCaption, "&Done");
  EXPECT_EQ(host.panelShown, 1);
  EXPECT_NE(host.panel.find("line 1 column 1 - Warning: missing <!DOCTYPE> declaration"),
            std::string::npos);
  EXPECT_TRUE(wizard.SessionOptions().empty());
  EXPECT_TRUE(wizard.Next().close);
}

TEST(ValidateWizardSteps, CleanPathChecksTheNameAndKeepsOptionsForTheSession) {
  TempFolder folder;
  RecordingHost host;
  host.title = folder.Write("page.html", "<title>x</title><p>one</p>");
  ValidateWizard wizard(host);
  wizard.Start();
  wizard.cleanChosen = true;
  EXPECT_EQ(wizard.Next().page, ValidatePage::CleanOptions);
  wizard.options.upperCaseTags = true;
  EXPECT_EQ(wizard.Next().page, ValidatePage::FileName);
  // Back and forth keeps the ticks.
  EXPECT_EQ(wizard.Previous().page, ValidatePage::CleanOptions);
  EXPECT_TRUE(wizard.options.upperCaseTags);
  wizard.Next();
  // No name: the message, and the wizard stays on the name page.
  ValidateView v = wizard.Next();
  EXPECT_EQ(host.messages,
            std::vector<std::string>{"Please specify a filename to save the cleaned Web page."});
  EXPECT_EQ(v.page, ValidatePage::FileName);
  EXPECT_EQ(wizard.Step(), 3);
  wizard.fileName = folder.Path("clean.html");
  v = wizard.Next();
  EXPECT_EQ(v.page, ValidatePage::CleanDone);
  EXPECT_NE(folder.Read("clean.html").find("<P>one</P>"), std::string::npos);
  EXPECT_EQ(folder.Read("page.html"), "<title>x</title><p>one</p>");
  EXPECT_TRUE(wizard.Next().close);
  // Unticked later, upper case stays set in the same session; indent and wrap are reset.
  wizard.Start();
  wizard.options.upperCaseTags = false;
  wizard.Next();
  wizard.Next();
  wizard.fileName = folder.Path("again.html");
  wizard.Next();
  EXPECT_NE(folder.Read("again.html").find("<P>one</P>"), std::string::npos);
  EXPECT_EQ(wizard.SessionOptions().size(), 5u);
}

TEST(ValidateWizardSteps, UntitledDocumentWritesNothingAndStillCompletes) {
  TempFolder folder;
  RecordingHost host;
  host.title = "Untitled:1";
  ValidateWizard wizard(host);
  wizard.Start();
  wizard.cleanChosen = true;
  wizard.Next();
  wizard.Next();
  wizard.fileName = folder.Path("clean.html");
  EXPECT_EQ(wizard.Next().page, ValidatePage::CleanDone);
  EXPECT_FALSE(folder.Exists("clean.html"));
  EXPECT_TRUE(host.messages.empty());
}

TEST(TidyCli, ValidateAndCleanWithExitCodes) {
  TempFolder folder;
  folder.Write("ok.html",
               "<!DOCTYPE html><html><head><title>x</title></head><body><p>ok</p></body></html>");
  folder.Write("warn.html", "<title>x</title><p>one");
  folder.Write("bad.html", "<title>x</title><foo>x</foo>");
  auto run = RunTool(folder, "tidy ok.html");
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find("No warnings or errors were found."), std::string::npos);
  run = RunTool(folder, "tidy warn.html");
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(run.out.find("line 1 column 1 - Warning: missing <!DOCTYPE> declaration"),
            std::string::npos);
  EXPECT_EQ(RunTool(folder, "tidy bad.html").status, 2);
  run = RunTool(folder, "tidy --clean out.html --uppercase --indent 3 warn.html");
  EXPECT_EQ(run.status, 1);
  EXPECT_NE(folder.Read("out.html").find("<P>one</P>"), std::string::npos);
}

TEST(TidyCli, HelpAndUsage) {
  TempFolder folder;
  folder.Write("p.html", "<p>x");
  auto run = RunTool(folder, "tidy --help");
  EXPECT_EQ(run.status, 0);
  EXPECT_NE(run.out.find("usage: tessarine-site tidy"), std::string::npos);
  EXPECT_EQ(RunTool(folder, "tidy").status, 2);
  EXPECT_EQ(RunTool(folder, "tidy --uppercase p.html").status, 2);  // options need --clean
  EXPECT_EQ(RunTool(folder, "tidy missing.html").status, 2);
}

}  // namespace
}  // namespace tessarine
