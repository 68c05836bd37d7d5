#pragma once
// The horizontal line dialog. Its line is always written in lower case.

#include <string>

namespace tessarine {

class Application;

struct frmHorizLine {
  std::string Text1 = "1";  // thickness in pixels
  std::string Text2;        // length, pixels or percent
  bool Check1 = false;      // no shading
  std::string cmbAlign;     // "Left", "Right", "Center" or empty

  // BodyInsert's text: "<hr" and the attributes, lower case whatever the tag case.
  std::string Build(bool tagCaseUpper) const;
};

extern const char* const kHorizLineAligns[3];

// OK: leaves the line in BodyInsert and empties HeadInsert; the caller writes them.
void frmHorizLine_OK(Application& app, const frmHorizLine& form);

}  // namespace tessarine
