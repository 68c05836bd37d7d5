// The tag menus, buttons, shortcut bar and small dialogs, wired to the real logic.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>

#include "core/Application.h"
#include "platform/EditControl.h"
#include "platform/HeadlessPlatform.h"
#include "ui/Form2.h"
#include "ui/MDIForm1.h"
#include "ui/WindowFixture.h"
#include "ui/SciEdit.h"
#include "ui/wizards/SSListBar.h"

namespace tessarine {
namespace {

class TagCommandsWidget : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "FirstRun", "no");
    store.SaveSetting("Miscellaneous", "DefaultShortcutBarGroup", "3");
    Start();
    ASSERT_NE(app->ActiveEdit(), nullptr);
  }
  EditControl& Edit() { return *app->ActiveEdit(); }
  void Text(const std::string& text, Pos selStart, Pos selLength) {
    Edit().SetText(text);
    Edit().Select(selStart, selLength);
  }
  // Acts on the next modal dialog once it is up.
  void OnDialog(std::function<void(QDialog*)> act) {
    QTimer::singleShot(0, frame.get(), [act] {
      auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(d, nullptr);
      act(d);
    });
  }
  template <class T>
  static T* Child(QDialog* d, const char* name) {
    T* w = d->findChild<T*>(name);
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
};

TEST_F(TagCommandsWidget, MenusButtonsAndShortcutBarRunTheirCommands) {
  Text("[Sel]", 1, 3);
  frame->Command("mnuLogicalStyles9")->trigger();
  EXPECT_EQ(Edit().Text(), "[<EM>Sel</EM>]");
  frame->Command("mnuPAlignSub1")->trigger();
  EXPECT_EQ(Edit().Text(), "[<EM><P ALIGN=\"Center\">Sel</P></EM>]");
  frame->Command("mnuRepeat")->trigger();
  EXPECT_EQ(Edit().Text(), "[<EM><P ALIGN=\"Center\"><P ALIGN=\"Center\">Sel</P></P></EM>]");

  Text("[Sel]", 1, 3);
  frame->Button("tbrFormat", "Comment")->trigger();
  EXPECT_EQ(Edit().Text(), "[<!--Sel-->]");
  frame->findChild<QMenu*>("tbrFormatBRMenu")->findChild<QAction*>("BRClearAll")->trigger();
  EXPECT_EQ(Edit().Text(), "[<!--<BR CLEAR=\"All\">-->]");

  auto* bar = frame->findChild<ui::SSListBar*>("SSListBar1");
  ASSERT_NE(bar, nullptr);
  Text("x", 0, 1);
  EXPECT_TRUE(bar->ClickKey("ASP%="));
  EXPECT_EQ(Edit().Text(), "<%=x%>");
  EXPECT_TRUE(bar->HasKey("Add custom button"));

  store.SaveSetting("CustomButtons", "ButtonName3", "Mine");
  store.SaveSetting("CustomButtons", "ButtonStartTag3", "<Mine>");
  ui::ReloadCustomButtons(frame.get(), store);
  Text("", 0, 0);
  EXPECT_TRUE(bar->ClickKey("CustomButton3"));
  EXPECT_EQ(Edit().Text(), "<Mine>");

  headless.colorDialog.Queue(0xFF);
  frame->Button("tbrTools", "Color Picker")->trigger();
  EXPECT_EQ(Edit().Text(), "<Mine>#FF0000");
}

TEST_F(TagCommandsWidget, TheEditorLeavesTheTagShortcutsToTheMenus) {
  auto* form = qobject_cast<Form2*>(frame->MdiArea()->currentSubWindow()->widget());
  ASSERT_NE(form, nullptr);
  for (Qt::Key key : {Qt::Key_B, Qt::Key_I, Qt::Key_U, Qt::Key_K, Qt::Key_H}) {
    QKeyEvent override(QEvent::ShortcutOverride, key, Qt::ControlModifier);
    override.ignore();
    QApplication::sendEvent(&form->RichTextBox1(), &override);
    EXPECT_FALSE(override.isAccepted()) << key;
  }
  EXPECT_EQ(frame->Command("mnuPhysicalStyles6")->shortcut(), QKeySequence("Ctrl+U"));
  // Its other keys stay its own.
  QKeyEvent lineCut(QEvent::ShortcutOverride, Qt::Key_L, Qt::ControlModifier);
  lineCut.ignore();
  QApplication::sendEvent(&form->RichTextBox1(), &lineCut);
  EXPECT_TRUE(lineCut.isAccepted());
}

TEST_F(TagCommandsWidget, LaterWizardsStayDimmed) {
  for (const char* name : {"mnuHypertext", "Graphics", "mnuTableMaker", "mnuForm"})
    EXPECT_FALSE(frame->Command(name)->isEnabled()) << name;
  EXPECT_FALSE(frame->Button("tbrInsert", "Hyperlink")->isEnabled());
  EXPECT_FALSE(frame->Button("tbrInsert", "Table Wizard")->isEnabled());
  EXPECT_TRUE(frame->Button("tbrInsert", "Special Characters")->isEnabled());
  EXPECT_TRUE(frame->Button("tbrFormat", "BR")->isEnabled());
  auto* bar = frame->findChild<ui::SSListBar*>("SSListBar1");
  EXPECT_TRUE(bar->HasKey("FormWizard"));
  EXPECT_FALSE(bar->ClickKey("FormWizard"));
}

TEST_F(TagCommandsWidget, ShortcutBarOpensAndRemembersItsGroup) {
  auto* bar = frame->findChild<ui::SSListBar*>("SSListBar1");
  EXPECT_EQ(bar->currentIndex(), 2);
  bar->setCurrentIndex(3);
  for (int i = 1; i <= app->documents.UpperBound(); ++i) app->documents.State(i).Changed = false;
  frame->close();
  EXPECT_EQ(store.GetSetting("Miscellaneous", "DefaultShortcutBarGroup", ""), "4");
}

TEST_F(TagCommandsWidget, FormatButtonOpensTheFormatDialog) {
  Text("a word", 2, 4);
  OnDialog([](QDialog* d) {
    EXPECT_EQ(d->objectName(), "FormatChar");
    Child<QLineEdit>(d, "Text1")->setText("FF0000");
    Child<QCheckBox>(d, "Check1")->setChecked(true);
    Child<QComboBox>(d, "Combo2")->setCurrentText("Subscript");
    Child<QAbstractButton>(d, "Command3")->click();
  });
  frame->Button("tbrFormat", "Format")->trigger();
  EXPECT_EQ(Edit().Text(), "a <FONT COLOR=\"#FF0000\"><B><SUB>word</SUB></B></FONT>");
}

TEST_F(TagCommandsWidget, HorizontalLineDialogWritesThroughHeadAndBody) {
  Text("<HTML><BODY>\r\nab</BODY></HTML>", 15, 0);
  OnDialog([](QDialog* d) {
    EXPECT_EQ(d->objectName(), "frmHorizLine");
    Child<QLineEdit>(d, "Text2")->setText("50%");
    Child<QComboBox>(d, "cmbAlign")->setCurrentText("Right");
    Child<QAbstractButton>(d, "Command1")->click();
  });
  frame->Button("tbrFormat", "HR")->trigger();
  EXPECT_EQ(Edit().Text(),
            "<HTML><BODY>\r\na<hr size=\"1\" width=\"50%\" align=\"right\">b</BODY></HTML>");
}

TEST_F(TagCommandsWidget, MetatagsStayOpenOnAFailedCheckAndWriteTheHead) {
  Text("<HTML><HEAD></HEAD><BODY></BODY></HTML>", 0, 0);
  OnDialog([this](QDialog* d) {
    Child<QLineEdit>(d, "Text2")->setText("a, b");
    Child<QCheckBox>(d, "Check1")->setChecked(true);
    Child<QAbstractButton>(d, "Command1")->click();
    EXPECT_TRUE(d->isVisible());
    ASSERT_EQ(messages.shown().size(), 1u);
    Child<QCheckBox>(d, "Check1")->setChecked(false);
    Child<QAbstractButton>(d, "Command1")->click();
  });
  frame->Command("mnuMetaTags")->trigger();
  EXPECT_EQ(Edit().Text(),
            "<HTML><HEAD>\r\n<META Name=\"keywords\" Content=\"a, b\"></HEAD><BODY></BODY></HTML>");
}

TEST_F(TagCommandsWidget, DateStampAndScriptBlockFromMenuAndShortcutBar) {
  std::tm now{};
  now.tm_year = 2026 - 1900;
  now.tm_mon = 10;
  now.tm_mday = 21;
  headless.clock.Set(now);
  Text("", 0, 0);
  OnDialog([](QDialog* d) {
    EXPECT_EQ(d->objectName(), "DateTime");
    Child<QComboBox>(d, "Combo1")->setCurrentText("May 2002");
    Child<QAbstractButton>(d, "Command1")->click();
  });
  frame->Command("mnuDateTime")->trigger();
  EXPECT_EQ(Edit().Text(), "This page last updated November 2026");

  Text("go()", 0, 4);
  OnDialog([](QDialog* d) {
    EXPECT_EQ(d->objectName(), "frmScriptTags");
    Child<QComboBox>(d, "cmbLanguage")->setCurrentText("JScript");
    Child<QAbstractButton>(d, "cmdOK")->click();
  });
  EXPECT_TRUE(frame->findChild<ui::SSListBar*>("SSListBar1")->ClickKey("Script tags"));
  EXPECT_EQ(Edit().Text(),
            "\r\n\r\n<SCRIPT TYPE=\"text/VBScript\" LANGUAGE=\"JScript\">\r\n<!--\r\ngo()\r\n\r\n"
            "//-->\r\n</SCRIPT>\r\n\r\n");
}

TEST_F(TagCommandsWidget, SpecialCharactersStayOpenForSeveralCells) {
  Text("", 0, 0);
  OnDialog([](QDialog* d) {
    Child<QAbstractButton>(d, "cell1_6")->click();
    Child<QAbstractButton>(d, "cell2_8")->click();
    EXPECT_TRUE(d->isVisible());
    d->reject();
  });
  frame->Button("tbrInsert", "Special Characters")->trigger();
  EXPECT_EQ(Edit().Text(), "&Aelig;&copy;");
}

}  // namespace
}  // namespace tessarine
