// The help map and the pages shipped with the program: every id has a page that exists,
// every page is reached from the contents, and no page has a link that leads nowhere.
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>
#include <set>
#include <string>
#include <vector>

#include "core/Application.h"
#include "core/HelpTopics.h"
#include "platform/Desktop.h"
#include "platform/HeadlessPlatform.h"
#include "sitetools/RecordingSiteView.h"
#include "sitetools/SiteAnalyser.h"

namespace fs = std::filesystem;

namespace tessarine {
namespace {

const fs::path kShippedHelp = fs::path(TESSARINE_DATA_DIR) / "help";

TEST(HelpTopics, EveryIdHasAShippedPage) {
  std::set<std::string_view> ids;
  for (const HelpTopic& t : HelpTopics()) {
    EXPECT_TRUE(ids.insert(t.id).second) << "id listed twice: " << t.id;
    EXPECT_TRUE(fs::is_regular_file(kShippedHelp / t.page)) << t.id << " -> " << t.page;
    EXPECT_EQ(t.page.find('/'), std::string_view::npos) << t.page;
  }
  for (std::string_view id : {kHelpContents, kHelpHowToUse, kHelpTutorial, kHelpBeginners})
    EXPECT_TRUE(HasHelpTopic(id)) << id;
  for (int context : {40, 10, 42, 33}) {
    EXPECT_NE(HelpTopicOfContext(context), kHelpContents) << context;
    EXPECT_TRUE(HasHelpTopic(HelpTopicOfContext(context))) << context;
  }
}

TEST(HelpTopics, UnknownIdsAndContextsFallBackToTheContents) {
  EXPECT_EQ(HelpPageOf("NoSuchDialog"), "index.html");
  EXPECT_EQ(HelpPageOf(""), "index.html");
  EXPECT_EQ(HelpTopicOfContext(0), kHelpContents);
  EXPECT_EQ(HelpTopicOfContext(55), kHelpContents);
  EXPECT_EQ(HelpPageOf("ValidateDialog"), "validate.html");
  EXPECT_EQ(HelpFilePath("/opt/t", "AccessStatsDialog"), "/opt/t/help/accessstats.html");
}

// The site analyser, as a browser resolves links, run over a copy of the help folder (it
// writes its reports into the site's folder).
TEST(HelpTopics, EveryPageIsLinkedFromTheContentsAndNoLinkIsBroken) {
  const fs::path site =
      fs::temp_directory_path() / ("tessarine-help-" + std::to_string(::getpid()));
  fs::remove_all(site);
  fs::copy(kShippedHelp, site, fs::copy_options::recursive);
  RecordingSiteView view;
  SiteAnalyser analyser(view);
  analyser.standardResolution = true;
  analyser.AnalyseSite(site.string() + "/", "index.html");

  std::string problems;
  for (const SiteRow& row : view.rows) {
    problems += row.text;
    for (const std::string& item : row.subItems) problems += " | " + item;
    problems += "\n";
  }
  EXPECT_EQ(analyser.ErrorCount, 0) << problems;

  std::set<std::string> reached(analyser.ParsedFilesList().begin(),
                                analyser.ParsedFilesList().end());
  int pages = 0;
  for (const auto& entry : fs::directory_iterator(site)) {
    if (entry.path().extension() != ".html") continue;
    ++pages;
    EXPECT_TRUE(reached.count(entry.path().string())) << entry.path().filename() << " unreached";
  }
  EXPECT_GE(pages, 10);
  fs::remove_all(site);
}

// Answers as told and opens nothing.
class ViewerShell : public Shell {
 public:
  explicit ViewerShell(bool works) : works_(works) {}
  bool OpenInDefaultViewer(const std::string& path) override {
    opened.push_back(path);
    return works_;
  }
  bool StartProgram(const std::string&, const std::vector<std::string>&) override { return false; }
  void ShowProperties(const std::string&) override {}
  std::vector<std::string> opened;

 private:
  bool works_;
};

struct HelpApp {
  explicit HelpApp(bool viewerWorks, const std::string& folder = kShippedHelp.parent_path())
      : shell(viewerWorks),
        app({h.frame, h.messages, h.store, h.fileDialogs, h.colorDialog, shell, h.clipboard,
             h.images, h.clock, h.checkedQuestions, &h.defaultBrowser},
            folder) {}
  HeadlessPlatform h;
  ViewerShell shell;
  Application app;
};

TEST(HelpTopics, ShowingATopicOpensItsPageOrTellsWhyNot) {
  HelpApp works(true);
  EXPECT_TRUE(ShowHelpTopic(works.app, "ValidateDialog"));
  EXPECT_EQ(works.shell.opened,
            std::vector<std::string>{(kShippedHelp / "validate.html").string()});
  EXPECT_TRUE(works.h.messages.shown().empty());

  HelpApp noViewer(false);
  EXPECT_FALSE(ShowHelpTopic(noViewer.app, kHelpTutorial));
  ASSERT_EQ(noViewer.h.messages.shown().size(), 1u);
  EXPECT_NE(noViewer.h.messages.shown()[0].text.find("tutorial.html could not be opened"),
            std::string::npos);

  HelpApp missing(true, "/opt/tessarine");  // no help folder there
  EXPECT_FALSE(ShowHelpTopic(missing.app, "ValidateDialog"));
  EXPECT_TRUE(missing.shell.opened.empty());
  ASSERT_EQ(missing.h.messages.shown().size(), 1u);
  EXPECT_NE(missing.h.messages.shown()[0].text.find("/opt/tessarine/help/validate.html"),
            std::string::npos);
}

TEST(StartScreen, ShownUntilTurnedOff) {
  MemorySettingsStore store;
  EXPECT_TRUE(StartScreenWanted(store));  // a first start
  store.SaveSetting("Miscellaneous", "MainMenuBox", "on");
  EXPECT_TRUE(StartScreenWanted(store));
  CloseStartScreen(store, false);
  EXPECT_EQ(store.GetSetting("Miscellaneous", "MainMenuBox", ""), "on");
  CloseStartScreen(store, true);
  EXPECT_EQ(store.GetSetting("Miscellaneous", "MainMenuBox", ""), "off");
  EXPECT_FALSE(StartScreenWanted(store));
  store.SaveSetting("Miscellaneous", "MainMenuBox", "no");
  EXPECT_FALSE(StartScreenWanted(store));
}

}  // namespace
}  // namespace tessarine
