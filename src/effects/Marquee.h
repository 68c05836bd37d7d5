#pragma once
// The scrolling marquee: one MARQUEE element.

#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

struct Marquee {
  std::string text;
  std::string direction = "Left to Right";
  // Behaviour, loop and alignment are offered but never reach the tag.
  std::string behavior;
  std::string loop = "Infinite";
  std::string alignment;
  std::string width, height, vspace, hspace, scrollAmount, scrollDelay;
  std::string backgroundColor;  // six hex digits, no "#"

  CheckResult Validate() const;
  std::string Build(bool tagCaseUpper) const;
};

const std::vector<std::string>& MarqueeDirections();
const std::vector<std::string>& MarqueeBehaviors();
const std::vector<std::string>& MarqueeLoops();
const std::vector<std::string>& MarqueeAlignments();

}  // namespace tessarine
