#include "wizards/HorizontalLine.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"

namespace tessarine {

const char* const kHorizLineAligns[3] = {"Left", "Right", "Center"};

namespace {
std::string Trim(const std::string& s) {
  const std::size_t b = s.find_first_not_of(' ');
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(' ') - b + 1);
}
}  // namespace

std::string HorizontalLine::Build(bool upper) const {
  std::string attributes;
  if (!thickness.empty()) attributes += FormatAttribute(upper, " SIZE=", thickness);
  if (!lineWidth.empty()) attributes += FormatAttribute(upper, " WIDTH=", lineWidth);
  if (noShading) attributes += " NOSHADE";
  if (!cmbAlign.empty()) attributes += FormatAttribute(upper, " ALIGN=", Trim(cmbAlign));
  return "<hr" + LCase(attributes) + ">";
}

void HorizontalLine_OK(Application& app, const HorizontalLine& form) {
  app.wizards.HeadInsert.clear();
  app.wizards.BodyInsert = form.Build(TagCaseUpper(app) == 1);
}

}  // namespace tessarine
