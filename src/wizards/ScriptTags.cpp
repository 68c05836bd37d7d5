#include "wizards/ScriptTags.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"

namespace tessarine {

const char* const kScriptLanguages[5] = {"JavaScript", "JavaScript1.1", "JavaScript1.2", "JScript",
                                         "VBScript"};

namespace {
std::string Trim(const std::string& s) {
  const std::size_t b = s.find_first_not_of(' ');
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(' ') - b + 1);
}
}  // namespace

std::string ScriptType(const std::string& language) {
  const std::string head = language.substr(0, 4);
  if (head == "Java") return "text/JavaScript";
  // Exact: "JScript" itself begins "JScr" and so is written as VBScript.
  if (head == "Jscr") return "text/JScript";
  return "text/VBScript";
}

ScriptLanguageFields ScriptLanguageState(const std::string& language) {
  if (language == "JavaScript") return {false, true};  // client script: no server run
  if (language == "VBScript") return {true, false};    // server script: code inline
  return {true, true};
}

CheckResult ScriptTags::Validate() const {
  if (cmbLanguage.empty()) return WizardCheck{"Please select a language.", "cmbLanguage"};
  return std::nullopt;
}

ScriptTags::Tags ScriptTags::Build(bool upper) const {
  const std::string q = "\"", crlf = "\r\n";
  std::string runat, src;
  if (chkRunAtServer && cmbLanguage != "JavaScript")
    runat = FormatAttribute(upper, " RUNAT=", "Server");
  if (!txtSrc.empty()) src = FormatAttribute(upper, " SRC=", Trim(txtSrc));
  Tags t;
  t.start = crlf + crlf + "<SCRIPT TYPE=" + q + ScriptType(cmbLanguage) + q + " LANGUAGE=" + q +
            cmbLanguage + q + runat + src + ">" + crlf + "<!--" + crlf;
  t.end = crlf + crlf + "//-->" + crlf + "</SCRIPT>" + crlf + crlf;
  return t;
}

CheckResult ScriptTags_OK(Application& app, const ScriptTags& form) {
  if (CheckResult failed = form.Validate()) {
    app.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app.title);
    return failed;
  }
  EditControl* e = app.ActiveEdit();
  if (!e) return std::nullopt;
  if (form.chkInsertIntoHead) {
    const long long head = InStrNoCase(1, e->Text(), "</HEAD>");
    if (head > 0) e->SetSelStart(head - 1);
  }
  const ScriptTags::Tags t = form.Build(TagCaseUpper(app) == 1);
  WrapSelection(app, t.start, t.end, false);
  return std::nullopt;
}

}  // namespace tessarine
