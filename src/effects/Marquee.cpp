#include "effects/Marquee.h"

#include "conventions/TagConventions.h"
#include "core/TextServices.h"

namespace tessarine {

const std::vector<std::string>& MarqueeDirections() {
  static const std::vector<std::string> items = {"Left to Right", "Right to Left"};
  return items;
}

const std::vector<std::string>& MarqueeBehaviors() {
  static const std::vector<std::string> items = {"Scroll(Default)", "Slide", "Alternate"};
  return items;
}

const std::vector<std::string>& MarqueeLoops() {
  static const std::vector<std::string> items = {"None", "2", "3", "4",  "5",       "6",
                                                 "7",    "8", "9", "10", "Infinite"};
  return items;
}

const std::vector<std::string>& MarqueeAlignments() {
  static const std::vector<std::string> items = {"None", "Top", "Middle", "Bottom(Default)"};
  return items;
}

CheckResult Marquee::Validate() const {
  if (text.empty())
    return WizardCheck{"Please enter text to be marqueed in the box below.", "marqueeText"};
  return std::nullopt;
}

std::string Marquee::Build(bool upper) const {
  // The direction names where the text goes: "Right to Left" moves it left.
  std::string attributes =
      direction == "Right to Left" ? " DIRECTION=\"Left\"" : " DIRECTION=\"Right\"";
  auto add = [&](const char* head, const std::string& value) {
    if (!value.empty()) attributes += FormatAttribute(upper, head, value);
  };
  add(" WIDTH=", width);
  add(" HEIGHT=", height);
  add(" VSPACE=", vspace);
  add(" HSPACE=", hspace);
  add(" SCROLLAMOUNT=", scrollAmount);
  add(" SCROLLDELAY=", scrollDelay);
  if (!backgroundColor.empty())
    attributes += FormatAttribute(upper, " BGCOLOR=", "#" + backgroundColor);
  if (upper) return "<MARQUEE" + attributes + ">" + text + "</MARQUEE>";
  return "<marquee" + LCase(attributes) + ">" + text + "</marquee>";
}

}  // namespace tessarine
