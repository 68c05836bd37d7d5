#pragma once
// The script tags dialog: a SCRIPT block around the selection.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct ScriptTags {
  std::string cmbLanguage = "JavaScript";
  bool chkRunAtServer = false;
  std::string txtSrc;
  bool chkInsertIntoHead = false;

  CheckResult Validate() const;
  struct Tags {
    std::string start, end;
  };
  Tags Build(bool tagCaseUpper) const;
};

extern const char* const kScriptLanguages[5];
// The TYPE written for a language.
std::string ScriptType(const std::string& language);

// Which of the run-at and file fields a language leaves enabled.
struct ScriptLanguageFields {
  bool runAtEnabled;
  bool srcEnabled;
};
ScriptLanguageFields ScriptLanguageState(const std::string& language);

// OK: on a failed check shows the message and returns it; otherwise moves the caret into
// the head if asked and wraps the selection.
CheckResult ScriptTags_OK(Application& app, const ScriptTags& form);

}  // namespace tessarine
