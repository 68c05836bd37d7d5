#pragma once
// The first failing check of a wizard: its message, and the field that takes the focus.

#include <optional>
#include <string>

namespace tessarine {

struct WizardCheck {
  std::string message;
  std::string field;
};
using CheckResult = std::optional<WizardCheck>;

}  // namespace tessarine
