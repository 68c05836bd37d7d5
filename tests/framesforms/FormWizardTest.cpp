// The form wizard: the FORM tag, the eleven field kinds in both tag cases, the buffer of
// form mode and the single field of field-only mode.

#include <gtest/gtest.h>

#include "core/TestApp.h"
#include "framesforms/FormWizard.h"

namespace tessarine {
namespace {

using testing::TestApp;

TEST(FormWizardTest, FormTagKeepsItsMixedCase) {
  FormProperties none;
  EXPECT_EQ(BuildFormTag(true, none), "<FORM>\r\n");
  EXPECT_EQ(BuildFormTag(false, none), "<form>\r\n");

  FormProperties p;
  p.formName = "Order";
  p.method = FormMethod::Get;
  p.action = "/cgi-bin/Go.pl";
  EXPECT_EQ(BuildFormTag(true, p),
            "<FORM method=\"GET\" ACTION=\"/cgi-bin/Go.pl\" name=\"Order\" id=\"Order\">\r\n");
  EXPECT_EQ(BuildFormTag(false, p),
            "<form method=\"GET\" ACTION=\"/cgi-bin/Go.pl\" name=\"Order\" id=\"Order\">\r\n");
}

TEST(FormWizardTest, FormmailSetsActionMethodAndRecipient) {
  FormProperties p;
  SetUseFormmail(p, true);
  EXPECT_EQ(p.action, "formmail.cgi");
  EXPECT_EQ(p.method, FormMethod::Post);
  p.emailAddress = "me@example.org";
  EXPECT_EQ(BuildFormTag(true, p),
            "<FORM method=\"POST\" ACTION=\"formmail.cgi\">\r\n"
            "\t<INPUT TYPE=\"hidden\" NAME=\"subject\" VALUE=\"Form Submission\">\r\n"
            "\t<INPUT TYPE=\"hidden\" NAME=\"recipient\" VALUE=\"me@example.org\">\r\n");
  EXPECT_EQ(BuildFormTag(false, p),
            "<form method=\"POST\" ACTION=\"formmail.cgi\">\r\n"
            "\t<input type=\"hidden\" name=\"subject\" value=\"Form Submission\">\r\n"
            "\t<input type=\"hidden\" name=\"recipient\" value=\"me@example.org\">\r\n");
  SetUseFormmail(p, false);
  EXPECT_EQ(p.action, "");
  EXPECT_EQ(p.method, FormMethod::None);
  EXPECT_FALSE(ValidateFormProperties(p));
}

TEST(FormWizardTest, MethodAndActionGoTogether) {
  struct Case {
    FormMethod method;
    const char* action;
    bool formmail;
    const char* email;
    const char* message;  // nullptr: passes
    const char* field;
  } cases[] = {
      {FormMethod::None, "", false, "", nullptr, ""},
      {FormMethod::None, "x.cgi", false, "", "Choose a Form Method.", "getOption"},
      {FormMethod::Post, "", false, "", "Input a Form Action in the text box.", "actionText"},
      {FormMethod::Get, "x.cgi", false, "", nullptr, ""},
      {FormMethod::Post, "formmail.cgi", true, "", "Enter your email address in the box below.",
       "emailText"},
      {FormMethod::Post, "formmail.cgi", true, "   ", "Enter your email address in the box below.",
       "emailText"},
      {FormMethod::Post, "formmail.cgi", true, "a@b", nullptr, ""},
  };
  for (const Case& c : cases) {
    FormProperties p;
    p.method = c.method;
    p.action = c.action;
    p.useFormmail = c.formmail;
    p.emailAddress = c.email;
    const CheckResult failed = ValidateFormProperties(p);
    SCOPED_TRACE(c.action);
    if (!c.message) {
      EXPECT_FALSE(failed);
      continue;
    }
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->message, c.message);
    EXPECT_EQ(failed->field, c.field);
  }
}

FormField Field(int kind) {
  FormField f;
  f.kind = kind;
  f.label = "L:";
  f.name = "n";
  f.value = "v";
  f.size = "10";
  f.maxLength = "20";
  f.src = "go.gif";
  f.rows = "3";
  f.columns = "40";
  f.checked = true;
  f.multiple = true;
  return f;
}

TEST(FormWizardTest, EachKindInBothTagCases) {
  const char* upper[kFieldKindCount] = {
      "L:<INPUT TYPE=\"TEXT\" NAME=\"n\" ID=\"n\" VALUE=\"v\" SIZE=\"10\" MAXLENGTH=\"20\">",
      "L:<TEXTAREA  NAME=\"n\" ID=\"n\" ROWS=\"3\" COLS=\"40\">\r\nv\r\n</TEXTAREA>",
      "L:<SELECT NAME=\"n\" ID=\"n\" SIZE=\"10\" MULTIPLE>",
      "L:<INPUT TYPE=\"PASSWORD\" NAME=\"n\" ID=\"n\" VALUE=\"v\" SIZE=\"10\" MAXLENGTH=\"20\">",
      "<INPUT TYPE=\"CHECKBOX\" NAME=\"n\" ID=\"n\" VALUE=\"v\" CHECKED>L:",
      "<INPUT TYPE=\"RADIO\" NAME=\"n\" ID=\"n\" VALUE=\"v\" CHECKED>L:",
      "<INPUT TYPE=\"IMAGE\" NAME=\"n\" ID=\"n\" SRC=\"go.gif\">",
      "<INPUT TYPE=\"HIDDEN\" NAME=\"n\" ID=\"n\" VALUE=\"v\">",
      "<INPUT TYPE=\"SUBMIT\" NAME=\"n\" ID=\"n\" VALUE=\"v\">",
      "<INPUT TYPE=\"RESET\" VALUE=\"v\">",
      "<INPUT TYPE=\"BUTTON\" NAME=\"n\" ID=\"n\" VALUE=\"v\">",
  };
  const char* lower[kFieldKindCount] = {
      "L:<input type=\"text\" name=\"n\" id=\"n\" value=\"v\" size=\"10\" maxlength=\"20\">",
      "L:<textarea  name=\"n\" id=\"n\" rows=\"3\" cols=\"40\">\r\nv\r\n</textarea>",
      "L:<select name=\"n\" id=\"n\" size=\"10\" multiple>",
      "L:<input type=\"password\" name=\"n\" id=\"n\" value=\"v\" size=\"10\" maxlength=\"20\">",
      "<input type=\"checkbox\" name=\"n\" id=\"n\" value=\"v\" checked>L:",
      "<input type=\"radio\" name=\"n\" id=\"n\" value=\"v\" checked>L:",
      "<input type=\"image\" name=\"n\" id=\"n\" src=\"go.gif\">",
      "<input type=\"hidden\" name=\"n\" id=\"n\" value=\"v\">",
      "<input type=\"submit\" name=\"n\" id=\"n\" value=\"v\">",
      "<input type=\"reset\" value=\"v\">",
      "<input type=\"button\" name=\"n\" id=\"n\" value=\"v\">",
  };
  for (int kind = 0; kind < kFieldKindCount; ++kind) {
    SCOPED_TRACE(KindInfo(kind).title);
    EXPECT_FALSE(ValidateFormField(Field(kind)));
    EXPECT_EQ(BuildFormField(true, Field(kind)), upper[kind]);
    EXPECT_EQ(BuildFormField(false, Field(kind)), lower[kind]);
  }
  // Empty optional inputs leave their attributes out; a submit button needs no name.
  FormField bare;
  bare.kind = kSubmitButton;
  bare.value = "Send";
  EXPECT_EQ(BuildFormField(false, bare), "<input type=\"submit\" value=\"Send\">");
  bare.kind = kTextBox;
  bare.name = "q";
  bare.value.clear();
  EXPECT_EQ(BuildFormField(true, bare), "<INPUT TYPE=\"TEXT\" NAME=\"q\" ID=\"q\">");
}

TEST(FormWizardTest, RequiredInputsOfEachKind) {
  struct Case {
    int kind;
    void (*clear)(FormField&);
    const char* message;
    const char* field;
  } cases[] = {
      {kTextBox, [](FormField& f) { f.name.clear(); }, "Please enter required attribute.",
       "nameText"},
      {kTextBox, [](FormField& f) { f.name = "  "; }, "Please enter required attribute.",
       "nameText"},
      {kPassword, [](FormField& f) { f.name.clear(); }, "Please enter Name text.", "nameText"},
      {kTextArea, [](FormField& f) { f.rows.clear(); }, "Please enter required attribute.",
       "rowsText"},
      {kTextArea, [](FormField& f) { f.columns.clear(); }, "Please enter required attribute.",
       "columnsText"},
      {kTextArea, [](FormField& f) { f.name.clear(), f.rows.clear(); },
       "Please enter required attribute.", "nameText"},
      {kImageField, [](FormField& f) { f.src.clear(); }, "Please enter required attribute.",
       "srcText"},
      {kCheckBox, [](FormField& f) { f.value.clear(); }, "Please enter required attribute.",
       "valueText"},
      {kResetButton, [](FormField& f) { f.value.clear(); }, "Please enter required attribute.",
       "valueText"},
      {kJavaScriptButton, [](FormField& f) { f.name.clear(); }, "Please enter required attribute.",
       "nameText"},
      {kSubmitButton, [](FormField& f) { f.name.clear(); }, nullptr, ""},
      {kTextBox, [](FormField& f) { f.value.clear(), f.size.clear(); }, nullptr, ""},
  };
  for (const Case& c : cases) {
    SCOPED_TRACE(KindInfo(c.kind).title);
    FormField f = Field(c.kind);
    c.clear(f);
    const CheckResult failed = ValidateFormField(f);
    if (!c.message) {
      EXPECT_FALSE(failed);
      continue;
    }
    ASSERT_TRUE(failed);
    EXPECT_EQ(failed->message, c.message);
    EXPECT_EQ(failed->field, c.field);
  }
}

TEST(FormWizardTest, FormModeIndentsEachLineAndBreaksAfterEachField) {
  FormBuilder form(false, false);
  ASSERT_FALSE(form.Start({}));
  FormField area = Field(kTextArea);
  area.label.clear();
  area.value = "one\r\ntwo";
  ASSERT_FALSE(form.AddField(area).failed);
  FormField box;
  box.kind = kCheckBox;
  box.name = "ok";
  box.value = "yes";
  box.label = "Agree";
  const FormBuilder::Added added = form.AddField(box);
  ASSERT_FALSE(added.failed);
  EXPECT_EQ(added.documentText, "");
  EXPECT_EQ(form.Done(),
            "<form>\r\n"
            "\t<textarea  name=\"n\" id=\"n\" rows=\"3\" cols=\"40\">\r\n\tone\r\n\ttwo\r\n"
            "\t</textarea><br>\r\n"
            "\t<input type=\"checkbox\" name=\"ok\" id=\"ok\" value=\"yes\">Agree<br>\r\n"
            "</form>");
  EXPECT_EQ(form.FormText(), "");
}

TEST(FormWizardTest, AFieldThatFailsLeavesTheBufferAsItWas) {
  FormBuilder form(true, false);
  ASSERT_FALSE(form.Start({}));
  FormField f = Field(kHiddenField);
  f.value.clear();
  EXPECT_TRUE(form.AddField(f).failed);
  EXPECT_EQ(form.FormText(), "<FORM>\r\n");
}

TEST(FormWizardTest, DropdownMenuTakesItsOptionsBeforeAnyOtherKind) {
  FormBuilder form(true, false);
  ASSERT_FALSE(form.Start({}));
  FormField menu;
  menu.kind = kDropdownMenu;
  menu.name = "size";
  ASSERT_FALSE(form.AddField(menu).failed);
  EXPECT_TRUE(form.DropdownOpen());
  const CheckResult refused = form.PickKind();
  ASSERT_TRUE(refused);
  EXPECT_EQ(refused->message, "Please finish creating the Pulldown menu");
  EXPECT_TRUE(form.AddField(Field(kTextBox)).failed);

  const CheckResult empty = form.AddOption({"", "x", false});
  ASSERT_TRUE(empty);
  EXPECT_EQ(empty->message, "Please enter required attribute.");
  ASSERT_FALSE(form.AddOption({"Small", "", false}));
  ASSERT_FALSE(form.AddOption({"Large", "L", true}));
  EXPECT_EQ(form.FinishDropdown(), "");  // form mode: stays in the buffer
  EXPECT_FALSE(form.PickKind());
  EXPECT_EQ(form.Done(),
            "<FORM>\r\n\t<SELECT NAME=\"size\" ID=\"size\"><br>\r\n"
            "\r\n\t<OPTION>Small"
            "\r\n\t<OPTION VALUE=\"L\" SELECTED>Large"
            "\r\n</SELECT>\r\n</FORM>");
}

TEST(FormWizardTest, FieldOnlyModeHandsOverOneField) {
  FormBuilder single(false, true);
  FormField f = Field(kRadioButton);
  f.checked = false;
  const FormBuilder::Added added = single.AddField(f);
  ASSERT_FALSE(added.failed);
  EXPECT_EQ(added.documentText, "<input type=\"radio\" name=\"n\" id=\"n\" value=\"v\">L:");
  EXPECT_EQ(single.FormText(), "");

  // A dropdown menu goes over whole once its options are in, with no tab and no break.
  FormBuilder menu(false, true);
  FormField m;
  m.kind = kDropdownMenu;
  m.name = "pick";
  EXPECT_EQ(menu.AddField(m).documentText, "");
  ASSERT_FALSE(menu.AddOption({"One", "1", false}));
  EXPECT_EQ(menu.FinishDropdown(),
            "<select name=\"pick\" id=\"pick\">\r\n\t<option value=\"1\">One\r\n</select>\r\n");
  EXPECT_EQ(menu.FormText(), "");
}

TEST(FormWizardTest, TenThousandFieldsGoIntoOneBuffer) {
  FormBuilder form(true, false);
  ASSERT_FALSE(form.Start({}));
  FormField f;
  f.kind = kTextBox;
  for (int i = 0; i < 10000; ++i) {
    f.name = "f" + std::to_string(i);
    ASSERT_FALSE(form.AddField(f).failed);
  }
  const std::string text = form.Done();
  std::size_t breaks = 0;
  for (std::size_t at = text.find("<br>\r\n"); at != std::string::npos;
       at = text.find("<br>\r\n", at + 1))
    ++breaks;
  EXPECT_EQ(breaks, 10000u);
  EXPECT_EQ(text.rfind("<FORM>\r\n\t<INPUT TYPE=\"TEXT\" NAME=\"f0\" ID=\"f0\"><br>\r\n", 0), 0u);
  EXPECT_NE(text.find("\t<INPUT TYPE=\"TEXT\" NAME=\"f9999\" ID=\"f9999\"><br>\r\n</FORM>"),
            std::string::npos);
}

TEST(FormWizardTest, DoneReplacesTheSelectionAndExplains) {
  TestApp t;
  BufferEdit& edit = t.NewWindow("<body>old</body>").Buffer();
  edit.Select(6, 3);
  FormBuilder form(true, false);
  ASSERT_FALSE(form.Start({}));
  FormWizard_Done(t.app, form);
  EXPECT_EQ(edit.Text(), "<body><FORM>\r\n</FORM></body>");
  ASSERT_EQ(t.messages.shown().size(), 1u);
  EXPECT_EQ(t.messages.shown()[0].icon, MsgIcon::Information);
  EXPECT_EQ(t.messages.shown()[0].text.rfind("To implement this Form correctly", 0), 0u);
}

TEST(FormWizardTest, KindCaptionsAndTooltips) {
  EXPECT_STREQ(KindInfo(kTextBox).title, " Text box");
  EXPECT_STREQ(KindInfo(kJavaScriptButton).valueLabel, "Button text:");
  const FieldTooltips text = KindTooltips(kTextBox);
  EXPECT_EQ(text.name, "Specify the name of the Text box");
  EXPECT_EQ(text.value, "Specify the default text to be displayed in the Text box");
  EXPECT_EQ(text.maxLength,
            "Specify the maximum number of characters that can be entered into the Text box");
  EXPECT_EQ(KindTooltips(kCheckBox).value, "Specify the return value of the Checkbox");
  EXPECT_EQ(KindTooltips(kSubmitButton).value, "Specify the text to be displayed on the button");
  EXPECT_EQ(KindTooltips(kRadioButton).checked,
            "Indicates that the Radio button will be selected by default");
}

}  // namespace
}  // namespace tessarine
