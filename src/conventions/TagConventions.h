#pragma once
// How every wizard builds its markup: the tag case, quoted attributes, colours in their
// three forms, the path from the document to a file, and handing the text over.

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarine {

class Application;

// 1 when tags and attribute names are written in upper case.
std::int16_t TagCaseUpper(const Application& app);

// The head (" target=") folded by the tag case, then the value in double quotes as it stands.
std::string FormatAttribute(bool upper, std::string_view head, std::string_view value);
std::string FormatAttribute(const Application& app, std::string_view head, std::string_view value);

// The URL prefix from the document whose caption is `documentPath` to `targetDirectory`;
// empty for the same folder, an untitled document, or when the walk fails.
std::string RelativePath(const std::string& documentPath, const std::string& targetDirectory);

// The analyser's direction: a link read from a page against its folder and the site root.
// Both the link and the current folder change; folders end in "/".
void ResolveRelativeLink(std::string& link, std::string& currentDirectory,
                         const std::string& siteRoot);

// Six hexadecimal digits, red first, from a colour number with red in its low byte.
std::string ColorToHex(std::int32_t color);

struct Rgb {
  std::string red, green, blue;
};
// Decimal texts of the three pairs of `hex`; "192" each for the empty text.
Rgb HexToRgbText(std::string_view hex);
// Fills ColorRed, ColorGreen, ColorBlue.
void HexToRgb(Application& app, std::string_view hex);

// Fills PickedColor, PickedColorHex and ColorCancelled from the colour dialog.
void PickColor(Application& app);

void LoadColorTable(Application& app);
// The value of a colour read from text: a name of the table (exact, so lower case only)
// gives its value, anything else stays as it is.
std::string ColorValueOf(Application& app, const std::string& text);

// The wizards' hand-over: empty the undo history, then put the whole text at the caret.
void HandOverText(Application& app, const std::string& text, bool keepCase);
// Closing a wizard, whichever way: the edit flag goes down and the document takes the focus.
void CloseWizard(Application& app);

}  // namespace tessarine
