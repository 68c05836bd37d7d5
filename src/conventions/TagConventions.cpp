#include "conventions/TagConventions.h"

#include <cctype>
#include <cstdio>

#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/Desktop.h"
#include "platform/EditControl.h"

namespace tessarine {

namespace {

char Lower(char c) {
  return (c >= 'A' && c <= 'Z') ? static_cast<char>(c - 'A' + 'a') : c;
}

// Mid$ with a one-based start: whatever of the range exists.
std::string Mid(const std::string& s, long long start, long long length) {
  if (start < 1 || length <= 0 || start > static_cast<long long>(s.size())) return "";
  return s.substr(static_cast<std::size_t>(start - 1), static_cast<std::size_t>(length));
}

// Character at a one-based position, or 0 outside the text.
char At(const std::string& s, long long p) {
  return (p >= 1 && p <= static_cast<long long>(s.size())) ? s[static_cast<std::size_t>(p - 1)]
                                                           : '\0';
}

const char* const kColorNames[16] = {"aqua",   "black",  "blue",  "fuschia", "gray",   "green",
                                     "lime",   "maroon", "navy",  "olive",   "purple", "red",
                                     "silver", "teal",   "white", "yellow"};
const char* const kColorValues[16] = {"00FFFF", "000000", "0000FF", "FF00FF", "808080", "008000",
                                      "00FF00", "800000", "000080", "808000", "800080", "FF0000",
                                      "C0C0C0", "008080", "FFFFFF", "FFFF00"};

}  // namespace

std::int16_t TagCaseUpper(const Application& app) {
  return app.settings.TagCaseUpper ? 1 : 0;
}

std::string FormatAttribute(bool upper, std::string_view head, std::string_view value) {
  std::string out = upper ? UCase(head) : LCase(head);
  out += '"';
  out += value;
  out += '"';
  return out;
}

std::string FormatAttribute(const Application& app, std::string_view head, std::string_view value) {
  return FormatAttribute(TagCaseUpper(app) == 1, head, value);
}

std::string RelativePath(const std::string& documentPath, const std::string& targetDirectory) {
  const std::size_t lastSep = documentPath.rfind('/');
  const std::string d1 = lastSep == std::string::npos ? "" : documentPath.substr(0, lastSep + 1);
  std::string d2 = targetDirectory;
  if (d2.empty() || d2.back() != '/') d2 += '/';
  const std::string l1 = LCase(d1), l2 = LCase(d2);
  if (l1 == l2) return "";
  if (LCase(documentPath).rfind("untitled", 0) == 0) return "";

  const long long n1 = static_cast<long long>(d1.size()), n2 = static_cast<long long>(d2.size());
  long long p = 1;
  while (p <= n1 && p <= n2 && Lower(At(d1, p)) == Lower(At(d2, p))) ++p;

  long long up = 0;
  if (p <= n1)
    for (long long i = p; i <= n1; ++i)
      if (At(d1, i) == '/') ++up;

  if (up == 0) return Mid(d2, p, n2 - p) + "/";

  std::string result;
  for (long long i = 0; i < up; ++i) result += "../";
  // A match that stopped inside a folder name goes back to that folder's start.
  while (At(d2, p) != '/') {
    --p;
    if (p < 1) return "";  // no separator in front: nothing to climb from
  }
  ++p;
  if (p < n2) result += Mid(d2, p, n2 - p) + "/";
  return result;
}

void ResolveRelativeLink(std::string& link, std::string& currentDirectory,
                         const std::string& siteRoot) {
  if (!link.empty() && link.front() == '/') {
    if (link.size() == 1) {
      currentDirectory = siteRoot.substr(0, siteRoot.empty() ? 0 : siteRoot.size() - 1);
    } else {
      currentDirectory = siteRoot;
      link.erase(0, 1);
    }
  }
  long long count = 0;
  std::size_t from = 0;
  if (link.rfind("..", 0) == 0) {
    count = 1;
    from = 1;
  }
  for (std::size_t at = link.find("..", from); at != std::string::npos;
       at = link.find("..", at + 1))
    ++count;
  if (count == 0) return;
  for (long long i = 0; i < count; ++i) link.erase(0, std::min<std::size_t>(3, link.size()));
  // Walk back over the folder's own closing separator and then `count` more.
  long long passed = 0;
  for (long long i = static_cast<long long>(currentDirectory.size()) - 2; i >= 0; --i) {
    if (currentDirectory[static_cast<std::size_t>(i)] == '/' && ++passed == count) {
      currentDirectory.resize(static_cast<std::size_t>(i) + 1);
      return;
    }
  }
  currentDirectory = "/";  // climbed past the start: the root stays
}

std::string ColorToHex(std::int32_t color) {
  char buf[16];
  std::snprintf(buf, sizeof buf, "%X", static_cast<unsigned>(color));
  std::string h = buf;
  if (h.size() < 2)
    h = "00000" + h;
  else if (h.size() < 4)
    h = "0000" + h;
  else if (h.size() < 6)
    h = "00" + h;
  // Seven characters after the fill lose their last digit here, as they always have.
  return Mid(h, 5, 2) + Mid(h, 3, 2) + Mid(h, 1, 2);
}

Rgb HexToRgbText(std::string_view hex) {
  if (hex.empty()) return {"192", "192", "192"};
  auto digit = [&](std::size_t i) -> int {
    if (i >= hex.size()) return 0;
    const char c = hex[i];
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    if (c >= '0' && c <= '9') return c - '0';
    return 0;
  };
  auto pair = [&](std::size_t i) { return std::to_string(digit(i) * 16 + digit(i + 1)); };
  return {pair(0), pair(2), pair(4)};
}

void HexToRgb(Application& app, std::string_view hex) {
  const Rgb rgb = HexToRgbText(hex);
  app.wizards.ColorRed = rgb.red;
  app.wizards.ColorGreen = rgb.green;
  app.wizards.ColorBlue = rgb.blue;
}

void PickColor(Application& app) {
  WizardState& w = app.wizards;
  w.PickedColor.reset();
  w.PickedColorHex.clear();
  w.ColorCancelled = false;
  std::int32_t chosen = 0;
  if (!app.colorDialog.PickColor(0, chosen)) {
    w.ColorCancelled = true;
    return;
  }
  w.PickedColor = chosen;
  w.PickedColorHex = ColorToHex(chosen);
}

void LoadColorTable(Application& app) {
  for (int i = 0; i < 16; ++i) {
    app.wizards.ColorTable[0][static_cast<std::size_t>(i)] = kColorNames[i];
    app.wizards.ColorTable[1][static_cast<std::size_t>(i)] = kColorValues[i];
  }
}

std::string ColorValueOf(Application& app, const std::string& text) {
  if (app.wizards.ColorTable[0][0].empty()) LoadColorTable(app);
  for (std::size_t i = 0; i < 16; ++i)
    if (app.wizards.ColorTable[0][i] == text) return app.wizards.ColorTable[1][i];
  return text;
}

void HandOverText(Application& app, const std::string& text, bool keepCase) {
  EmptyUndoBuffer(app);
  InsertAtCaret(app, text, keepCase);
}

void CloseWizard(Application& app) {
  app.wizards.TagEditActive = 0;
  if (EditControl* e = app.ActiveEdit()) e->SetFocus();
}

}  // namespace tessarine
