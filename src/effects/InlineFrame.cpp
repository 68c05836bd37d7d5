#include "effects/InlineFrame.h"

#include "conventions/TagConventions.h"
#include "core/TextServices.h"

namespace tessarine {

const std::vector<std::string>& InlineFrameAlignments() {
  static const std::vector<std::string> items = {"None",  "Left", "Center",
                                                 "Right", "Top",  "Bottom"};
  return items;
}

CheckResult InlineFrame::Validate() const {
  if (url.empty()) return WizardCheck{"Please enter Source URL in the box below.", "sourceUrl"};
  if (width.empty() || height.empty())
    return WizardCheck{"Please enter Frame width and height in the appropriate box below.",
                       width.empty() ? "frameWidth" : "frameHeight"};
  return std::nullopt;
}

std::string InlineFrame::Build(bool upper) const {
  auto attribute = [&](const char* head, const std::string& value) {
    return value.empty() ? std::string() : FormatAttribute(upper, head, value);
  };
  const std::string align = alignment == "None" ? "" : FormatAttribute(upper, " ALIGN=", alignment);
  // Both are written either way: a clear box says NO and 0.
  const std::string scrolling = scrollBars ? " SCROLLING=\"YES\"" : " SCROLLING=\"NO\"";
  const std::string border = frameBorder ? " FRAMEBORDER=\"1\"" : " FRAMEBORDER=\"0\"";
  const std::string attributes = attribute(" HEIGHT=", height) + attribute(" WIDTH=", width) +
                                 attribute(" VSPACE=", vspace) + attribute(" HSPACE=", hspace) +
                                 border + scrolling + align;
  const std::string q = "\"";
  if (upper) return "<IFRAME SRC=" + q + url + q + attributes + ">" + alternativeText + "</IFRAME>";
  return "<iframe src=" + q + url + q + LCase(attributes) + ">" + alternativeText + "</iframe>";
}

}  // namespace tessarine
