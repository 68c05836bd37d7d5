#pragma once
// The anchor dialog: a named target for links, with the text it stands on.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct Anchor {
  std::string name;
  std::string text;  // may be empty

  CheckResult Validate() const;
  std::string Build(bool tagCaseUpper) const;
};

Anchor Anchor_Open(Application& app);
// OK: the anchor goes in at the caret inside the body, else behind the BODY tag.
CheckResult Anchor_OK(Application& app, const Anchor& form);

}  // namespace tessarine
