// F1, the help buttons, the Help menu and the start screen, over the shipped help pages
// and a shell that opens nothing.
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QKeyEvent>
#include <QMenu>
#include <QPushButton>
#include <QTimer>
#include <filesystem>
#include <set>

#include "WindowFixture.h"
#include "core/HelpTopics.h"
#include "platform/Desktop.h"
#include "ui/DocumentForm.h"
#include "ui/help/HelpWindows.h"

namespace fs = std::filesystem;

namespace tessarine {
namespace {

class OpenNothingShell : public Shell {
 public:
  bool OpenInDefaultViewer(const std::string& path) override {
    opened.push_back(path);
    return true;
  }
  bool StartProgram(const std::string&, const std::vector<std::string>&) override { return true; }
  void ShowProperties(const std::string&) override {}
  std::vector<std::string> opened;
};

class HelpKeys : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    if (HasFatalFailure()) return;
    fs::copy(fs::path(TESSARINE_DATA_DIR) / "help", Path("help"), fs::copy_options::recursive);
    watchedShell = &shell;
  }
  std::string Page(const char* name) { return Path("help") + "/" + name; }
  std::string LastOpened() const { return shell.opened.empty() ? "" : shell.opened.back(); }
  static void PressF1(QWidget* target) {
    QKeyEvent press(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier);
    QApplication::sendEvent(target, &press);
  }
  // Runs `act` on each modal window as it comes up, until `run` returns.
  static void WhileRunning(const std::function<void()>& run, std::function<void(QWidget*)> act) {
    QTimer timer;
    timer.setInterval(0);
    QObject::connect(&timer, &QTimer::timeout, [&act] {
      if (QWidget* modal = QApplication::activeModalWidget()) act(modal);
    });
    timer.start();
    run();
    timer.stop();
  }

  // Acts on the start screen once it is up.
  void OnStartScreen(std::function<void(QDialog*)> act) {
    startScreenTimer.setInterval(0);
    QObject::connect(&startScreenTimer, &QTimer::timeout, [this, act = std::move(act)] {
      auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!d || d->objectName() != "StartScreen") return;
      startScreenTimer.stop();
      act(d);
    });
    startScreenTimer.start();
  }

  QTimer startScreenTimer;
  OpenNothingShell shell;
};

TEST_F(HelpKeys, F1AndTheHelpButtonOpenThePageOfTheDialogInFront) {
  Start();
  NewDocumentWindow(*app);
  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "ValidateDialog");
    PressF1(d->focusWidget() ? d->focusWidget() : d);
    EXPECT_EQ(LastOpened(), Page("validate.html"));
    shell.opened.clear();
    // The button sends the key to the main window; the page is still the dialog's.
    Child<QPushButton>(d, "helpButton")->click();
    EXPECT_EQ(LastOpened(), Page("validate.html"));
    d->reject();
  });
  ASSERT_TRUE(frame->ShowDialog("Validate"));
  EXPECT_EQ(shell.opened.size(), 1u);

  shell.opened.clear();
  PressF1(Active() ? static_cast<QWidget*>(Active()) : frame.get());
  EXPECT_EQ(shell.opened, std::vector<std::string>{Page("index.html")});
  // Holding the key down opens nothing more.
  QKeyEvent repeat(QEvent::KeyPress, Qt::Key_F1, Qt::NoModifier, QString(), true);
  QApplication::sendEvent(frame.get(), &repeat);
  EXPECT_EQ(shell.opened.size(), 1u);
}

TEST_F(HelpKeys, AWindowWithoutAPageSpeaksForItsOwner) {
  QWidget owner;
  owner.setObjectName("HyperlinkDialog");
  QWidget box(&owner, Qt::Dialog);  // a message box over the dialog, say
  EXPECT_EQ(HelpIdOf(&box), "HyperlinkDialog");
  QWidget stray;
  stray.setObjectName("SomethingNew");
  EXPECT_EQ(HelpIdOf(&stray), std::string(kHelpContents));
  EXPECT_EQ(HelpIdOf(nullptr), std::string(kHelpContents));
}

// Every dialog that the program opens by name has a page of its own.
TEST_F(HelpKeys, EveryNamedDialogHasItsOwnPage) {
  Start();
  NewDocumentWindow(*app);
  const QStringList names = frame->DialogNames();
  ASSERT_FALSE(names.isEmpty());
  std::set<std::string> seen;
  for (const QString& name : names) {
    std::string windowName;
    const std::set<QWidget*> before = [] {
      const auto list = QApplication::topLevelWidgets();
      return std::set<QWidget*>(list.begin(), list.end());
    }();
    WhileRunning([&] { frame->ShowDialog(name.toStdString() + ":0"); },
                 [&windowName](QWidget* modal) {
                   if (windowName.empty()) windowName = modal->objectName().toStdString();
                   modal->close();
                 });
    // A window that stays open beside the frame.
    for (QWidget* w : QApplication::topLevelWidgets())
      if (!before.count(w) && w->isVisible()) {
        if (windowName.empty()) windowName = w->objectName().toStdString();
        w->close();
      }
    if (windowName.empty()) {
      ADD_FAILURE() << name.toStdString() << " opened no window";
      continue;
    }
    seen.insert(windowName);
    EXPECT_TRUE(HasHelpTopic(windowName)) << name.toStdString() << " opens " << windowName;
    EXPECT_NE(HelpPageOf(windowName), "index.html") << windowName;
  }
  EXPECT_GE(seen.size(), 10u);
}

TEST_F(HelpKeys, HelpMenuOpensTheContentsAndTheThreeTopics) {
  Start();
  const std::pair<const char*, const char*> entries[] = {{"mnuHelpContents", "index.html"},
                                                         {"mnuHelpBeginners", "beginners.html"},
                                                         {"mnuHelpTutorial", "tutorial.html"},
                                                         {"mnuHelpHowToUse", "howto.html"}};
  for (const auto& [command, page] : entries) {
    QAction* a = frame->Command(command);
    ASSERT_NE(a, nullptr) << command;
    EXPECT_TRUE(a->isEnabled()) << command;
    a->trigger();
    EXPECT_EQ(LastOpened(), Page(page)) << command;
  }
  // Above About, in the order of the list.
  const QList<QAction*> items = frame->Menu("mnuHelp")->actions();
  EXPECT_EQ(items.indexOf(frame->Command("mnuHelpContents")), 0);
  EXPECT_LT(items.indexOf(frame->Command("mnuHelpHowToUse")),
            items.indexOf(frame->Command("mnuAbout")));
}

TEST_F(HelpKeys, StartScreenOpensTopicsAndTurnsItselfOff) {
  store.SaveSetting("Miscellaneous", "MainMenuBox", "on");
  bool shown = false;
  OnStartScreen([&](QDialog* d) {
    shown = true;
    EXPECT_EQ(d->windowTitle(), "Tessarine Main Menu");
    Child<QPushButton>(d, "tutorialButton")->click();
    Child<QPushButton>(d, "beginnersButton")->click();
    Child<QPushButton>(d, "howToButton")->click();
    EXPECT_TRUE(d->isVisible());  // the screen stays for the way in
    Child<QCheckBox>(d, "dontShowAgain")->setChecked(true);
    Child<QPushButton>(d, "startButton")->click();
  });
  Start();
  EXPECT_TRUE(shown);
  EXPECT_EQ(shell.opened, (std::vector<std::string>{Page("tutorial.html"), Page("beginners.html"),
                                                    Page("howto.html")}));
  EXPECT_EQ(store.GetSetting("Miscellaneous", "MainMenuBox", ""), "off");
}

TEST_F(HelpKeys, StartScreenClosedAnyOtherWayStaysOn) {
  store.DeleteSetting("Miscellaneous", "MainMenuBox");  // a first start shows it too
  bool shown = false;
  OnStartScreen([&](QDialog* d) {
    shown = true;
    d->close();
  });
  Start();
  EXPECT_TRUE(shown);
  EXPECT_EQ(store.GetSetting("Miscellaneous", "MainMenuBox", "unset"), "unset");
}

}  // namespace
}  // namespace tessarine
