// The frame, form and media dialogs driven through the window as a user drives them.

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
#include <QScrollBar>
#include <QTimer>
#include <deque>
#include <functional>

#include "core/Application.h"
#include "platform/EditControl.h"
#include "ui/MainWindow.h"
#include "ui/WindowFixture.h"
#include "ui/wizards/ShortcutBar.h"

namespace tessarine {
namespace {

class FrameFormWidget : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "FirstRun", "no");
    store.SaveSetting("Miscellaneous", "TagCase", "upper");
    Start();
    ASSERT_NE(app->ActiveEdit(), nullptr);
  }
  EditControl& Edit() { return *app->ActiveEdit(); }

  // Steps for the modal dialogs to come, in order: each waits for the dialog of its name
  // to be the active modal one, then acts on it.
  void Then(const char* name, std::function<void(QDialog*)> act) {
    steps_.push_back({name, std::move(act)});
    if (steps_.size() == 1) Poll();
  }
  template <class T>
  static T* Child(QDialog* d, const char* name) {
    T* w = d->findChild<T*>(name);
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
  static void Click(QDialog* d, const char* name) { Child<QAbstractButton>(d, name)->click(); }
  static void Type(QDialog* d, const char* name, const char* text) {
    if (auto* line = d->findChild<QLineEdit*>(name)) {
      line->setText(text);
      return;
    }
    Child<QComboBox>(d, name)->setEditText(text);
  }
  bool AllStepsRan() const { return steps_.empty(); }

 private:
  struct Step {
    std::string name;
    std::function<void(QDialog*)> act;
  };
  void Poll() {
    QTimer::singleShot(5, frame.get(), [this] {
      if (steps_.empty()) return;
      auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      if (!d || d->objectName().toStdString() != steps_.front().name) {
        Poll();
        return;
      }
      Step step = std::move(steps_.front());
      steps_.pop_front();
      if (!steps_.empty()) Poll();
      step.act(d);
    });
  }
  std::deque<Step> steps_;
};

TEST_F(FrameFormWidget, TwoFrameLayoutThroughTheWizard) {
  Edit().SetText("");
  Then("FrameChoiceDialog", [](QDialog* d) { Click(d, "doItYourselfButton"); });
  Then("FrameWizardDialog", [this](QDialog* d) {
    // No boundary yet: the message, and the layout page stays.
    Click(d, "nextButton");
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_EQ(messages.shown()[0].text,
              "No Frames have been created.  Use the Scrollbars to create frame boundaries.");
    Child<QScrollBar>(d, "columnBoundary1")->setValue(30);
    Child<QCheckBox>(d, "frameBorder")->setChecked(true);
    Click(d, "nextButton");
    EXPECT_EQ(Child<QLabel>(d, "cellCaption")->text(), "Frame 1");
    Type(d, "frameUrl", "nav.htm");
    Type(d, "frameName", "nav");
    Child<QComboBox>(d, "scrolling")->setCurrentText("No");
    Click(d, "enterCellButton");
    EXPECT_EQ(Child<QLabel>(d, "cellCaption")->text(), "Frame 2");
    EXPECT_EQ(Child<QLineEdit>(d, "frameName")->text(), "");
    Type(d, "frameUrl", "main.htm");
    Type(d, "frameName", "main");
    Click(d, "enterCellButton");
  });
  frame->Command("mnuFrameMaker")->trigger();
  EXPECT_TRUE(AllStepsRan());
  EXPECT_EQ(Edit().Text(),
            "<FRAMESET COLS=\"30%,*\" FRAMEBORDER=\"1\">\r\n"
            "     <FRAME SRC=\"nav.htm\" NAME=\"nav\" SCROLLING=\"No\">\r\n"
            "     <FRAME SRC=\"main.htm\" NAME=\"main\" SCROLLING=\"No\">\r\n"
            "\r\n<NOFRAMES>\r\n<BODY>\r\n"
            "Enter HTML code and text here to be read by browsers that can't display frames\r\n"
            "</BODY>\r\n</NOFRAMES>\r\n\r\n</FRAMESET>");
}

TEST_F(FrameFormWidget, CustomFramesAskForEveryShownUrl) {
  Edit().SetText("");
  Then("FrameChoiceDialog", [](QDialog* d) { Click(d, "customMadeButton"); });
  Then("CustomFramesDialog", [this](QDialog* d) {
    Child<QListWidget>(d, "layoutList")->setCurrentRow(3);  // side frame only
    Click(d, "nextButton");
    EXPECT_FALSE(Child<QWidget>(d, "frameUrl0")->isVisibleTo(d));
    Type(d, "frameUrl3", "toc.htm");
    Click(d, "nextButton");
    ASSERT_EQ(messages.shown().size(), 1u);
    EXPECT_EQ(messages.shown()[0].text, "Please enter a URL for each frame.");
    Type(d, "frameUrl1", "body.htm");
    Click(d, "nextButton");
    Type(d, "frameName3", "contents");
    // Going back keeps what was typed on both steps.
    Click(d, "previousButton");
    EXPECT_EQ(Child<QComboBox>(d, "frameUrl3")->currentText(), "toc.htm");
    Click(d, "nextButton");
    EXPECT_EQ(Child<QLineEdit>(d, "frameName3")->text(), "contents");
    Click(d, "nextButton");
  });
  frame->Command("mnuFrameMaker")->trigger();
  EXPECT_TRUE(AllStepsRan());
  EXPECT_EQ(Edit().Text().rfind("<FRAMESET COLS=\"20%,*\">\r\n"
                                "        <FRAME SRC=\"toc.htm\" NAME=\"contents\">\r\n"
                                "        <FRAME SRC=\"body.htm\" NAME=\"main\">\r\n\r\n<NOFRAMES>",
                                0),
            0u);
}

TEST_F(FrameFormWidget, FramesButtonStartsAFramesetPage) {
  const int before = app->documents.UpperBound();
  Then("FrameChoiceDialog", [](QDialog* d) { Click(d, "cmdCancel"); });
  frame->Button("tbrInsert", "Frames")->trigger();
  EXPECT_TRUE(AllStepsRan());
  EXPECT_EQ(app->documents.UpperBound(), before + 1);
  const std::string text = Edit().Text();
  EXPECT_NE(text.find("-//W3C//DTD HTML 4.0 Frameset//EN"), std::string::npos);
  EXPECT_EQ(text.substr(static_cast<std::size_t>(Edit().SelStart())), "\r\n\r\n</HTML>");
}

TEST_F(FrameFormWidget, FormWithThreeFieldsThroughTheWizard) {
  Edit().SetText("<BODY>\r\n</BODY>");
  Edit().SetSelStart(8);
  Then("FormWizardDialog", [](QDialog* d) {
    Type(d, "formName", "poll");
    Child<QCheckBox>(d, "formmailCheck")->setChecked(true);
    EXPECT_EQ(Child<QLineEdit>(d, "actionText")->text(), "formmail.cgi");
    Type(d, "emailText", "me@example.org");
    Click(d, "nextButton");

    Type(d, "labelText", "Name: ");
    Type(d, "nameText", "who");
    Type(d, "sizeText", "20");
    Click(d, "insertFieldButton");
    Click(d, "kindButton4");  // check box
    EXPECT_FALSE(Child<QWidget>(d, "sizeText")->isVisibleTo(d));
    Type(d, "labelText", "Agree");
    Type(d, "nameText", "ok");
    Type(d, "valueText", "yes");
    Child<QCheckBox>(d, "checkedBox")->setChecked(true);
    Click(d, "insertFieldButton");
    Click(d, "kindButton8");  // submit
    Type(d, "valueText", "Send");
    Click(d, "insertFieldButton");
    Click(d, "doneButton");
  });
  frame->Command("mnuForm")->trigger();
  EXPECT_TRUE(AllStepsRan());
  EXPECT_EQ(Edit().Text(),
            "<BODY>\r\n"
            "<FORM method=\"POST\" ACTION=\"formmail.cgi\" name=\"poll\" id=\"poll\">\r\n"
            "\t<INPUT TYPE=\"hidden\" NAME=\"subject\" VALUE=\"Form Submission\">\r\n"
            "\t<INPUT TYPE=\"hidden\" NAME=\"recipient\" VALUE=\"me@example.org\">\r\n"
            "\tName: <INPUT TYPE=\"TEXT\" NAME=\"who\" ID=\"who\" SIZE=\"20\"><br>\r\n"
            "\t<INPUT TYPE=\"CHECKBOX\" NAME=\"ok\" ID=\"ok\" VALUE=\"yes\" CHECKED>Agree<br>\r\n"
            "\t<INPUT TYPE=\"SUBMIT\" VALUE=\"Send\"><br>\r\n"
            "</FORM></BODY>");
  ASSERT_FALSE(messages.shown().empty());
  EXPECT_EQ(messages.shown().back().icon, MsgIcon::Information);
}

TEST_F(FrameFormWidget, ShortcutBarFieldGoesStraightToTheCaret) {
  Edit().SetText("<BODY></BODY>");
  Edit().SetSelStart(6);
  Then("FormWizardDialog", [](QDialog* d) {
    EXPECT_FALSE(Child<QWidget>(d, "doneButton")->isVisibleTo(d));
    Click(d, "insertFieldButton");  // no value yet
    Type(d, "nameText", "go");
    Type(d, "valueText", "Go!");
    Click(d, "insertFieldButton");
  });
  auto* bar = frame->findChild<ui::ShortcutBar*>("ShortcutBar");
  ASSERT_TRUE(bar->ClickKey("JavaScript button"));
  EXPECT_TRUE(AllStepsRan());
  ASSERT_EQ(messages.shown().size(), 1u);
  EXPECT_EQ(messages.shown()[0].text, "Please enter required attribute.");
  EXPECT_EQ(Edit().Text(),
            "<BODY><INPUT TYPE=\"BUTTON\" NAME=\"go\" ID=\"go\" VALUE=\"Go!\"></BODY>");
}

TEST_F(FrameFormWidget, AppletSoundAndMediaWriteIntoTheBody) {
  Edit().SetText("<HTML><HEAD></HEAD><BODY>ab</BODY></HTML>");
  Edit().SetSelStart(26);
  Then("AppletDialog", [](QDialog* d) {
    Type(d, "appletFile", "Tick.class");
    Child<QComboBox>(d, "align")->setCurrentText("Left");
    EXPECT_TRUE(
        Child<QLabel>(d, "alignDescription")->text().startsWith("Aligns applet to the left"));
    Click(d, "addParameterButton");
  });
  Then("AppletParameterDialog", [](QDialog* d) {
    Type(d, "parameterName", "rate");
    Type(d, "parameterValue", "2");
    Click(d, "insertButton");
  });
  Then("AppletDialog", [](QDialog* d) { Click(d, "okButton"); });
  frame->Command("mnuJavaApplet")->trigger();
  EXPECT_TRUE(AllStepsRan());
  EXPECT_EQ(Edit().Text(),
            "<HTML><HEAD></HEAD><BODY>a<APPLET CODE=\"Tick.class\" ALIGN=\"Left\">\r\n"
            "\t<PARAM NAME=\"rate\" VALUE=\"2\">\r\n</APPLET>b</BODY></HTML>");

  Edit().SetText("<BODY>x</BODY>");
  Edit().SetSelStart(7);
  Then("BackgroundSoundDialog", [](QDialog* d) {
    Type(d, "soundFile", "bell.wav");
    Child<QComboBox>(d, "loopCombo")->setCurrentText("Infinite");
    Click(d, "okButton");
  });
  EXPECT_TRUE(frame->ShowDialog("BGSound"));
  EXPECT_EQ(Edit().Text(), "<BODY>x<BGSOUND SRC=\"bell.wav\" LOOP=\"Infinite\"></BODY>");

  Edit().SetText("<BODY>x</BODY>");
  Edit().SetSelStart(7);
  Then("EmbeddedMediaDialog", [](QDialog* d) {
    Type(d, "mediaFile", "clip.avi");
    Child<QComboBox>(d, "controlsCombo")->setCurrentText("Small");
    Click(d, "okButton");
  });
  frame->Command("mnuembed")->trigger();
  EXPECT_TRUE(AllStepsRan());
  EXPECT_EQ(Edit().Text(), "<BODY>x<EMBED SRC=\"clip.avi\" CONTROLS=\"SMALLCONSOLE\"></BODY>");
}

}  // namespace
}  // namespace tessarine
