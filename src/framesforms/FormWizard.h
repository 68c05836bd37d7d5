#pragma once
// The form wizard: the FORM tag's properties, then fields one at a time. In form mode the
// fields grow a buffer that goes into the document at "Done with Form"; in field-only mode
// one field goes straight to the caret with no FORM tag.

#include <cstdint>
#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

enum class FormMethod { None, Get, Post };

struct FormProperties {
  std::string formName;
  FormMethod method = FormMethod::None;
  std::string action;        // the script that processes the form
  bool useFormmail = false;  // Tessarine's own mail script
  std::string emailAddress;  // where that script sends the output
};

extern const char* const kFormmailScript;  // "formmail.cgi"

// The effect of ticking or clearing the formmail box: the action and method follow it.
void SetUseFormmail(FormProperties& p, bool on);

// "Next >>": the method and the action go together; formmail needs an address.
CheckResult ValidateFormProperties(const FormProperties& p);
// The FORM tag and, with formmail, the two hidden lines; ends in a line end.
std::string BuildFormTag(bool tagCaseUpper, const FormProperties& p);

enum FieldKind : std::int16_t {
  kTextBox = 0,
  kTextArea,
  kDropdownMenu,
  kPassword,
  kCheckBox,
  kRadioButton,
  kImageField,
  kHiddenField,
  kSubmitButton,
  kResetButton,
  kJavaScriptButton,
  kFieldKindCount
};

// Which inputs a kind uses, its captions and its tooltips.
struct FieldKindInfo {
  const char* title;       // with its leading blank
  const char* noun;        // in the tooltips
  const char* valueLabel;  // empty when the kind has no value
  const char* typeWord;    // of the INPUT tag; empty for TEXTAREA and SELECT
  bool nameRequired;
  bool hasLabel, hasSize, hasMaxLength, hasChecked, hasSrc, hasRowsColumns, hasMultiple;
};
const FieldKindInfo& KindInfo(int kind);

struct FieldTooltips {
  std::string name, value, size, maxLength, src, rows, columns, multiple, checked;
};
FieldTooltips KindTooltips(int kind);

struct FormField {
  int kind = kTextBox;
  std::string label;
  std::string name;
  std::string value;
  std::string size;
  std::string maxLength;
  bool checked = false;
  std::string src;
  std::string rows;
  std::string columns;
  bool multiple = false;
};

// "Insert Form Field": the first missing required input.
CheckResult ValidateFormField(const FormField& f);
// The field's markup, before any tab is added.
std::string BuildFormField(bool tagCaseUpper, const FormField& f);

// One line of a dropdown menu, entered on its sub-page.
struct MenuOption {
  std::string text;
  std::string value;
  bool selected = false;
};
CheckResult ValidateMenuOption(const MenuOption& o);
std::string BuildMenuOption(bool tagCaseUpper, const MenuOption& o);

extern const char* const kFormDoneInfo;

// The buffer and the steps of one run of the dialog.
class FormBuilder {
 public:
  FormBuilder(bool tagCaseUpper, bool fieldOnly) : upper_(tagCaseUpper), fieldOnly_(fieldOnly) {}

  bool FieldOnly() const { return fieldOnly_; }
  // Step 1 of form mode: starts the buffer with the FORM tag.
  CheckResult Start(const FormProperties& p);

  // "Insert Form Field". In field-only mode the result is the text for the document,
  // except for a dropdown menu, whose options come first; otherwise it is empty and the
  // field went into the buffer.
  struct Added {
    CheckResult failed;
    std::string documentText;  // field-only mode: what replaces the selection
  };
  Added AddField(const FormField& f);

  bool DropdownOpen() const { return dropdownOpen_; }
  // A kind may be picked unless a dropdown menu is half made.
  CheckResult PickKind() const;
  CheckResult AddOption(const MenuOption& o);
  // Closes the SELECT. In field-only mode returns the whole menu for the document.
  std::string FinishDropdown();

  // "Done with Form": the whole text for the document.
  std::string Done();

  const std::string& FormText() const { return formText_; }

 private:
  bool upper_;
  bool fieldOnly_;
  bool dropdownOpen_ = false;
  std::string formText_;
};

// Replaces the selection of the active document with `text`, after emptying the undo
// history.
void FormWizard_Insert(Application& app, const std::string& text);
// "Done with Form": the buffer goes into the document, then the note on using forms.
void FormWizard_Done(Application& app, FormBuilder& form);

}  // namespace tessarine
