#include "wizards/frmHorizLine.h"

#include "core/Application.h"
#include "core/TextServices.h"
#include "wizards/TagConventions.h"

namespace tessarine {

const char* const kHorizLineAligns[3] = {"Left", "Right", "Center"};

namespace {
std::string Trim(const std::string& s) {
  const std::size_t b = s.find_first_not_of(' ');
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(' ') - b + 1);
}
}  // namespace

std::string frmHorizLine::Build(bool upper) const {
  std::string attributes;
  if (!Text1.empty()) attributes += FormatAttribute(upper, " SIZE=", Text1);
  if (!Text2.empty()) attributes += FormatAttribute(upper, " WIDTH=", Text2);
  if (Check1) attributes += " NOSHADE";
  if (!cmbAlign.empty()) attributes += FormatAttribute(upper, " ALIGN=", Trim(cmbAlign));
  return "<hr" + LCase(attributes) + ">";
}

void frmHorizLine_OK(Application& app, const frmHorizLine& form) {
  app.wizards.HeadInsert.clear();
  app.wizards.BodyInsert = form.Build(TagCaseUpper(app) == 1);
}

}  // namespace tessarine
