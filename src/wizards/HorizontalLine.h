#pragma once
// The horizontal line dialog. Its line is always written in lower case.

#include <string>

namespace tessarine {

class Application;

struct HorizontalLine {
  std::string thickness = "1";  // thickness in pixels
  std::string lineWidth;        // length, pixels or percent
  bool noShading = false;       // no shading
  std::string cmbAlign;         // "Left", "Right", "Center" or empty

  // BodyInsert's text: "<hr" and the attributes, lower case whatever the tag case.
  std::string Build(bool tagCaseUpper) const;
};

extern const char* const kHorizLineAligns[3];

// OK: leaves the line in BodyInsert and empties HeadInsert; the caller writes them.
void HorizontalLine_OK(Application& app, const HorizontalLine& form);

}  // namespace tessarine
