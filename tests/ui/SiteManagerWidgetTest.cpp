// The site manager and global replace windows, driven as a user drives them.
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QSplitter>
#include <QTimer>
#include <QTreeWidget>
#include <filesystem>

#include "WindowFixture.h"
#include "sitetools/GlobalReplace.h"
#include "ui/SciEdit.h"
#include "ui/panels/DriveList.h"
#include "ui/sitetools/FolderFileLists.h"
#include "ui/sitetools/GlobalReplaceDialog.h"
#include "ui/sitetools/QuickViewDialog.h"
#include "ui/sitetools/SiteManagerWindow.h"

namespace tessarine {
namespace {

class SiteManagerTest : public WindowFixture {
 protected:
  void Write(const std::string& relative, const std::string& text) {
    const std::filesystem::path path = Site() + relative;
    std::filesystem::create_directories(path.parent_path());
    std::ofstream(path, std::ios::binary) << text;
  }
  std::string Site() { return dir.path().toStdString() + "/site/"; }
  // The Quick View that the next double click opens: what it selects, then closed.
  void CloseNextQuickView() {
    QTimer::singleShot(0, [this] {
      auto* view = qobject_cast<QuickViewDialog*>(QApplication::activeModalWidget());
      if (!view) return;
      quickViewSelection = view->Editor().SelText();
      view->reject();
    });
  }
  std::string quickViewSelection = "(none shown)";
};

std::vector<QStringList> Rows(QTreeWidget* list) {
  std::vector<QStringList> rows;
  for (int i = 0; i < list->topLevelItemCount(); ++i) {
    QStringList row;
    for (int c = 0; c < list->columnCount(); ++c) row << list->topLevelItem(i)->text(c);
    rows.push_back(row);
  }
  return rows;
}

QTreeWidgetItem* RowWithText(QTreeWidget* list, const QString& text) {
  for (int i = 0; i < list->topLevelItemCount(); ++i) {
    if (list->topLevelItem(i)->text(0) == text) return list->topLevelItem(i);
  }
  return nullptr;
}

TEST_F(SiteManagerTest, ChecksASiteAndOpensTheRowsPageAtItsLink) {
  Write("index.html",
        "<TITLE>Home</TITLE><!-- <A HREF=\"hidden.html\"> -->\r\n"
        "<A HREF=\"a.html\">a</A> <A HREF=\"gone.html\">gone</A>");
  Write("a.html", "<TITLE>A</TITLE><IMG SRC=\"none.gif\">");
  Start();
  SiteManagerWindow window(*app, frame.get());
  window.show();
  window.Files()->SetFolder(QString::fromStdString(Site()));
  ASSERT_TRUE(window.Files()->SelectName("index.html"));
  window.findChild<QPushButton*>("checkSiteButton")->click();

  const QString page = QString::fromStdString(Site() + "index.html");
  const QString a = QString::fromStdString(Site() + "a.html");
  EXPECT_EQ(window.Mode(), "Site");
  EXPECT_EQ(Rows(window.Results()),
            (std::vector<QStringList>{{"gone.html", "Broken Link", page, ""},
                                      {"none.gif", "Missing Image", a, ""}}));
  EXPECT_EQ(window.Label(SiteLabel::ErrorCountOrTitle)->text(), " 2 Errors in Site");
  EXPECT_EQ(window.Label(SiteLabel::PageCountOrWeight)->text(), "Number of page in site:  2");
  ASSERT_FALSE(messages.shown().empty());
  EXPECT_EQ(messages.shown().back().text.rfind("Web site analysis is complete.", 0), 0u);

  // A missing image opens the page that holds it, not the image.
  QTreeWidgetItem* image = RowWithText(window.Results(), "none.gif");
  EXPECT_EQ(window.RowFile(image), a);
  std::string opened;
  window.onQuickView = [&](const std::string& path, const std::string&, std::int64_t,
                           std::int64_t) { opened = path; };
  CloseNextQuickView();
  window.OpenRow(image);
  EXPECT_EQ(opened, a.toStdString());
  EXPECT_EQ(quickViewSelection, "") << "a row of a crawl holds no position: the caret at the start";
}

TEST_F(SiteManagerTest, APageAnalysisJumpsToTheLinkPastTheComments) {
  Write("page.html",
        "<TITLE>P</TITLE><!-- a comment -->\r\n<A HREF=\"two.html\">2</A><A HREF=\"x.html\">");
  Write("two.html", "<TITLE>Second</TITLE>");
  Start();
  SiteManagerWindow window(*app, frame.get());
  window.OpenForPage(QString::fromStdString(Site()), "page.html");
  EXPECT_EQ(window.Mode(), "Page");
  ASSERT_EQ(window.Results()->topLevelItemCount(), 2);
  EXPECT_EQ(window.Results()->topLevelItem(0)->text(2), "Second");
  EXPECT_EQ(window.Results()->topLevelItem(1)->text(1), "Broken Link");
  EXPECT_EQ(window.Label(SiteLabel::ResultsHeading)->text(), "File Title:");

  CloseNextQuickView();
  window.OpenRow(window.Results()->topLevelItem(0));
  EXPECT_EQ(quickViewSelection, "two.html");
}

TEST_F(SiteManagerTest, GlobalReplaceRewritesTheSelectedFilesAndListsThem) {
  Write("a.html", "<table>");
  Write("b.htm", "<TABLE>");
  Write("c.txt", "table");  // not in the list's pattern
  Start();
  GlobalReplaceDialog dialog(*app, frame.get());
  dialog.Files()->SetFolder(QString::fromStdString(Site()));
  EXPECT_EQ(dialog.Files()->Names(), (QStringList{"a.html", "b.htm"}));
  dialog.Files()->FileList()->selectAll();
  dialog.FindText()->setText("table");
  dialog.ReplaceText()->setText("grid");
  messages.Queue(MsgAnswer::Yes);
  dialog.findChild<QPushButton*>("replaceButton")->click();

  EXPECT_EQ(Slurp(Site() + "a.html"), "<grid>\r\n");
  EXPECT_EQ(Slurp(Site() + "b.htm"), "<grid>\r\n");
  EXPECT_EQ(Slurp(Site() + "c.txt"), "table");
  EXPECT_EQ(dialog.Results()->headerItem()->text(1), "# of Instances Replaced");
  EXPECT_EQ(Rows(dialog.Results()),
            (std::vector<QStringList>{{QString::fromStdString(Site() + "a.html"), " 1"},
                                      {QString::fromStdString(Site() + "b.htm"), " 1"}}));
  EXPECT_EQ(dialog.findChild<QPushButton*>("cancelButton")->text(), "&Done");
  EXPECT_EQ(app->sites.LastFindText, "table");
}

TEST_F(SiteManagerTest, TheWindowKeepsItsGeometryInItsOwnSection) {
  Write("index.html", "<TITLE>Home</TITLE>");
  store.SaveSetting("SiteTolmer", "WindowXSize", "12000");   // 800 pixels
  store.SaveSetting("SiteTolmer", "WindowYSize", "9000");    // 600 pixels
  store.SaveSetting("SiteTolmer", "File1Top", "3000");       // 200 pixels
  store.SaveSetting("SiteTolmer", "FileListWidth", "4500");  // 300 pixels
  Start();
  {
    SiteManagerWindow window(*app, frame.get());
    window.show();
    for (int i = 0; i < 5; ++i) QApplication::processEvents();
    EXPECT_EQ(window.size(), QSize(800, 600));
    EXPECT_EQ(window.Files()->SplitTop(), 200);
    auto* columns = window.findChild<QSplitter*>("columnSplitter");
    ASSERT_NE(columns, nullptr);
    EXPECT_EQ(columns->sizes().value(0), 300);

    window.resize(840, 630);
    columns->setSizes({330, 500});
    window.Files()->SetSplitTop(180);
    QApplication::processEvents();
    window.close();
  }
  EXPECT_EQ(store.GetSetting("SiteTolmer", "WindowXSize", "?"), "12600");
  EXPECT_EQ(store.GetSetting("SiteTolmer", "WindowYSize", "?"), "9450");
  EXPECT_EQ(store.GetSetting("SiteTolmer", "File1Top", "?"), "2700");
  EXPECT_EQ(store.GetSetting("SiteTolmer", "FileListWidth", "?"), "4950");
  EXPECT_EQ(store.GetSetting("Window", "File1Top", "?"), "?") << "the main window's keys stay";

  // Closed while minimised: nothing is written.
  SiteManagerWindow again(*app, frame.get());
  again.show();
  QApplication::processEvents();
  again.setWindowState(Qt::WindowMinimized);
  again.resize(500, 400);
  again.close();
  EXPECT_EQ(store.GetSetting("SiteTolmer", "WindowXSize", "?"), "12600");
}

TEST_F(SiteManagerTest, ADriveThatCannotBeReadIsRefusedAndTheListGoesBack) {
  Write("index.html", "<TITLE>Home</TITLE>");
  Start();
  SiteManagerWindow window(*app, frame.get());
  window.Files()->SetFolder(QString::fromStdString(Site()));
  DriveList* drives = window.Files()->Drives();
  drives->SetDrives({"/", QString::fromStdString(Site() + "gone")});
  messages.Clear();
  drives->setCurrentIndex(1);
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "Drive not ready.");
  EXPECT_EQ(drives->currentText(), "/");
  EXPECT_EQ(window.Files()->Folder().toStdString() + "/", Site());
  EXPECT_EQ(window.Files()->Names(), QStringList{"index.html"});
}

}  // namespace
}  // namespace tessarine
