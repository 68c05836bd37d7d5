#include "framesforms/AppletParameter.h"

namespace tessarine {

namespace {
bool Blank(const std::string& s) {
  return s.find_first_not_of(' ') == std::string::npos;
}

// The text between the double quotes after `head`, searched from `from`.
bool QuotedAfter(const std::string& line, const std::string& head, std::size_t& from,
                 std::string& out) {
  const std::size_t at = line.find(head, from);
  if (at == std::string::npos) return false;
  const std::size_t open = at + head.size();
  if (open >= line.size() || line[open] != '"') return false;
  const std::size_t close = line.find('"', open + 1);
  if (close == std::string::npos) return false;
  out = line.substr(open + 1, close - open - 1);
  from = close + 1;
  return true;
}
}  // namespace

CheckResult ValidateAppletParameter(const AppletParameter& p) {
  if (Blank(p.name)) return WizardCheck{"Enter a parameter name and value.", "parameterName"};
  if (p.value.empty()) return WizardCheck{"Enter a parameter name and value.", "parameterValue"};
  return std::nullopt;
}

std::string BuildAppletParameter(bool upper, const AppletParameter& p) {
  return std::string(upper ? "<PARAM NAME=" : "<param name=") + "\"" + p.name + "\"" +
         (upper ? " VALUE=" : " value=") + "\"" + p.value + "\">";
}

bool ParseAppletParameter(const std::string& line, AppletParameter& p) {
  std::size_t from = 0;
  AppletParameter read;
  const bool upper = line.rfind("<PARAM", 0) == 0;
  if (!upper && line.rfind("<param", 0) != 0) return false;
  if (!QuotedAfter(line, upper ? " NAME=" : " name=", from, read.name)) return false;
  if (!QuotedAfter(line, upper ? " VALUE=" : " value=", from, read.value)) return false;
  p = read;
  return true;
}

}  // namespace tessarine
