// The menu systems on the document windows, the custom menus' dialog and the Tip of the Day.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <string>
#include <vector>

#include "settings/DailyTip.h"
#include "settings/MenuSystem.h"
#include "ui/WindowFixture.h"
#include "ui/settings/DailyTipDialog.h"
#include "ui/settings/DocumentMenus.h"

namespace tessarine {
namespace {

class MenuSystemWidgetTest : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "BlankNewDoc", "1");
    store.SaveSetting("Miscellaneous", "ShowPageProps", "0");
  }
  void StartWith(const char* word) {
    store.SaveSetting("Menu", "MenuSystem", word);
    Start();
    ASSERT_NE(Active(), nullptr);
  }
  QAction* Entry(const MenuItemRef& item) {
    QAction* a = MenuEntry(*frame, item);
    EXPECT_NE(a, nullptr) << item.ControlName();
    return a;
  }
  // The managed entries the menu bar shows hidden at the moment.
  std::vector<std::string> HiddenNow() {
    std::vector<std::string> names;
    for (const MenuItemRef& item : ManagedMenuItems())
      if (QAction* a = Entry(item); a && !a->isVisible()) names.push_back(item.ControlName());
    return names;
  }
  std::vector<std::string> HiddenBy(const char* word) {
    SettingsVars vars = app->settings;
    vars.MenuSystem = word;
    std::vector<std::string> names;
    for (const MenuItemRef& item : ManagedMenuItems())
      for (const MenuItemRef& h : HiddenMenuItems(vars))
        if (h == item) names.push_back(item.ControlName());
    return names;
  }
  void NewWindow() {
    frame->Button("tbrFile", "New")->trigger();
    QApplication::processEvents();
  }
  void Activate(int index) {
    const QList<QMdiSubWindow*> subs = frame->MdiArea()->subWindowList();
    ASSERT_LT(index, subs.size());
    frame->MdiArea()->setActiveSubWindow(subs[index]);
    QApplication::processEvents();
  }
  static void Shot(QWidget* w, const char* name) {
    const QString folder = qEnvironmentVariable("TESSARINE_SHOTS");
    if (!folder.isEmpty()) w->grab().save(folder + "/" + name + ".png");
  }
  static void ShotMenu(QMenu* menu, const char* name) {
    if (qEnvironmentVariableIsEmpty("TESSARINE_SHOTS")) return;
    menu->popup(QPoint(0, 0));
    QApplication::processEvents();
    Shot(menu, name);
    menu->hide();
  }
};

TEST_F(MenuSystemWidgetTest, MinimalMenusHideTheirEntriesInANewWindow) {
  StartWith("beginner");
  EXPECT_EQ(HiddenNow(), HiddenBy("beginner"));
  EXPECT_FALSE(HiddenNow().empty());
  // Groups the minimal menus keep, and entries no system hides.
  for (const char* name : {"mnuHypertext", "Graphics", "mnuHR", "mnuParagraphSub7",
                           "mnuLogicalStyles9", "mnuLogicalStyles16", "mnuPhysicalStyles0"}) {
    QAction* a = frame->Command(name);
    ASSERT_NE(a, nullptr) << name;
    EXPECT_TRUE(a->isVisible()) << name;
  }
  EXPECT_FALSE(frame->Command("mnuTableMaker")->isVisible());
  EXPECT_FALSE(frame->findChild<QAction*>("mnuTable")->isVisible());
  EXPECT_FALSE(frame->findChild<QAction*>("sep4")->isVisible());
  ShotMenu(frame->Menu("mnuInsert"), "menus-beginner-insert");
  ShotMenu(frame->Menu("mnuFormat"), "menus-beginner-format");
  ShotMenu(frame->findChild<QMenu*>("mnuParagraph"), "menus-beginner-paragraph");
}

TEST_F(MenuSystemWidgetTest, MaximumMenusHideNothingAndEveryEntryExists) {
  StartWith("advanced");
  EXPECT_TRUE(HiddenNow().empty());
  ShotMenu(frame->Menu("mnuInsert"), "menus-advanced-insert");
}

TEST_F(MenuSystemWidgetTest, OpenWindowsKeepTheMenuTheyOpenedWith) {
  StartWith("beginner");
  app->settings.MenuSystem = "advanced";  // as Preferences leave it
  NewWindow();
  ASSERT_EQ(frame->MdiArea()->subWindowList().size(), 2);
  EXPECT_TRUE(HiddenNow().empty());
  Activate(0);
  EXPECT_EQ(HiddenNow(), HiddenBy("beginner"));
  Activate(1);
  EXPECT_TRUE(HiddenNow().empty());

  // Applying again (after a cancelled Open) hides more in the active window, never less.
  app->settings.MenuSystem = "intermediate";
  app->files.applyMenuSystem();
  EXPECT_EQ(HiddenNow(), HiddenBy("intermediate"));
  app->settings.MenuSystem = "advanced";
  app->files.applyMenuSystem();
  EXPECT_EQ(HiddenNow(), HiddenBy("intermediate"));
}

TEST_F(MenuSystemWidgetTest, CustomDialogSetsTheGroupsTheNextWindowHides) {
  store.SaveSetting("Menu", "TablesMenu", "on");
  store.SaveSetting("Menu", "AnchorMenu", "on");
  StartWith("custom");
  // All but Tables absent: hidden.
  EXPECT_FALSE(Entry({"mnuForm"})->isVisible());
  EXPECT_TRUE(Entry({"mnuTable"})->isVisible());

  OnDialog([this](QDialog* d) {
    EXPECT_EQ(d->windowTitle(), "Custom Menu Settings");
    EXPECT_FALSE(Child<QCheckBox>(d, "formsCheck")->isChecked());
    EXPECT_TRUE(Child<QCheckBox>(d, "tablesCheck")->isChecked());
    Child<QCheckBox>(d, "formsCheck")->setChecked(true);
    Child<QCheckBox>(d, "tablesCheck")->setChecked(false);
    Child<QCheckBox>(d, "javaScriptCheck")->setChecked(true);
    Shot(d, "custom-menu-settings");
    Child<QPushButton>(d, "okButton")->click();
  });
  ASSERT_TRUE(frame->ShowDialog("CustomMenu"));
  EXPECT_EQ(store.GetSetting("Menu", "FormsMenu", ""), "on");
  EXPECT_EQ(store.GetSetting("Menu", "TablesMenu", ""), "off");
  EXPECT_EQ(store.GetSetting("Menu", "JavaMenu", ""), "on");
  EXPECT_EQ(store.GetSetting("Menu", "StructMenu", ""), "off");
  EXPECT_EQ(store.GetSetting("Menu", "AnchorMenu", ""), "on");  // no box sets it
  // The open window keeps its menu; the next one follows the choice.
  EXPECT_FALSE(Entry({"mnuForm"})->isVisible());
  NewWindow();
  EXPECT_TRUE(Entry({"mnuForm"})->isVisible());
  EXPECT_FALSE(Entry({"mnuTable"})->isVisible());
  EXPECT_TRUE(Entry({"mnuScriptingMain"})->isVisible());
  EXPECT_FALSE(Entry({"mnuOtherHTMLSub", 0})->isVisible());

  // Cancel changes nothing.
  OnDialog([this](QDialog* d) {
    Child<QCheckBox>(d, "structureTagsCheck")->setChecked(true);
    Child<QPushButton>(d, "cancelButton")->click();
  });
  frame->ShowDialog("CustomMenu");
  EXPECT_EQ(app->settings.StructMenu, "off");
  EXPECT_EQ(store.GetSetting("Menu", "StructMenu", ""), "off");
}

TEST_F(MenuSystemWidgetTest, NoTipAtStartWhenTurnedOff) {
  Start();  // the fixture turns the tips off
  EXPECT_EQ(frame->findChild<DailyTipDialog*>(), nullptr);
}

TEST_F(MenuSystemWidgetTest, TipOfTheDayAtStartAndFromTheHelpMenu) {
  store.SaveSetting("Miscellaneous", "TipOfTheDay", "On");
  store.SaveSetting("Miscellaneous", "DailyTipNumber", "3");
  Start();
  auto* tip = frame->findChild<DailyTipDialog*>();
  ASSERT_NE(tip, nullptr);
  EXPECT_TRUE(tip->isVisible());
  EXPECT_EQ(tip->windowTitle(), "Tip of the Day");
  // The start goes on with its document under the tip.
  ASSERT_NE(Active(), nullptr);
  auto* text = Child<QLabel>(tip, "tipText");
  EXPECT_EQ(text->text().toStdString(), DailyTips()[2]);
  EXPECT_TRUE(Child<QCheckBox>(tip, "showAtStartup")->isChecked());
  Shot(tip, "tip-of-the-day");
  Child<QPushButton>(tip, "nextButton")->click();
  EXPECT_EQ(text->text().toStdString(), DailyTips()[3]);
  EXPECT_EQ(store.GetSetting("Miscellaneous", "DailyTipNumber", ""), "5");
  Child<QCheckBox>(tip, "showAtStartup")->setChecked(false);
  EXPECT_EQ(store.GetSetting("Miscellaneous", "TipOfTheDay", ""), "off");

  // Help, Tip of the Day raises the open one rather than a second.
  QAction* command = frame->Command("mnuTipOfTheDay");
  ASSERT_NE(command, nullptr);
  EXPECT_EQ(frame->Menu("mnuHelp")->actions().indexOf(command),
            frame->Menu("mnuHelp")->actions().indexOf(frame->Command("mnuAbout")) - 1);
  command->trigger();
  EXPECT_EQ(frame->findChildren<DailyTipDialog*>().size(), 1);
  Child<QPushButton>(tip, "closeButton")->click();
  QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(frame->findChild<DailyTipDialog*>(), nullptr);
  command->trigger();
  tip = frame->findChild<DailyTipDialog*>();
  ASSERT_NE(tip, nullptr);
  EXPECT_EQ(Child<QLabel>(tip, "tipText")->text().toStdString(), DailyTips()[4]);
  EXPECT_FALSE(Child<QCheckBox>(tip, "showAtStartup")->isChecked());
}

}  // namespace
}  // namespace tessarine
