#pragma once
// The meta tags dialog: description, keywords, and a refresh for a splash page.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct Metatags {
  std::string description;     // description
  std::string keywords;        // keywords
  bool splashScreen = false;   // splash screen
  std::string refreshSeconds;  // seconds
  std::string nextPageUrl;     // URL of the second page

  CheckResult Validate() const;
  struct Texts {
    std::string description, keywords, effects;
  };
  Texts Build(bool tagCaseUpper) const;
};

// OK: fills MetaDescription, MetaKeywords and MetaEffects. On a failed check it shows the
// message and returns it; the dialog stays open.
CheckResult Metatags_OK(Application& app, const Metatags& form);

}  // namespace tessarine
