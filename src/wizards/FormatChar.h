#pragma once
// The text format dialog: font face, colour, size, position and styles around the selection.

#include <string>
#include <vector>

namespace tessarine {

class Application;

struct FormatChar {
  std::string Combo3;              // font face
  std::string Text1;               // colour, six hexadecimal digits
  std::string Combo1 = "Default";  // size row
  std::string Combo2 = "Normal";   // position
  bool Check1 = false, Check2 = false, Check3 = false, Check4 = false, Check5 = false;
  bool Check7 = false, Check9 = false, Check10 = false, Check12 = false, Check13 = false,
       Check14 = false;

  struct Tags {
    std::string start, end;
  };
  // The start and end texts, in upper case as stored; the text services fold them.
  Tags Build() const;
};

// Combo3's list: the recent font first when there is one.
std::vector<std::string> FormatCharFonts(const std::string& recentFontName);
extern const char* const kFormatCharSizes[8];
extern const char* const kFormatCharPositions[3];
// Label6's point size for a size row; 0 keeps the default.
int FormatCharPointSize(const std::string& sizeRow);

// The form's load: the recent font from the settings.
std::string RecentFontName(Application& app);
// OK: remembers the font, wraps the selection.
void FormatChar_OK(Application& app, const FormatChar& form);

}  // namespace tessarine
