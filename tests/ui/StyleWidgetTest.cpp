// The style editor and the style manager opened from the Insert menu and driven as a user
// would, down to the bytes they leave in the document.

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialog>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QTimer>
#include <functional>

#include "core/Application.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "ui/WindowFixture.h"

namespace tessarine {
namespace {

class StyleWidget : public WindowFixture {
 protected:
  void SetUp() override {
    WindowFixture::SetUp();
    store.SaveSetting("Miscellaneous", "FirstRun", "no");
    Start();
    ASSERT_NE(app->ActiveEdit(), nullptr);
  }
  EditControl& Edit() { return *app->ActiveEdit(); }
  // Acts on the next modal dialog once it is up; it never stays up to hang the test.
  void OnDialog(std::function<void(QDialog*)> act) {
    QTimer::singleShot(0, frame.get(), [act] {
      auto* d = qobject_cast<QDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(d, nullptr);
      act(d);
      if (d->isVisible() && QApplication::activeModalWidget() == d) d->reject();
    });
  }
  template <class T>
  static T* Child(QWidget* d, const char* name) {
    T* w = d->findChild<T*>(name);
    EXPECT_NE(w, nullptr) << name;
    return w;
  }
  static void Click(QWidget* d, const char* button) { Child<QPushButton>(d, button)->click(); }
  void Trigger(const char* command) {
    QAction* a = frame->Command(command);
    ASSERT_NE(a, nullptr) << command;
    ASSERT_TRUE(a->isEnabled()) << command;
    a->trigger();
  }
  static void Select(QListWidget* list, const char* text) {
    const auto found = list->findItems(text, Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty()) << text;
    list->setCurrentItem(found.front());
  }
  std::string LastMessage() const {
    return messages.shown().empty() ? "" : messages.shown().back().text;
  }
};

TEST_F(StyleWidget, AStyleAddedInTheEditorIsAppliedThroughTheManager) {
  Edit().SetText("<html><head>\r\n</head><body>word</body></html>");
  Edit().Select(27, 4);
  OnDialog([this](QDialog* manager) {
    EXPECT_EQ(manager->objectName(), "StyleManagerDialog");
    EXPECT_EQ(Child<QListWidget>(manager, "styleList")->count(), 0);
    OnDialog([this](QDialog* editor) {
      EXPECT_EQ(editor->objectName(), "StyleEditorDialog");
      EXPECT_FALSE(Child<QPushButton>(editor, "okButton")->isEnabled());
      Child<QRadioButton>(editor, "customOption")->setChecked(true);
      Click(editor, "nextButton");
      EXPECT_EQ(LastMessage(), "Please enter the name of the CSS style in the text box below.");
      Child<QLineEdit>(editor, "customName")->setText("note");
      Click(editor, "nextButton");
      EXPECT_TRUE(Child<QPushButton>(editor, "okButton")->isEnabled());
      Child<QLineEdit>(editor, "fontColorText")->setText("red");
      Child<QCheckBox>(editor, "boldCheck")->setChecked(true);
      Click(editor, "okButton");
      EXPECT_FALSE(editor->isVisible());
    });
    Click(manager, "addButton");
    auto* list = Child<QListWidget>(manager, "styleList");
    ASSERT_EQ(list->count(), 1);
    Select(list, ".note");
    EXPECT_EQ(Child<QPlainTextEdit>(manager, "definitionText")->toPlainText(),
              "\n    color:red;\n    font-weight:bold;\n    ");
    Click(manager, "applyButton");
    Click(manager, "applyOkButton");
    EXPECT_EQ(LastMessage(), "Please select a method to apply this style.");
    Child<QRadioButton>(manager, "spanOption")->setChecked(true);
    Click(manager, "applyOkButton");
    EXPECT_FALSE(manager->isVisible());
  });
  Trigger("mnuCSSsub4");
  EXPECT_EQ(Edit().Text(),
            "<html><head>\r\n\r\n<STYLE type=\"text/css\">\r\n.note\r\n{\r\n\tcolor:red;\r\n"
            "\tfont-weight:bold;\r\n}\r\n\r\n\r\n</STYLE>\r\n\r\n</head><body><span "
            "class=\"note\">word</span></body></html>");
  EXPECT_EQ(app->styles.Styles.Count(), 0u);  // gone with the dialog
}

TEST_F(StyleWidget, EditShowsTheStyleAndCancelAfterRemovingKeepsTheDocument) {
  const std::string page =
      "<style>\r\nH1 {font-size:12pt; cursor:hand}\r\n.x {color:red}\r\n</style>";
  Edit().SetText(page);
  OnDialog([this](QDialog* manager) {
    auto* list = Child<QListWidget>(manager, "styleList");
    ASSERT_EQ(list->count(), 2);
    Select(list, "H1");
    EXPECT_FALSE(Child<QPushButton>(manager, "applyButton")->isEnabled());
    OnDialog([this](QDialog* editor) {
      EXPECT_EQ(Child<QComboBox>(editor, "fontSizeCombo")->currentText(), "12");
      EXPECT_EQ(Child<QComboBox>(editor, "fontSizeUnitCombo")->currentText(), "pt");
      Child<QComboBox>(editor, "fontSizeUnitCombo")->setEditText("em");
      Click(editor, "okButton");
    });
    Click(manager, "editButton");
    EXPECT_EQ(Child<QPlainTextEdit>(manager, "definitionText")->toPlainText(),
              "\n    font-size:12em;\n    cursor:hand;\n    ");
    Select(list, ".x");
    messages.Queue(MsgAnswer::Yes);
    Click(manager, "removeButton");
    EXPECT_EQ(list->count(), 1);
    Click(manager, "cancelButton");
  });
  Trigger("mnuCSSsub4");
  EXPECT_EQ(Edit().Text(), page);
}

TEST_F(StyleWidget, InlineStyleGoesInAtTheCaretAndAStyleSheetRefusesApply) {
  Edit().SetText("<p>");
  Edit().SetSelStart(2);
  OnDialog([](QDialog* editor) {
    EXPECT_TRUE(Child<QPushButton>(editor, "okButton")->isEnabled());  // no naming page
    Child<QComboBox>(editor, "horizontalAlignCombo")->setEditText("center");
    Click(editor, "okButton");
  });
  Trigger("mnuCSSsub2");
  EXPECT_EQ(Edit().Text(), "<p style=\"text-align:center;\" >");

  app->ActiveDocument()->SetCaption(Path("site.CSS"));
  Trigger("mnuCSSsub1");
  EXPECT_EQ(LastMessage(),
            "You cannot apply a style to a CSS document.  Use the Style Manager to add or edit a "
            "style.");
}

}  // namespace
}  // namespace tessarine
