// The window's current face: icons, the toolbar style, view choices for the editor, the
// Window menu's list of documents, tabs and About. None of it changes a document's text.

#include <QAction>
#include <QDialog>
#include <QFile>
#include <QIcon>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QToolBar>
#include <QVBoxLayout>
#include <filesystem>

#include "WindowFixture.h"
#include "ui/SciEdit.h"

namespace tessarine {
namespace {

class FaceTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "ShowPageProps", "0");  // New opens no dialog
  }
  long MarginWidth() {
    return Active()->Editor().SendScintilla(QsciScintillaBase::SCI_GETMARGINWIDTHN, 0UL);
  }
  QStringList WindowEntries() {
    QMenu* window = frame->Menu("mnuWindow");
    emit window->aboutToShow();
    QStringList out;
    for (QAction* a : window->actions())
      if (a->objectName().startsWith("mnuWindowDocument"))
        out << a->text() + (a->isChecked() ? " *" : "");
    return out;
  }
};

TEST_F(FaceTest, ToolbarsShowThemeIconsInTheChosenStyle) {
  Start();
  if (!QIcon::hasThemeIcon("document-open")) GTEST_SKIP() << "no icon theme installed";
  for (const char* key : {"New", "Open", "Save", "Cut", "Find"})
    EXPECT_FALSE(frame->Button("tbrFile", key)->icon().isNull()) << key;
  EXPECT_FALSE(frame->Button("tbrFormat", "Bold")->icon().isNull());
  EXPECT_EQ(frame->Button("tbrFile", "Open")->toolTip(), "Open (Ctrl-O)") << "tooltips stay";
  EXPECT_EQ(frame->Toolbar("tbrFile")->toolButtonStyle(), Qt::ToolButtonIconOnly);

  frame->Command("mnuViewButtons_beside")->trigger();
  for (const char* bar : {"tbrFile", "tbrFormat", "tbrInsert", "tbrTools"})
    EXPECT_EQ(frame->Toolbar(bar)->toolButtonStyle(), Qt::ToolButtonTextBesideIcon);
  EXPECT_EQ(store.GetSetting("View", "ToolbarButtons", ""), "beside");
  frame->Command("mnuViewButtons_text")->trigger();
  EXPECT_EQ(frame->Toolbar("tbrTools")->toolButtonStyle(), Qt::ToolButtonTextOnly);
}

TEST_F(FaceTest, LineNumbersOnByDefaultAndTheChoiceIsKept) {
  Start();
  EXPECT_GT(MarginWidth(), 0);
  const std::string before = Active()->Edit().Text();
  frame->Command("mnuViewLineNumbers")->trigger();
  EXPECT_EQ(MarginWidth(), 0);
  EXPECT_EQ(store.GetSetting("View", "LineNumbers", ""), "off");
  frame->Button("tbrFile", "New")->trigger();  // a new window follows the choice
  EXPECT_EQ(MarginWidth(), 0);
  EXPECT_EQ(Active()->Edit().Text(), before) << "the view never changes the text";
}

TEST_F(FaceTest, WindowMenuListsTheDocumentsWithTheActiveOneTicked) {
  Start();
  frame->Button("tbrFile", "New")->trigger();
  EXPECT_EQ(WindowEntries(), (QStringList{"&1 Untitled:1", "&2 Untitled:2 *"}));
  // Choosing an entry brings its document forward.
  QMenu* window = frame->Menu("mnuWindow");
  for (QAction* a : window->actions())
    if (a->objectName() == "mnuWindowDocument1") a->trigger();
  EXPECT_EQ(Active()->Caption(), "Untitled:1");
  EXPECT_EQ(WindowEntries(), (QStringList{"&1 Untitled:1 *", "&2 Untitled:2"}));
}

TEST_F(FaceTest, DocumentsAsTabsAndBackAsWindows) {
  Start();
  frame->Command("mnuViewTabs")->trigger();
  EXPECT_EQ(frame->MdiArea()->viewMode(), QMdiArea::TabbedView);
  EXPECT_EQ(store.GetSetting("View", "Tabs", ""), "on");
  frame->Command("mnuViewTabs")->trigger();
  EXPECT_EQ(frame->MdiArea()->viewMode(), QMdiArea::SubWindowView);
}

TEST_F(FaceTest, CascadeLeavesEachDocumentTwoThirdsOfTheArea) {
  Start();
  frame->resize(1000, 800);
  frame->Button("tbrFile", "New")->trigger();
  frame->Command("mnuWindowArrange0")->trigger();
  const QRect area = frame->MdiArea()->viewport()->rect();
  const auto subs = frame->MdiArea()->subWindowList();
  ASSERT_EQ(subs.size(), 2);
  for (QMdiSubWindow* sub : subs) {
    EXPECT_GE(sub->width(), area.width() * 2 / 3 - 1);
    EXPECT_GE(sub->height(), area.height() * 2 / 3 - 1);
  }
  EXPECT_NE(subs[0]->pos(), subs[1]->pos());
}

TEST_F(FaceTest, TheDesktopEntryCarriesTheApplicationIcon) {
  // The application folder holds the icon the data folder ships.
  QFile::copy(TESSARINE_DATA_DIR "/tessarine.svg", dir.path() + "/tessarine.svg");
  Start();
  const std::string entry =
      Slurp(dir.path().toStdString() + "/data/applications/tessarine.desktop");
  EXPECT_NE(entry.find("\nIcon=tessarine\n"), std::string::npos);
  EXPECT_TRUE(std::filesystem::exists(dir.path().toStdString() +
                                      "/data/icons/hicolor/scalable/apps/tessarine.svg"));
  EXPECT_FALSE(QIcon(dir.path() + "/tessarine.svg").isNull());
}

TEST_F(FaceTest, TabLeavesADialogsMultiLineFieldAndCtrlTabTypesIt) {
  Start();
  QDialog dialog(frame.get());
  auto* notes = new QPlainTextEdit(&dialog);
  auto* next = new QLineEdit(&dialog);
  auto* layout = new QVBoxLayout(&dialog);
  layout->addWidget(notes);
  layout->addWidget(next);
  dialog.show();
  QApplication::setActiveWindow(&dialog);
  notes->setFocus();
  QApplication::processEvents();
  if (QApplication::focusWidget() != notes) GTEST_SKIP() << "no keyboard focus on this platform";
  QKeyEvent ctrlTab(QEvent::KeyPress, Qt::Key_Tab, Qt::ControlModifier, "\t");
  QApplication::sendEvent(notes, &ctrlTab);
  EXPECT_EQ(notes->toPlainText(), "\t");
  QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier, "\t");
  QApplication::sendEvent(notes, &tab);
  QApplication::processEvents();
  EXPECT_EQ(notes->toPlainText(), "\t") << "Tab types nothing";
  EXPECT_EQ(QApplication::focusWidget(), next);
}

// The mnemonic letters that more than one entry of a menu claims.
void CollectClashes(QMenu* menu, QStringList& clashes) {
  QMap<QChar, QStringList> byKey;
  for (QAction* a : menu->actions()) {
    if (a->isSeparator()) continue;
    if (a->menu()) CollectClashes(a->menu(), clashes);
    const QString text = a->text();
    for (int i = 0; i + 1 < text.size(); ++i) {
      if (text[i] != '&') continue;
      if (text[i + 1] == '&') {
        ++i;
        continue;
      }
      byKey[text[i + 1].toLower()] << text;
      break;
    }
  }
  // Captions whose letters are the program's own since its first version: they stay.
  static const QStringList kKept = {"&Save",
                                    "&Save As UNIX format...",
                                    "Ar&gument - <ARG>",
                                    "Stron&g Emphasis - <STRONG>",
                                    "C&itation - <CITE>",
                                    "&Inserted Text - <INS>",
                                    "&Structure Tags",
                                    "Non-breaking &space - &&nbsp;"};
  for (auto it = byKey.begin(); it != byKey.end(); ++it) {
    const QStringList& entries = it.value();
    const bool kept = std::all_of(entries.begin(), entries.end(),
                                  [](const QString& e) { return kKept.contains(e); });
    if (entries.size() > 1 && !kept) clashes << menu->title() + ": " + entries.join(" / ");
  }
}

TEST_F(FaceTest, NoMenuGivesOneLetterToTwoEntries) {
  Start();
  QStringList clashes;
  for (QAction* top : frame->menuBar()->actions())
    if (top->menu()) CollectClashes(top->menu(), clashes);
  EXPECT_TRUE(clashes.isEmpty()) << clashes.join("\n").toStdString();
}

}  // namespace
}  // namespace tessarine
