// The special effects picker runs each wizard and hands its text to the document.

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <functional>

#include "effects/DigitalClock.h"
#include "effects/InlineFrame.h"
#include "effects/JumpMenu.h"
#include "effects/Marquee.h"
#include "effects/PersonalGreeting.h"
#include "platform/EditControl.h"
#include "platform/SettingsStore.h"
#include "ui/WindowFixture.h"

namespace tessarine {
namespace {

const char* const kPage = "<HTML>\r\n<HEAD>\r\n</HEAD>\r\n<BODY>\r\n|\r\n</BODY>\r\n</HTML>";

class EffectsWidget : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "FirstRun", "no");
    store.SaveSetting("Miscellaneous", "TagCase", "upper");
    Start();
    ASSERT_NE(app->ActiveEdit(), nullptr);
    Edit().SetText(kPage);
    Edit().Select(static_cast<Pos>(std::string(kPage).find('|')), 1);
  }
  EditControl& Edit() { return *app->ActiveEdit(); }

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
  static void Click(QDialog* d, const char* name) { Child<QAbstractButton>(d, name)->click(); }

  // Picks `row` in the picker, then lets `wizard` work on the wizard it opens.
  void RunThroughPicker(int row, std::function<void(QDialog*)> wizard) {
    bool pickerSeen = false, wizardSeen = false;
    OnDialog([&, row, wizard](QDialog* picker) {
      pickerSeen = picker->objectName() == "EffectPickerDialog";
      OnDialog([&, wizard](QDialog* d) {
        wizardSeen = true;
        wizard(d);
      });
      Child<QListWidget>(picker, "effectList")->setCurrentRow(row);
      Click(picker, "nextButton");
    });
    frame->Command("mnuSpecialEffectsMain")->trigger();
    EXPECT_TRUE(pickerSeen);
    EXPECT_TRUE(wizardSeen);
  }
  std::string Text() { return Edit().Text(); }
  // The page with `inserted` where the caret stood.
  static std::string PageWith(const std::string& inserted) {
    std::string page = kPage;
    return page.replace(page.find('|'), 1, inserted);
  }
};

TEST_F(EffectsWidget, ClockWizardStepsThroughItsPages) {
  RunThroughPicker(1, [](QDialog* d) {
    EXPECT_EQ(d->objectName(), "DigitalClockDialog");
    Child<QRadioButton>(d, "showDateAndTime")->setChecked(true);
    Click(d, "nextButton");
    // Leaving the format page without a format: refused, back on page 2.
    Click(d, "nextButton");
    EXPECT_EQ(Child<QLabel>(d, "headingLabel")->text(), "Digital Clock - Step 2: Set Date format");
    Child<QListWidget>(d, "dateFormatList")->setCurrentRow(4);  // 11/28/01
    Child<QCheckBox>(d, "dayOfWeekCheck")->setChecked(true);
    Click(d, "nextButton");
    Child<QCheckBox>(d, "showSecondsCheck")->setChecked(true);
    Click(d, "nextButton");
    EXPECT_EQ(Child<QPushButton>(d, "nextButton")->text(), "&Done");
    Child<QComboBox>(d, "fontSizeCombo")->setCurrentText("10");
    Click(d, "nextButton");
  });
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "Please select a Date format from the list below.");
  DigitalClock c;
  c.shows = ClockShows::DateAndTime;
  c.dateFormat = "11/28/01";
  c.dayOfWeek = true;
  c.showSeconds = true;
  c.fontSize = "10";
  EXPECT_EQ(Text(), PageWith(c.Script() + "\r\n" + c.Markup()));
}

TEST_F(EffectsWidget, TimeOnlyClockNeverShowsTheFormatPage) {
  RunThroughPicker(1, [](QDialog* d) {
    Child<QRadioButton>(d, "showTime")->setChecked(true);
    Click(d, "nextButton");
    EXPECT_EQ(Child<QLabel>(d, "headingLabel")->text(), "Digital Clock - Step 2: Set Time format");
    Click(d, "previousButton");
    EXPECT_EQ(Child<QLabel>(d, "headingLabel")->text(),
              "Digital Clock - Step 1: Select Date and/or Time");
    Click(d, "cancelButton");
  });
  EXPECT_EQ(Text(), kPage);
  EXPECT_TRUE(messages.shown().empty());
}

TEST_F(EffectsWidget, GreetingWritesHeadAndBodyItself) {
  RunThroughPicker(5, [](QDialog* d) {
    EXPECT_EQ(d->objectName(), "PersonalGreetingDialog");
    Child<QLineEdit>(d, "askText")->clear();
    Click(d, "nextButton");  // refused: empty question
    Child<QLineEdit>(d, "askText")->setText("Name?");
    Click(d, "nextButton");
    Child<QLineEdit>(d, "greetingText")->setText("Hi");
    Click(d, "nextButton");
    Child<QCheckBox>(d, "visitsCheck")->setChecked(true);
    Click(d, "nextButton");
  });
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text,
            "Please enter text for the name entry form in the box below.");
  PersonalGreeting g;
  g.askText = "Name?";
  g.greeting = "Hi";
  g.showVisits = true;
  EXPECT_EQ(Text(), "<HTML>\r\n<HEAD>\r\n\r\n" + g.Script() + "</HEAD>\r\n<BODY>\r\n" + g.Calls() +
                        "\r\n</BODY>\r\n</HTML>");
}

TEST_F(EffectsWidget, JumpMenuRowsThroughTheItemDialog) {
  RunThroughPicker(2, [this](QDialog* d) {
    EXPECT_EQ(d->objectName(), "JumpMenuDialog");
    Click(d, "doneButton");  // refused: no rows
    OnDialog([](QDialog* item) {
      Child<QLineEdit>(item, "itemText")->setText("Example");
      Child<QLineEdit>(item, "urlText")->setText("www.example.com");
      Click(item, "okButton");
    });
    Click(d, "addItemButton");
    Click(d, "addSeparatorButton");
    Child<QListWidget>(d, "menuItemList")->setCurrentRow(1);
    Click(d, "editItemButton");  // refused: a separator
    EXPECT_EQ(Child<QListWidget>(d, "urlList")->currentRow(), 1);
    Click(d, "moveUpButton");
    Child<QComboBox>(d, "targetCombo")->setCurrentText("main");
    Child<QRadioButton>(d, "allItemsChoice")->setChecked(true);
    Click(d, "doneButton");
  });
  ASSERT_EQ(messages.shown().size(), 2u);
  EXPECT_EQ(messages.shown()[0].text, "Please enter 1 or more menu items in the list below.");
  EXPECT_EQ(messages.shown()[1].text,
            "The separator can't be edited.  It can only be added or removed.");
  JumpMenu m;
  m.rows = {{kJumpMenuSeparator, ""}, {"Example", "http://www.example.com"}};
  m.display = JumpMenuDisplay::AllItems;
  m.target = "main";
  EXPECT_EQ(Text(), PageWith(m.Script() + "\r\n" + m.Form()));
}

TEST_F(EffectsWidget, InlineFrameAndMarqueeFollowTheTagCase) {
  RunThroughPicker(3, [](QDialog* d) {
    EXPECT_EQ(d->objectName(), "InlineFrameDialog");
    Child<QComboBox>(d, "sourceUrl")->setCurrentText("news.html");
    Child<QLineEdit>(d, "frameWidth")->setText("100%");
    Click(d, "okButton");  // refused: no height
    EXPECT_EQ(d->focusWidget(), Child<QLineEdit>(d, "frameHeight"));
    Child<QLineEdit>(d, "frameHeight")->setText("200");
    Click(d, "okButton");
  });
  ASSERT_EQ(messages.shown().size(), 1u);
  InlineFrame f;
  f.url = "news.html";
  f.width = "100%";
  f.height = "200";
  EXPECT_EQ(Text(), PageWith("\r\n" + f.Build(true)));
  EXPECT_EQ(store.GetSetting("Favorite URLs", "URL1", ""), "news.html");

  Edit().SetText(kPage);
  Edit().Select(static_cast<Pos>(std::string(kPage).find('|')), 1);
  RunThroughPicker(4, [](QDialog* d) {
    EXPECT_EQ(d->objectName(), "MarqueeDialog");
    Child<QLineEdit>(d, "marqueeText")->setText("Sale!");
    Child<QComboBox>(d, "directionCombo")->setCurrentText("Right to Left");
    Child<QLineEdit>(d, "backgroundColorText")->setText("FFCC00");
    Click(d, "okButton");
  });
  EXPECT_EQ(Text(), PageWith("<MARQUEE DIRECTION=\"Left\" BGCOLOR=\"#FFCC00\">Sale!</MARQUEE>"));
}

TEST_F(EffectsWidget, PickerRefusesNothingAndOffersTheSound) {
  bool soundEnabled = false;
  OnDialog([&](QDialog* picker) {
    auto* list = Child<QListWidget>(picker, "effectList");
    ASSERT_EQ(list->count(), 6);
    soundEnabled = list->item(0)->flags() & Qt::ItemIsEnabled;
    Click(picker, "nextButton");  // nothing chosen
    EXPECT_TRUE(picker->isVisible());
    Click(picker, "cancelButton");
  });
  frame->Command("mnuSpecialEffectsMain")->trigger();
  EXPECT_TRUE(soundEnabled) << "the background sound dialog is registered";
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "Please select a special effect from the list below.");

  std::string opened;
  frame->RegisterDialog("BGSound", [&](const std::string&) { opened = "BGSound"; });
  headless.checkedQuestions.Queue(false, false);  // the untitled document: "&No"
  OnDialog([](QDialog* picker) {
    auto* list = Child<QListWidget>(picker, "effectList");
    EXPECT_TRUE(list->item(0)->flags() & Qt::ItemIsEnabled);
    list->setCurrentRow(0);
    Click(picker, "nextButton");
  });
  frame->Command("mnuSpecialEffectsMain")->trigger();
  EXPECT_EQ(opened, "BGSound");
  EXPECT_EQ(headless.checkedQuestions.asked().size(), 1u);
  EXPECT_EQ(Text(), kPage);
}

}  // namespace
}  // namespace tessarine
