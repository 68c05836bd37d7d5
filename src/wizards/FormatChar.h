#pragma once
// The text format dialog: font face, colour, size, position and styles around the selection.

#include <string>
#include <vector>

namespace tessarine {

class Application;

struct FormatChar {
  std::string fontFace;             // font face
  std::string colorHex;             // colour, six hexadecimal digits
  std::string sizeRow = "Default";  // size row
  std::string position = "Normal";  // position
  bool bold = false, italic = false, underline = false, strikeThrough = false, teletype = false;
  bool code = false, emphasis = false, keyboard = false, sample = false, strong = false,
       variable = false;

  struct Tags {
    std::string start, end;
  };
  // The start and end texts, in upper case as stored; the text services fold them.
  Tags Build() const;
};

// fontFace's list: the recent font first when there is one.
std::vector<std::string> FormatCharFonts(const std::string& recentFontName);
extern const char* const kFormatCharSizes[8];
extern const char* const kFormatCharPositions[3];
// sampleText's point size for a size row; 0 keeps the default.
int FormatCharPointSize(const std::string& sizeRow);

// The form's load: the recent font from the settings.
std::string RecentFontName(Application& app);
// OK: remembers the font, wraps the selection.
void FormatChar_OK(Application& app, const FormatChar& form);

}  // namespace tessarine
