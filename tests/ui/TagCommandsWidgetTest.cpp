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
#include <QRegularExpression>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QTimer>
#include <functional>

#include "core/Application.h"
#include "platform/EditControl.h"
#include "platform/HeadlessPlatform.h"
#include "ui/DocumentForm.h"
#include "ui/MainWindow.h"
#include "ui/SciEdit.h"
#include "ui/WindowFixture.h"
#include "ui/wizards/ShortcutBar.h"

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

  auto* bar = frame->findChild<ui::ShortcutBar*>("ShortcutBar");
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
  auto* form = qobject_cast<DocumentForm*>(frame->MdiArea()->currentSubWindow()->widget());
  ASSERT_NE(form, nullptr);
  for (Qt::Key key : {Qt::Key_B, Qt::Key_I, Qt::Key_U, Qt::Key_K, Qt::Key_H}) {
    QKeyEvent override(QEvent::ShortcutOverride, key, Qt::ControlModifier);
    override.ignore();
    QApplication::sendEvent(&form->Editor(), &override);
    EXPECT_FALSE(override.isAccepted()) << key;
  }
  EXPECT_EQ(frame->Command("mnuPhysicalStyles6")->shortcut(), QKeySequence("Ctrl+U"));
  // Its other keys stay its own.
  QKeyEvent lineCut(QEvent::ShortcutOverride, Qt::Key_L, Qt::ControlModifier);
  lineCut.ignore();
  QApplication::sendEvent(&form->Editor(), &lineCut);
  EXPECT_TRUE(lineCut.isAccepted());
}

TEST_F(TagCommandsWidget, WizardButtonsAreLiveAndTheBarsKeysOpenTheirDialogs) {
  EXPECT_TRUE(frame->Button("tbrInsert", "Page Properties")->isEnabled());
  EXPECT_TRUE(frame->Button("tbrInsert", "Special Characters")->isEnabled());
  EXPECT_TRUE(frame->Button("tbrFormat", "BR")->isEnabled());
  auto* bar = frame->findChild<ui::ShortcutBar*>("ShortcutBar");
  // The custom button's key opens the preferences at their page.
  OnDialog([](QDialog* d) {
    EXPECT_EQ(d->objectName(), "PreferencesDialog");
    auto* pages = d->findChild<QStackedWidget*>("pages");
    ASSERT_NE(pages, nullptr);
    EXPECT_TRUE(pages->currentWidget()->isAncestorOf(d->findChild<QWidget*>("customButtonName")));
    d->reject();
  });
  EXPECT_TRUE(bar->ClickKey("Add custom button"));
  // Its table wizard is there now: the key opens it.
  EXPECT_TRUE(bar->HasKey("TableWizard"));
  OnDialog([](QDialog* d) {
    EXPECT_EQ(d->objectName(), "TableWizardDialog");
    d->reject();
  });
  EXPECT_TRUE(bar->ClickKey("TableWizard"));
}

TEST_F(TagCommandsWidget, ShortcutBarOpensAndRemembersItsGroup) {
  auto* bar = frame->findChild<ui::ShortcutBar*>("ShortcutBar");
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
    Child<QLineEdit>(d, "colorHex")->setText("FF0000");
    Child<QCheckBox>(d, "bold")->setChecked(true);
    Child<QComboBox>(d, "position")->setCurrentText("Subscript");
    Child<QAbstractButton>(d, "okButton")->click();
  });
  frame->Button("tbrFormat", "Format")->trigger();
  EXPECT_EQ(Edit().Text(), "a <FONT COLOR=\"#FF0000\"><B><SUB>word</SUB></B></FONT>");
}

TEST_F(TagCommandsWidget, HorizontalLineDialogWritesThroughHeadAndBody) {
  Text("<HTML><BODY>\r\nab</BODY></HTML>", 15, 0);
  OnDialog([](QDialog* d) {
    EXPECT_EQ(d->objectName(), "HorizontalLine");
    Child<QLineEdit>(d, "lineWidth")->setText("50%");
    Child<QComboBox>(d, "cmbAlign")->setCurrentText("Right");
    Child<QAbstractButton>(d, "okButton")->click();
  });
  frame->Button("tbrFormat", "HR")->trigger();
  EXPECT_EQ(Edit().Text(),
            "<HTML><BODY>\r\na<hr size=\"1\" width=\"50%\" align=\"right\">b</BODY></HTML>");
}

TEST_F(TagCommandsWidget, MetatagsStayOpenOnAFailedCheckAndWriteTheHead) {
  Text("<HTML><HEAD></HEAD><BODY></BODY></HTML>", 0, 0);
  OnDialog([this](QDialog* d) {
    Child<QLineEdit>(d, "keywords")->setText("a, b");
    Child<QCheckBox>(d, "splashScreen")->setChecked(true);
    Child<QAbstractButton>(d, "okButton")->click();
    EXPECT_TRUE(d->isVisible());
    ASSERT_EQ(messages.shown().size(), 1u);
    Child<QCheckBox>(d, "splashScreen")->setChecked(false);
    Child<QAbstractButton>(d, "okButton")->click();
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
    Child<QComboBox>(d, "formatRow")->setCurrentText("May 2002");
    Child<QAbstractButton>(d, "okButton")->click();
  });
  frame->Command("mnuDateTime")->trigger();
  EXPECT_EQ(Edit().Text(), "This page last updated November 2026");

  Text("go()", 0, 4);
  OnDialog([](QDialog* d) {
    EXPECT_EQ(d->objectName(), "ScriptTags");
    Child<QComboBox>(d, "cmbLanguage")->setCurrentText("JScript");
    Child<QAbstractButton>(d, "cmdOK")->click();
  });
  EXPECT_TRUE(frame->findChild<ui::ShortcutBar*>("ShortcutBar")->ClickKey("Script tags"));
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
    // Every cell shows one character: no entity text, no "&" taken for a mnemonic.
    for (QAbstractButton* cell : d->findChildren<QAbstractButton*>(QRegularExpression("^cell")))
      EXPECT_EQ(QString(cell->text()).replace("&&", "\x01").remove('&').size(), 1)
          << cell->objectName().toStdString() << " " << cell->text().toStdString();
    EXPECT_EQ(Child<QAbstractButton>(d, "cell1_6")->text(), QString::fromUtf16(u"\u00C6"));
    d->reject();
  });
  frame->Button("tbrInsert", "Special Characters")->trigger();
  EXPECT_EQ(Edit().Text(), "&Aelig;&copy;");
}

}  // namespace
}  // namespace tessarine
