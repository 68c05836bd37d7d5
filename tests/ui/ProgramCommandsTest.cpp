// The browser, program and print commands of the main window, and the settings in the
// user's real INI file.

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <Qsci/qsciprinter.h>

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QPrintDialog>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QThread>
#include <QTimer>
#include <fstream>
#include <memory>
#include <sstream>

#include "core/Application.h"
#include "core/Startup.h"
#include "platform/HeadlessPlatform.h"
#include "support/SettingsChecks.h"
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"
#include "ui/Printing.h"
#include "ui/QtPlatform.h"
#include "ui/SciEdit.h"
#include "ui/WindowFixture.h"

namespace tessarine {
namespace {

// Each test runs in its own process, so the INI file's folder is still unread by Qt here.
class QtStoreSettingsTest : public ::testing::Test {
 protected:
  void SetUp() override {
    ASSERT_TRUE(dir.isValid());
    qputenv("XDG_CONFIG_HOME", dir.path().toUtf8());
    store = std::make_unique<QtSettingsStore>();
    ASSERT_EQ(store->FileName(), dir.path() + "/Tessarine/Tessarine.ini");
  }
  void TearDown() override { qunsetenv("XDG_CONFIG_HOME"); }
  QTemporaryDir dir;
  std::unique_ptr<QtSettingsStore> store;
};

TEST_F(QtStoreSettingsTest, FirstStartGivesEveryDefault) {
  testing::ExpectFirstStartDefaults(*store);
}

TEST_F(QtStoreSettingsTest, EmptyTextsSurviveTheFileAndKeepTheirMeaning) {
  testing::ExpectEmptyTextsKeepTheirMeaning(*store);
  QtSettingsStore reread;
  testing::ExpectEmptyTextsKeepTheirMeaning(reread);
}

TEST_F(QtStoreSettingsTest, ABadRecentFileCountIsReportedAndLeftInTheFile) {
  testing::ExpectBadRecentFileCountReportedNotRepaired(*store);
  QtSettingsStore reread;
  EXPECT_EQ(reread.GetSetting("Startup", "NumberOfMRUFiles", ""), "six");
}

class ProgramCommandsTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    watchedShell = &shell;
  }
  void Write(const std::string& path, const std::string& bytes) {
    std::ofstream(path, std::ios::binary) << bytes;
  }
  // A browser that writes the words it was given to its own name plus ".args".
  std::string Recorder(const char* name) {
    const std::string path = Path(name);
    Write(path, "#!/bin/sh\nfor a in \"$@\"; do printf '%s\\n' \"$a\"; done > '" + path +
                    ".part'\nmv '" + path + ".part' '" + path + ".args'\n");
    ::chmod(path.c_str(), 0755);
    return path;
  }
  static std::string Recorded(const std::string& program) {
    const std::string log = program + ".args";
    for (int i = 0; i < 1000 && ::access(log.c_str(), F_OK) != 0; ++i) QThread::msleep(10);
    return Slurp(log);
  }
  // Answers the next modal dialog from inside its own event loop; records its kind.
  void AnswerNextDialog(bool accept) {
    QTimer::singleShot(0, [this, accept] {
      auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!d) return;
      dialogShown = qobject_cast<QPrintDialog*>(d) != nullptr;
      accept ? d->accept() : d->reject();
    });
  }

  PosixShell shell;
  bool dialogShown = false;
};

TEST_F(ProgramCommandsTest, BrowserEntriesAndButtonsReachTheBrowserWithThePagesPath) {
  const std::string page = Path("page.html");
  Write(page, "<P>hi</P>\r\n");
  const std::string browser = Recorder("browser");
  store.SaveSetting("Apps", "Browser2", browser);
  Start(page);
  for (const char* name : {"mnuBrowser1", "mnuBrowser2", "mnuImageMapper", "mnuFTP"})
    ASSERT_NE(frame->Command(name), nullptr) << name;
  EXPECT_EQ(frame->Command("mnuBrowser2")->text(), "View page with Browser &2");
  for (const char* key : {"Browser1", "Browser2", "FTP"})
    EXPECT_TRUE(frame->Button("tbrTools", key)->isEnabled()) << key;
  EXPECT_TRUE(frame->Button("tbrFile", "Print")->isEnabled());

  frame->Button("tbrTools", "Browser2")->trigger();
  EXPECT_EQ(Recorded(browser), page + "\n");
  EXPECT_TRUE(messages.shown().empty());
}

TEST_F(ProgramCommandsTest, FtpButtonAsksForTheClientAndYesLeadsToPreferences) {
  Start();
  int preferences = 0;
  OnDialog([&](QDialog* d) {
    EXPECT_EQ(d->objectName(), "PreferencesDialog");
    auto* pages = d->findChild<QStackedWidget*>("pages");
    ASSERT_NE(pages, nullptr);
    EXPECT_TRUE(pages->currentWidget()->isAncestorOf(d->findChild<QWidget*>("ftpClient")));
    ++preferences;
    d->reject();
  });
  messages.Queue(MsgAnswer::OK);
  messages.Queue(MsgAnswer::Yes);
  frame->Button("tbrTools", "FTP")->trigger();  // the file dialog is cancelled
  ASSERT_EQ(messages.shown().size(), 2u);
  EXPECT_EQ(dialogs.requests().at(0).title, "Select FTP Client...");
  EXPECT_EQ(messages.shown()[1].title, "Incorrect path/filename");
  EXPECT_EQ(preferences, 1);
}

TEST_F(ProgramCommandsTest, PrintAsksThenShowsThePrintDialog) {
  Start();
  messages.Queue(MsgAnswer::No);
  AnswerNextDialog(false);
  frame->Button("tbrFile", "Print")->trigger();
  QApplication::processEvents();
  EXPECT_FALSE(dialogShown);
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "Do you want to print this entire HTML document?");

  messages.Queue(MsgAnswer::Yes);
  AnswerNextDialog(false);
  frame->Button("tbrFile", "Print")->trigger();
  EXPECT_TRUE(dialogShown);
}

TEST_F(ProgramCommandsTest, AcceptedPrintDialogPrintsTheText) {
  Start();
  auto* form = dynamic_cast<DocumentForm*>(frame->ActiveDocumentWindow());
  ASSERT_NE(form, nullptr);
  form->Edit().SetText("<P>printed</P>");
  QsciPrinter printer;
  printer.setOutputFormat(QPrinter::PdfFormat);
  const QString pdf = dir.path() + "/out.pdf";
  printer.setOutputFileName(pdf);
  AnswerNextDialog(true);
  EXPECT_TRUE(PrintDocument(frame.get(), form->Editor(), printer));
  EXPECT_TRUE(dialogShown);
  QFile out(pdf);
  ASSERT_TRUE(out.open(QIODevice::ReadOnly));
  EXPECT_TRUE(out.read(4) == "%PDF");
}

}  // namespace
}  // namespace tessarine
