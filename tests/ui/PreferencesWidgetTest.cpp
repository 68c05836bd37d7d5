// Preferences opened from the View menu and driven as a user would: OK reaches the open
// document, the custom buttons and favourites pages write what they show, bad numbers stay.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTimer>
#include <functional>

#include "core/Application.h"
#include "core/Styles.h"
#include "ui/SciEdit.h"
#include "ui/WindowFixture.h"
#include "ui/wizards/ShortcutBar.h"

namespace tessarine {
namespace {

class PreferencesWidget : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "FirstRun", "no");
  }
  // Opens Preferences, runs `act` on it, and cancels it if it is still up.
  void WithPreferences(std::function<void(QDialog*)> act) {
    OnDialog([act](QDialog* d) {
      EXPECT_EQ(d->objectName(), "PreferencesDialog");
      act(d);
      if (d->isVisible()) d->reject();
    });
    QAction* command = frame->Command("mnuPreferences");
    ASSERT_TRUE(command->isEnabled());
    command->trigger();
  }
  static void Click(QWidget* d, const char* name) { Child<QPushButton>(d, name)->click(); }
  static QWidget* ShownPage(QWidget* d) {
    return Child<QStackedWidget>(d, "pages")->currentWidget();
  }
  static long StyleColor(SciEdit& edit, StyleKind kind) {
    return edit.SendScintilla(QsciScintillaBase::SCI_STYLEGETFORE,
                              static_cast<unsigned long>(MakeStyle(kind)));
  }
};

TEST_F(PreferencesWidget, OkAppliesColoursWrapAndTheSidePanelToTheOpenDocument) {
  Start();
  DocumentForm* form = Active();
  ASSERT_NE(form, nullptr);
  ASSERT_TRUE(form->Editor().WordWrap());
  auto* split = Child<QSplitter>(frame.get(), "Vsplitter");
  auto* side = Child<QTabWidget>(frame.get(), "TabStrip1");
  ASSERT_EQ(split->indexOf(side), 1);

  const std::int32_t green = 0x00A000;
  headless.colorDialog.Queue(green);
  WithPreferences([&](QDialog* d) {
    auto* list = Child<QListWidget>(d, "categoryList");
    ASSERT_EQ(list->count(), 8);
    list->setCurrentRow(1);
    EXPECT_TRUE(ShownPage(d)->isAncestorOf(Child<QWidget>(d, "tagColorSquare")));
    Click(d, "tagColorSquare");
    // The preview follows at once, before OK.
    EXPECT_EQ(StyleColor(*Child<SciEdit>(d, "preview"), StyleKind::Tag), green);
    EXPECT_EQ(StyleColor(form->Editor(), StyleKind::Tag), 3277055);
    Child<QCheckBox>(d, "wordWrap")->setChecked(false);
    Child<QCheckBox>(d, "alignFileListLeft")->setChecked(true);
    Click(d, "okButton");
    EXPECT_FALSE(d->isVisible());
  });
  EXPECT_TRUE(messages.shown().empty());
  EXPECT_EQ(store.GetSetting("ColoredTags", "HTMLTagColor", ""), std::to_string(green));
  EXPECT_EQ(store.GetSetting("Miscellaneous", "WordWrap", ""), "off");
  EXPECT_EQ(StyleColor(form->Editor(), StyleKind::Tag), green);
  EXPECT_FALSE(form->Editor().WordWrap());
  EXPECT_FALSE(frame->Command("mnuWordWrap")->isChecked());
  EXPECT_EQ(split->indexOf(side), 0);

  // Cancel writes nothing and leaves the document as it is.
  headless.colorDialog.Queue(0x0000FF);
  WithPreferences([&](QDialog* d) {
    Click(d, "tagColorSquare");
    Child<QCheckBox>(d, "wordWrap")->setChecked(true);
    Click(d, "cancelButton");
  });
  EXPECT_EQ(store.GetSetting("ColoredTags", "HTMLTagColor", ""), std::to_string(green));
  EXPECT_FALSE(form->Editor().WordWrap());
}

TEST_F(PreferencesWidget, BoxesGovernTheirFieldsAndBrowseFillsThem) {
  Start();
  WithPreferences([&](QDialog* d) {
    auto* all = Child<QCheckBox>(d, "colorTags");
    auto* table = Child<QCheckBox>(d, "tableColorTags");
    EXPECT_TRUE(Child<QWidget>(d, "tableColorSquare")->isEnabled());
    table->setChecked(false);
    EXPECT_FALSE(Child<QWidget>(d, "tableColorSquare")->isEnabled());
    all->setChecked(false);
    EXPECT_FALSE(table->isEnabled());
    EXPECT_FALSE(Child<QWidget>(d, "tagColorSquare")->isEnabled());
    EXPECT_FALSE(Child<QWidget>(d, "aspColorSquare")->isEnabled());
    // The override box names what it overrides.
    auto* override = Child<QCheckBox>(d, "overrideBrowser");
    override->setChecked(true);
    EXPECT_EQ(Child<QLabel>(d, "overrideCaption")->text(), "default browser");
    override->setChecked(false);
    EXPECT_EQ(Child<QLabel>(d, "overrideCaption")->text(), "");
    // Browse fills the program's box; Cancel leaves it.
    dialogs.Queue("/usr/local/bin/ftp-client");
    Click(d, "browse_ftpClient");
    EXPECT_EQ(Child<QLineEdit>(d, "ftpClient")->text(), "/usr/local/bin/ftp-client");
    Click(d, "browse_ftpClient");
    EXPECT_EQ(Child<QLineEdit>(d, "ftpClient")->text(), "/usr/local/bin/ftp-client");
    EXPECT_EQ(dialogs.requests().back().initialFolder, "/usr/local/bin");
    // Autosave: ticked starts at ten minutes.
    auto* autoSave = Child<QCheckBox>(d, "autoSave");
    auto* minutes = Child<QLineEdit>(d, "autoSaveMinutes");
    EXPECT_FALSE(minutes->isEnabled());
    autoSave->click();
    EXPECT_TRUE(minutes->isEnabled());
    EXPECT_EQ(minutes->text(), "10");
    autoSave->click();
    EXPECT_EQ(minutes->text(), "");
  });
}

TEST_F(PreferencesWidget, CustomButtonsAreSavedWhenTheNumberChanges) {
  store.SaveSetting("CustomButtons", "ButtonName2", "Two");
  store.SaveSetting("CustomButtons", "ButtonStartTag2", "<B2>");
  Start();
  auto* bar = frame->findChild<ui::ShortcutBar*>("ShortcutBar");
  ASSERT_NE(bar, nullptr);
  WithPreferences([&](QDialog* d) {
    auto* number = Child<QSpinBox>(d, "customButtonNumber");
    auto* name = Child<QLineEdit>(d, "customButtonName");
    auto* start = Child<QLineEdit>(d, "customButtonStart");
    EXPECT_EQ(number->value(), 1);
    name->setText("Mine");
    start->setText("<Mine>");
    number->setValue(2);  // button 1 is saved first
    EXPECT_EQ(store.GetSetting("CustomButtons", "ButtonName1", ""), "Mine");
    EXPECT_EQ(name->text(), "Two");
    EXPECT_EQ(start->text(), "<B2>");
    EXPECT_TRUE(bar->HasKey("CustomButton1"));
    Click(d, "removeCustomButton");
    EXPECT_EQ(name->text(), "");
    EXPECT_EQ(store.GetSetting("CustomButtons", "ButtonStartTag2", "x"), "");
    EXPECT_FALSE(bar->HasKey("CustomButton2"));
    Click(d, "cancelButton");
  });
  // Buttons were written as they were saved, whatever closed the dialog.
  EXPECT_EQ(store.GetSetting("CustomButtons", "ButtonStartTag1", ""), "<Mine>");
}

TEST_F(PreferencesWidget, FavouriteUrlsStopAtFive) {
  Start();
  WithPreferences([&](QDialog* d) {
    auto* list = Child<QListWidget>(d, "favoriteList");
    auto* url = Child<QLineEdit>(d, "favoriteUrlText");
    for (int i = 1; i <= 6; ++i) {
      url->setText(QString("http://%1.example/").arg(i));
      Click(d, "replaceInsertUrl");
    }
    EXPECT_EQ(list->count(), 5);
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_EQ(messages.shown()[0].text, "Only 5 Favorite URLs are allowed.");
    EXPECT_EQ(url->text(), "http://6.example/");  // refused, not lost
    list->setCurrentRow(2);
    Click(d, "replaceInsertUrl");
    EXPECT_EQ(list->item(2)->text(), "http://6.example/");
    EXPECT_EQ(url->text(), "");
    // Enter in the box is the button, not OK.
    list->setCurrentRow(4);
    url->setText("http://seven.example/");
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QApplication::sendEvent(url, &enter);
    EXPECT_TRUE(d->isVisible());
    EXPECT_EQ(list->item(4)->text(), "http://seven.example/");
    Child<QRadioButton>(d, "menuSystem_beginner")->setChecked(true);
    Click(d, "okButton");
  });
  EXPECT_EQ(store.GetSetting("Favorite URLs", "URL18", ""), "http://6.example/");
  EXPECT_EQ(store.GetSetting("Favorite URLs", "URL20", ""), "http://seven.example/");
  EXPECT_EQ(app->settings.FavoriteURLs[16], "http://1.example/");
  EXPECT_EQ(store.GetSetting("Menu", "MenuSystem", ""), "beginner");
  EXPECT_EQ(app->settings.MenuSystem, "beginner");
}

// "Choose..." beside Custom sets the groups; OK writes them with the custom system.
TEST_F(PreferencesWidget, CustomMenusAreChosenFromTheMenusPage) {
  Start();
  WithPreferences([&](QDialog* d) {
    OnDialog([](QDialog* custom) {
      EXPECT_EQ(custom->objectName(), "CustomMenuDialog");
      Child<QCheckBox>(custom, "structureTagsCheck")->setChecked(true);
      Child<QCheckBox>(custom, "tablesCheck")->setChecked(true);
      Child<QPushButton>(custom, "okButton")->click();
    });
    Click(d, "customMenuButton");
    EXPECT_TRUE(Child<QRadioButton>(d, "menuSystem_custom")->isChecked());
    Click(d, "okButton");
  });
  EXPECT_EQ(store.GetSetting("Menu", "MenuSystem", ""), "custom");
  EXPECT_EQ(store.GetSetting("Menu", "StructMenu", ""), "on");
  EXPECT_EQ(store.GetSetting("Menu", "TablesMenu", ""), "on");
  EXPECT_EQ(store.GetSetting("Menu", "FormsMenu", ""), "off");
}

TEST_F(PreferencesWidget, ABadNumberKeepsTheDialogOpenAtItsField) {
  Start();
  WithPreferences([&](QDialog* d) {
    auto* size = Child<QLineEdit>(d, "fontSize");
    size->clear();
    size->insert("abc");  // only digits get in
    EXPECT_EQ(size->text(), "");
    size->insert("0");
    Child<QListWidget>(d, "categoryList")->setCurrentRow(6);
    Click(d, "okButton");
    EXPECT_TRUE(d->isVisible());
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_NE(messages.shown()[0].text.find("font size"), std::string::npos);
    EXPECT_TRUE(ShownPage(d)->isAncestorOf(size));
    Click(d, "cancelButton");
  });
  EXPECT_EQ(store.GetSetting("Font", "FontSize", "unset"), "unset");
}

TEST_F(PreferencesWidget, GarbageInTheSettingsStillStartsWithDefaults) {
  store.SaveSetting("Font", "FontSize", "huge");
  store.SaveSetting("Miscellaneous", "AutoSave", "often");
  store.SaveSetting("Startup", "NumberOfMRUFiles", "many");
  store.SaveSetting("ColoredTags", "HTMLTagColor", "green");
  Start();
  ASSERT_NE(Active(), nullptr);
  EXPECT_EQ(app->settings.NumberOfMRUFiles, 4);
  EXPECT_EQ(app->settings.AutoSaveMinutes, 0);
  EXPECT_EQ(StyleColor(Active()->Editor(), StyleKind::Tag), 3277055);
  // A size of no use leaves the control's own size rather than none.
  EXPECT_GT(Active()->Editor().SendScintilla(QsciScintillaBase::SCI_STYLEGETSIZE, 0UL), 0);
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_NE(messages.shown()[0].text.find("NumberOfMRUFiles"), std::string::npos);
  // Preferences shows the defaults and OK leaves the unusable size for the user to see.
  WithPreferences([&](QDialog* d) {
    EXPECT_EQ(Child<QLineEdit>(d, "numberOfMRUFiles")->text(), "4");
    EXPECT_EQ(Child<QLineEdit>(d, "fontSize")->text(), "");
    Click(d, "okButton");
  });
  EXPECT_EQ(store.GetSetting("Font", "FontSize", ""), "huge");
  EXPECT_EQ(store.GetSetting("Startup", "NumberOfMRUFiles", ""), "4");
}

}  // namespace
}  // namespace tessarine
