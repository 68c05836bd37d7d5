// The page tools in the window: the validator fills the error list and a click on a
// message finds its place; the spelling dialog's decisions; the statistics wizard's run.
#include <QApplication>
#include <QLineEdit>
#include <QListWidget>
#include <QMouseEvent>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QTextBlock>
#include <QTimer>

#include "sitetools/AccessStatsReport.h"
#include "ui/WindowFixture.h"
#include "ui/sitetools/SpellDialog.h"

namespace tessarine {
namespace {

// Runs `steps` on the modal dialog once its own event loop is running.
void WithModal(std::function<void(QWidget*)> steps) {
  QTimer::singleShot(0, [steps = std::move(steps)] {
    QWidget* modal = QApplication::activeModalWidget();
    ASSERT_NE(modal, nullptr);
    steps(modal);
  });
}

void Click(QWidget* dialog, const char* button) {
  auto* b = dialog->findChild<QPushButton*>(button);
  ASSERT_NE(b, nullptr) << button;
  b->click();
}

class SiteToolsWindow : public WindowFixture {};

// Records what would be opened, and opens nothing.
class RecordingShell : public Shell {
 public:
  bool OpenInDefaultViewer(const std::string& path) override {
    opened.push_back(path);
    return true;
  }
  bool StartProgram(const std::string&, const std::vector<std::string>&) override { return true; }
  void ShowProperties(const std::string&) override {}
  std::vector<std::string> opened;
};

TEST_F(SiteToolsWindow, ValidationFillsTheErrorListAndAClickFindsTheMessage) {
  Start();
  DocumentWindow* doc = NewDocumentWindow(*app);
  doc->Edit().SetText("<title>x</title>\r\n<p>one\r\n\tab</x> more");
  WithModal([](QWidget* dialog) {
    EXPECT_EQ(dialog->objectName(), "ValidateDialog");
    Click(dialog, "nextButton");  // "Validate your HTML" is chosen at start
    EXPECT_EQ(dialog->findChild<QPushButton*>("nextButton")->text(), "&Done");
    Click(dialog, "nextButton");
  });
  frame->Command("mnuValidate")->trigger();
  auto* panel = frame->findChild<QWidget*>("picErrorList");
  auto* list = frame->findChild<QPlainTextEdit*>("txtTidyErrors");
  ASSERT_TRUE(panel && list);
  EXPECT_TRUE(panel->isVisible());
  const QString report = list->toPlainText();
  ASSERT_TRUE(report.contains("line 3 column 11 - Warning: discarding unexpected </x>"))
      << report.toStdString();

  // A click on that message puts the caret before "</x>".
  QTextBlock block = list->document()->begin();
  while (block.isValid() && !block.text().contains("</x>")) block = block.next();
  QTextCursor cursor(block);
  const QPoint at = list->cursorRect(cursor).center();
  QMouseEvent release(QEvent::MouseButtonRelease, at, list->viewport()->mapToGlobal(at),
                      Qt::LeftButton, Qt::NoButton, Qt::NoModifier);
  QApplication::sendEvent(list->viewport(), &release);
  EXPECT_EQ(doc->Edit().SelStart(),
            static_cast<Pos>(std::string("<title>x</title>\r\n<p>one\r\n\tab").size()));
}

TEST_F(SiteToolsWindow, StatisticsWizardChecksThePathThenWritesAndOpensTheReport) {
  RecordingShell shell;
  watchedShell = &shell;
  Start();
  const std::string log = Path("accesslog.txt");
  std::ofstream(log, std::ios::binary)
      << "14   3   11/23/2026|/|Mozilla/4.0 (compatible; MSIE 5.0; "
         "Windows 98)|dial.aol.com\r\n";
  WithModal([&log](QWidget* dialog) {
    EXPECT_EQ(dialog->objectName(), "AccessStatsDialog");
    Click(dialog, "nextButton");
    EXPECT_EQ(dialog->findChild<QPushButton*>("nextButton")->text(), "View statistics");
    Click(dialog, "nextButton");  // the path is empty: a message, nothing run
    dialog->findChild<QLineEdit*>("logPathText")->setText(QString::fromStdString(log));
    Click(dialog, "nextButton");
    Click(dialog, "cancelButton");
  });
  frame->Command("mnuStats")->trigger();
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "Please enter the Access Log path and filename.");
  const std::string report = Path("accessstats.html");
  ASSERT_EQ(shell.opened, std::vector<std::string>{report});
  EXPECT_NE(Slurp(report).find("Total Hits:  1<BR><BR>"), std::string::npos);
  EXPECT_EQ(Slurp(Path("percntbar.gif")), PercentBarImage());
}

TEST(SpellDialogWidget, SuggestionsAndTheChosenAction) {
  SpellDialog dialog("custom.dic", nullptr);
  WithModal([](QWidget* d) {
    auto* list = d->findChild<QListWidget*>("suggestionList");
    EXPECT_EQ(list->count(), 2);
    EXPECT_EQ(d->findChild<QLineEdit*>("replaceWithText")->text(), "the");
    list->setCurrentRow(1);
    Click(d, "changeAllButton");
  });
  SpellDecision decision = dialog.Decide("teh", {"the", "tech"});
  EXPECT_EQ(decision.action, SpellAction::ChangeAll);
  EXPECT_EQ(decision.replacement, "tech");

  WithModal([](QWidget* d) {
    auto* list = d->findChild<QListWidget*>("suggestionList");
    EXPECT_FALSE(list->isEnabled());
    EXPECT_EQ(list->item(0)->text(), "[No suggestions]");
    Click(d, "cancelButton");
  });
  EXPECT_EQ(dialog.Decide("qqzx", {}).action, SpellAction::Cancel);
}

}  // namespace
}  // namespace tessarine
