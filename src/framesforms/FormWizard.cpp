#include "framesforms/FormWizard.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"

namespace tessarine {

const char* const kFormmailScript = "formmail.cgi";
const char* const kFormDoneInfo =
    "To implement this Form correctly, please refer to the Forms topic found in the Tessarine "
    "help file\r\nor read the instruct.html file found in the Tessarine\\Forms directory.";

namespace {

const char* const kCrLf = "\r\n";
const char* const kRequired = "Please enter required attribute.";

bool Blank(const std::string& s) {
  return s.find_first_not_of(' ') == std::string::npos;
}

// Empty optional inputs contribute nothing.
std::string Optional(bool upper, const char* head, const std::string& value) {
  return value.empty() ? "" : FormatAttribute(upper, head, value);
}

std::string NameId(bool upper, const std::string& name) {
  return Optional(upper, " name=", name) + Optional(upper, " id=", name);
}

std::string ReplaceAll(std::string text, const std::string& from, const std::string& to) {
  for (std::size_t at = text.find(from); at != std::string::npos;
       at = text.find(from, at + to.size()))
    text.replace(at, from.size(), to);
  return text;
}

}  // namespace

void SetUseFormmail(FormProperties& p, bool on) {
  p.useFormmail = on;
  if (on) {
    p.action = kFormmailScript;
    p.method = FormMethod::Post;
  } else {
    p.action.clear();
    if (p.method == FormMethod::Post) p.method = FormMethod::None;
  }
}

CheckResult ValidateFormProperties(const FormProperties& p) {
  if (!p.action.empty() && p.method == FormMethod::None)
    return WizardCheck{"Choose a Form Method.", "getOption"};
  if (p.method != FormMethod::None && p.action.empty())
    return WizardCheck{"Input a Form Action in the text box.", "actionText"};
  if (p.useFormmail && Blank(p.emailAddress))
    return WizardCheck{"Enter your email address in the box below.", "emailText"};
  return std::nullopt;
}

std::string BuildFormTag(bool upper, const FormProperties& p) {
  const std::string q = "\"";
  // These attributes keep their mixed case in both tag cases.
  std::string nameId;
  if (!p.formName.empty()) nameId = " name=" + q + p.formName + q + " id=" + q + p.formName + q;
  std::string method;
  if (p.method != FormMethod::None)
    method = std::string(" method=") + (p.method == FormMethod::Get ? "\"GET\"" : "\"POST\"") +
             " ACTION=" + q + p.action + q;
  std::string text = (upper ? "<FORM" : "<form") + method + nameId + ">" + kCrLf;
  if (p.useFormmail) {
    if (upper)
      text +=
          "\t<INPUT TYPE=\"hidden\" NAME=\"subject\" VALUE=\"Form Submission\">\r\n"
          "\t<INPUT TYPE=\"hidden\" NAME=\"recipient\" VALUE=\"" +
          p.emailAddress + "\">\r\n";
    else
      text +=
          "\t<input type=\"hidden\" name=\"subject\" value=\"Form Submission\">\r\n"
          "\t<input type=\"hidden\" name=\"recipient\" value=\"" +
          p.emailAddress + "\">\r\n";
  }
  return text;
}

const FieldKindInfo& KindInfo(int kind) {
  static const FieldKindInfo kKinds[kFieldKindCount] = {
      // title, noun, value label, type, name required,
      // label, size, maxlength, checked, src, rows+columns, multiple
      {" Text box", "Text box", "Default text:", "text", true,  //
       true, true, true, false, false, false, false},
      {" Text area", "Textarea", "Default text:", "", true,  //
       true, false, false, false, false, true, false},
      {" Dropdown menu", "Dropdown menu", "", "", true,  //
       true, true, false, false, false, false, true},
      {" Password", "Password box", "Default text:", "password", true,  //
       true, true, true, false, false, false, false},
      {" CheckBox", "Checkbox", "Value:", "checkbox", true,  //
       true, false, false, true, false, false, false},
      {" Radio button", "Radio button", "Value:", "radio", true,  //
       true, false, false, true, false, false, false},
      {" Image", "Image", "", "image", true,  //
       false, false, false, false, true, false, false},
      {" Hidden field", "hidden field", "Value:", "hidden", true,  //
       false, false, false, false, false, false, false},
      {" Submit button", "Submit button", "Button text:", "submit", false,  //
       false, false, false, false, false, false, false},
      {" Reset button", "Reset button", "Button text:", "reset", false,  //
       false, false, false, false, false, false, false},
      {" JavaScript button", "button", "Button text:", "button", true,  //
       false, false, false, false, false, false, false},
  };
  return kKinds[kind < 0 || kind >= kFieldKindCount ? 0 : kind];
}

FieldTooltips KindTooltips(int kind) {
  const FieldKindInfo& k = KindInfo(kind);
  const std::string noun = k.noun;
  FieldTooltips t;
  t.name = "Specify the name of the " + noun;
  if (kind == kCheckBox || kind == kRadioButton || kind == kHiddenField)
    t.value = "Specify the return value of the " + noun;
  else if (kind >= kSubmitButton)
    t.value = "Specify the text to be displayed on the button";
  else
    t.value = "Specify the default text to be displayed in the " + noun;
  t.size = "Specify the width of the " + noun;
  t.maxLength = "Specify the maximum number of characters that can be entered into the " + noun;
  t.src = "Specify the path and filename of the Image";
  t.rows = "Specify the number of rows for the Textarea";
  t.columns = "Specify the number of columns for the Textarea";
  t.multiple = "Allows users to select multiple menu items";
  t.checked = kind == kRadioButton ? "Indicates that the Radio button will be selected by default"
                                   : "Indicates that the Checkbox will be checked by default";
  return t;
}

CheckResult ValidateFormField(const FormField& f) {
  const FieldKindInfo& k = KindInfo(f.kind);
  // A name of blanks is no name.
  if (k.nameRequired && Blank(f.name))
    return WizardCheck{f.kind == kPassword ? "Please enter Name text." : kRequired, "nameText"};
  if (f.kind == kTextArea) {
    if (f.rows.empty()) return WizardCheck{kRequired, "rowsText"};
    if (f.columns.empty()) return WizardCheck{kRequired, "columnsText"};
  }
  if (f.kind == kImageField && f.src.empty()) return WizardCheck{kRequired, "srcText"};
  const bool valueRequired = f.kind == kCheckBox || f.kind == kRadioButton ||
                             f.kind == kHiddenField || f.kind >= kSubmitButton;
  if (valueRequired && f.value.empty()) return WizardCheck{kRequired, "valueText"};
  return std::nullopt;
}

std::string BuildFormField(bool upper, const FormField& f) {
  const FieldKindInfo& k = KindInfo(f.kind);
  const std::string type = upper ? UCase(k.typeWord) : std::string(k.typeWord);
  const std::string input = (upper ? "<INPUT TYPE=\"" : "<input type=\"") + type + "\"";
  const std::string nameId = NameId(upper, f.name);
  const std::string value = Optional(upper, " value=", f.value);
  const std::string checked = f.checked ? (upper ? " CHECKED" : " checked") : "";
  switch (f.kind) {
    case kTextBox:
    case kPassword:
      return f.label + input + nameId + value + Optional(upper, " size=", f.size) +
             Optional(upper, " maxlength=", f.maxLength) + ">";
    case kTextArea:
      // The opener keeps its blank, so two stand before the name.
      return f.label + (upper ? "<TEXTAREA " : "<textarea ") + nameId +
             Optional(upper, " rows=", f.rows) + Optional(upper, " cols=", f.columns) + ">" +
             kCrLf + f.value + kCrLf + (upper ? "</TEXTAREA>" : "</textarea>");
    case kDropdownMenu:
      return f.label + (upper ? "<SELECT" : "<select") + nameId +
             Optional(upper, " size=", f.size) +
             (f.multiple ? (upper ? " MULTIPLE" : " multiple") : "") + ">";
    case kCheckBox:
    case kRadioButton:
      return input + nameId + value + checked + ">" + f.label;
    case kImageField:
      return input + nameId + Optional(upper, " src=", f.src) + ">";
    case kResetButton:
      return input + value + ">";
    default:  // hidden, submit (whose name may be empty) and button
      return input + nameId + value + ">";
  }
}

CheckResult ValidateMenuOption(const MenuOption& o) {
  if (o.text.empty()) return WizardCheck{kRequired, "optionText"};
  return std::nullopt;
}

std::string BuildMenuOption(bool upper, const MenuOption& o) {
  return std::string(kCrLf) + "\t" + (upper ? "<OPTION" : "<option") +
         Optional(upper, " value=", o.value) +
         (o.selected ? (upper ? " SELECTED" : " selected") : "") + ">" + o.text;
}

CheckResult FormBuilder::Start(const FormProperties& p) {
  if (CheckResult failed = ValidateFormProperties(p)) return failed;
  formText_ = BuildFormTag(upper_, p);
  return std::nullopt;
}

FormBuilder::Added FormBuilder::AddField(const FormField& f) {
  Added added;
  if (dropdownOpen_) {
    added.failed = PickKind();
    return added;
  }
  added.failed = ValidateFormField(f);
  if (added.failed) return added;
  const std::string field = BuildFormField(upper_, f);
  if (fieldOnly_) {
    if (f.kind == kDropdownMenu) {
      formText_ = field;
      dropdownOpen_ = true;
    } else {
      formText_.clear();
      added.documentText = field;
    }
    return added;
  }
  formText_ += "\t" + ReplaceAll(field, kCrLf, "\r\n\t") + "<br>" + kCrLf;
  dropdownOpen_ = f.kind == kDropdownMenu;
  return added;
}

CheckResult FormBuilder::PickKind() const {
  if (dropdownOpen_) return WizardCheck{"Please finish creating the Pulldown menu", "optionText"};
  return std::nullopt;
}

CheckResult FormBuilder::AddOption(const MenuOption& o) {
  if (!dropdownOpen_) return WizardCheck{kRequired, "optionText"};
  if (CheckResult failed = ValidateMenuOption(o)) return failed;
  formText_ += BuildMenuOption(upper_, o);
  return std::nullopt;
}

std::string FormBuilder::FinishDropdown() {
  if (!dropdownOpen_) return "";
  dropdownOpen_ = false;
  formText_ += std::string(kCrLf) + (upper_ ? "</SELECT>" : "</select>") + kCrLf;
  if (!fieldOnly_) return "";
  std::string menu;
  menu.swap(formText_);
  return menu;
}

std::string FormBuilder::Done() {
  formText_ += upper_ ? "</FORM>" : "</form>";
  std::string text;
  text.swap(formText_);
  return text;
}

void FormWizard_Insert(Application& app, const std::string& text) {
  EditControl* edit = app.ActiveEdit();
  if (!edit) return;
  EmptyUndoBuffer(app);
  edit->ReplaceSel(text);
  edit->SetFocus();
}

void FormWizard_Done(Application& app, FormBuilder& form) {
  FormWizard_Insert(app, form.Done());
  app.messages.Show(kFormDoneInfo, MsgButtons::OK, MsgIcon::Information, app.title);
}

}  // namespace tessarine
