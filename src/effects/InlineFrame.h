#pragma once
// The inline frame: one IFRAME element showing another page.

#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct InlineFrame {
  std::string url;
  std::string width, height;
  std::string alternativeText;
  std::string alignment = "None";
  bool scrollBars = false;
  bool frameBorder = false;
  std::string hspace, vspace;

  CheckResult Validate() const;
  std::string Build(bool tagCaseUpper) const;
};

const std::vector<std::string>& InlineFrameAlignments();

}  // namespace tessarine
