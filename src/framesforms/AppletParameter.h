#pragma once
// The applet parameter dialog: one PARAM line for the applet's list.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

struct AppletParameter {
  std::string name;
  std::string value;
};

CheckResult ValidateAppletParameter(const AppletParameter& p);
std::string BuildAppletParameter(bool tagCaseUpper, const AppletParameter& p);
// A line read back for a double-click edit; false when it is not one this dialog wrote.
bool ParseAppletParameter(const std::string& line, AppletParameter& p);

}  // namespace tessarine
