// Find and replace through the window: the modeless dialog, Find Next and the find box.

#include <Qsci/qscicommandset.h>

#include <QAction>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTabBar>

#include "EditFixture.h"
#include "platform/SettingsStore.h"
#include "ui/FindReplace.h"

namespace tessarine {
namespace {

using FindWidget = EditFixture;

template <class W>
W* Child(QWidget* parent, const char* name) {
  W* w = parent->findChild<W*>(name);
  EXPECT_NE(w, nullptr) << name;
  return w;
}

TEST_F(FindWidget, ReplaceAllFromTheDialogOverTheSelection) {
  SciEdit& e = Document("<p>old</p> old OLD");
  e.Select(3, 3);
  frame->Command("mnuReplace")->trigger();
  auto* dialog = frame->findChild<FindReplaceDialog*>("FindReplaceDialog");
  ASSERT_NE(dialog, nullptr);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_FALSE(dialog->isModal());
  EXPECT_EQ(dialog->windowTitle(), "Find/Replace");
  EXPECT_EQ(Child<QTabBar>(dialog, "findTabs")->currentIndex(), 1);
  EXPECT_EQ(Child<QLineEdit>(dialog, "txtFind")->text(), "old");
  EXPECT_TRUE(Child<QRadioButton>(dialog, "optDirectionDown")->isChecked());

  Child<QLineEdit>(dialog, "txtReplace")->setText("new");
  Child<QPushButton>(dialog, "cmdReplaceAll")->click();
  // The search starts at the selection, which is the first match.
  EXPECT_EQ(e.Text(), "<p>new</p> new new");
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text,
            "Tessarine has completed searching the document.  A total of 3 replacements were "
            "made");
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_TRUE(app->documents.State(1).Changed);

  // The whole run is one step back and one step forward, from the menu and its keys.
  frame->Command("mnuUndo")->trigger();
  EXPECT_EQ(e.Text(), "<p>old</p> old OLD");
  EXPECT_FALSE(e.CanUndo());
  frame->Command("mnuRedo")->trigger();
  EXPECT_EQ(e.Text(), "<p>new</p> new new");
  EXPECT_EQ(frame->Command("mnuRedo")->shortcuts(),
            (QList<QKeySequence>{QKeySequence("Ctrl+Y"), QKeySequence("Ctrl+Shift+Z")}));
  for (const char* keys : {"Ctrl+Z", "Ctrl+Y", "Ctrl+Shift+Z"})
    EXPECT_EQ(e.standardCommands()->boundTo(QKeySequence(keys)[0].toCombined()), nullptr)
        << keys << " is the menu's";
}

TEST_F(FindWidget, FindNextWithCaseAndFromTheMenu) {
  SciEdit& e = Document("Word word WORD word");
  frame->Button("tbrFile", "Find")->trigger();
  auto* dialog = frame->findChild<FindReplaceDialog*>("FindReplaceDialog");
  ASSERT_NE(dialog, nullptr);
  EXPECT_EQ(Child<QTabBar>(dialog, "findTabs")->currentIndex(), 0);
  EXPECT_FALSE(Child<QPushButton>(dialog, "cmdReplaceAll")->isVisible());
  Child<QLineEdit>(dialog, "txtFind")->setText("word");
  Child<QCheckBox>(dialog, "chkCase")->setChecked(true);
  EXPECT_EQ(app->editing.find.FindMatchCase, 1);
  Child<QPushButton>(dialog, "cmdFind")->click();
  EXPECT_EQ(e.SelStart(), 5);
  frame->Command("mnuSFindNext")->trigger();
  EXPECT_EQ(e.SelStart(), 15);
  frame->Command("mnuSFindNext")->trigger();
  EXPECT_EQ(e.SelStart(), 15);
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "Tessarine has finished searching the document.");

  Child<QPushButton>(dialog, "cmdCancel")->click();
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(app->editing.find.FindWhat, "word");
}

TEST_F(FindWidget, FindBoxSearchesAndRemembersFiveKeywords) {
  SciEdit& e = Document("one two three two");
  QComboBox* box = frame->FindCombo();
  EXPECT_EQ(box->toolTip(), "Type and press the Enter key to find text in the document");
  for (const char* word : {"a", "b", "c", "d", "e", "TWO"}) {
    box->setEditText(word);
    emit box->lineEdit()->returnPressed();
  }
  EXPECT_EQ(e.SelStart(), 4);
  ASSERT_EQ(box->count(), 5);
  EXPECT_EQ(box->itemText(0), "TWO");
  EXPECT_EQ(box->itemText(4), "b");
  EXPECT_EQ(store.GetSetting("Miscellaneous", "SearchKeyword1", ""), "TWO");
  EXPECT_EQ(store.GetSetting("Miscellaneous", "SearchKeyword5", ""), "b");
  box->setEditText("two");
  emit box->lineEdit()->returnPressed();
  EXPECT_EQ(e.SelStart(), 14);
  EXPECT_EQ(box->itemText(0), "two");
  EXPECT_EQ(box->itemText(1), "e");
}

}  // namespace
}  // namespace tessarine
