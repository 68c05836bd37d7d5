#pragma once
// The personal greeting: a cookie script that greets a returning visitor by name and can
// count the visits and tell the date of the last one.

#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct PersonalGreeting {
  std::string askText = "Please enter your name:";
  std::string askMethod = "Popup box";  // or "Web page Form"
  std::string greeting = "Hello, ";
  bool showVisits = false;
  bool showLastVisit = false;

  // Leaving `page` (1 to 3) by Next.
  CheckResult CheckPage(int page) const;
  std::string Script() const;  // for the head
  std::string Calls() const;   // for the body
};

const std::vector<std::string>& GreetingAskMethods();
constexpr int kGreetingPages = 3;

// Done: puts the script into the head and the calls into the body.
void PersonalGreeting_Done(Application& app, const PersonalGreeting& form);

}  // namespace tessarine
