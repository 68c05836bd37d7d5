#include "wizards/ImageTag.h"

#include <cstdint>
#include <cstdio>
#include <string_view>

#include "conventions/FavoriteUrls.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/Desktop.h"
#include "platform/ImageHeader.h"
#include "platform/MessageBoxes.h"

namespace tessarine {

namespace {

const std::string Q = "\"";

std::string TrimBlanks(const std::string& s) {
  const std::size_t b = s.find_first_not_of(' ');
  if (b == std::string::npos) return "";
  return s.substr(b, s.find_last_not_of(' ') - b + 1);
}

// Days since 30 December 1899, the fraction being the time of day.
double DayNumber(const std::tm& t) {
  // Civil date to days (Howard Hinnant's algorithm), then shifted to the 1899 epoch. Wide
  // numbers, so that no field of the clock can overflow the sum.
  std::int64_t y = std::int64_t{t.tm_year} + 1900;
  const std::int64_t m = t.tm_mon + 1;
  y -= m <= 2;
  const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
  const std::int64_t yoe = y - era * 400;
  const std::int64_t doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + t.tm_mday - 1;
  const std::int64_t doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  const std::int64_t days = era * 146097 + doe - 719468 + 25569;
  const std::int64_t seconds =
      std::int64_t{t.tm_hour} * 3600 + std::int64_t{t.tm_min} * 60 + t.tm_sec;
  return static_cast<double>(days) + static_cast<double>(seconds) / 86400.0;
}

}  // namespace

const std::vector<ImageAlignment>& ImageAlignments() {
  static const std::vector<ImageAlignment> list = {
      {"None", ""},
      {"Top",
       "Aligns the top of the image with the top of the tallest item (image, text, etc.) in the "
       "line."},
      {"Middle", "Aligns the baseline of the text with the middle of the image."},
      {"Bottom(Default)", "Aligns the bottom of the image with the baseline of the text."},
      {"Left",
       "Aligns image to the left margin and wraps multiple lines of text next to (to the right "
       "of) the image."},
      {"Right",
       "Aligns image to the right margin and wraps multiple lines of text next to (to the left "
       "of) the image."},
      {"Texttop", "Aligns the top of the image with the top of the tallest text in the line."},
      {"Absmiddle",
       "Aligns the middle of the image with the middle of the largest item in the line."},
      {"Baseline", "Aligns the bottom of the image with the baseline of the text."},
      {"Absbottom",
       "Aligns the bottom of the image with the bottom of the lowest item in the line."},
  };
  return list;
}

std::string ImageAlignAttribute(const std::string& item) {
  if (item.empty() || item == "None") return "";
  // This row has always written the word below, with no blank before it; pages carry it.
  if (item == "Bottom(Default)") return "False";
  return " ALIGN=" + Q + item + Q;
}

std::string ImageName(const std::tm& now) {
  char text[64];
  std::snprintf(text, sizeof text, "%.15G", DayNumber(now));
  const std::string s = TrimBlanks(text);
  // Four characters starting five before the last one.
  if (s.size() < 6) return "img" + s;
  return "img" + s.substr(s.size() - 6, 4);
}

CheckResult ImageTag::Validate() const {
  if (source.empty())
    return WizardCheck{"Please enter image filename in the box below.", "imageSource"};
  return std::nullopt;
}

std::string ImageTag::Build(bool upper, const std::string& name) const {
  std::string link = linkUrl;
  std::string rollover;
  if (!mouseOverImage.empty()) {
    rollover = " onMouseover=" + Q + name + ".src='" + mouseOverImage + "'" + Q +
               " onMouseout=" + Q + name + ".src='" + source + "'" + Q;
    // The events need a link to sit on.
    if (link.empty()) link = "#";
  }
  auto attribute = [upper](const char* head, const std::string& value) {
    return value.empty() ? std::string() : FormatAttribute(upper, head, value);
  };
  const std::string namePart =
      FormatAttribute(upper, " name=", name) + " " + FormatAttribute(upper, " id=", name);
  std::string video;
  if (!videoFile.empty()) {
    const std::string loop = TrimBlanks(videoLoop).empty() ? "1" : TrimBlanks(videoLoop);
    const std::string start = TrimBlanks(videoStart).empty() ? "FALSE" : TrimBlanks(videoStart);
    std::string rest = " LOOP=" + Q + loop + Q + " START=" + Q + start + Q + " CONTROLLER=" + Q +
                       (videoControls ? "TRUE" : "FALSE") + Q;
    if (!upper) rest = LCase(rest);
    video = (upper ? " DYNSRC=" : " dynsrc=") + Q + TrimBlanks(videoFile) + Q + rest;
  }
  std::string align = ImageAlignAttribute(alignment);
  if (!upper) align = LCase(align);
  const std::string image =
      (upper ? "<IMG SRC=" : "<img src=") + Q + source + Q + namePart +
      attribute(" lowsrc=", lowResSource) + video + FormatAttribute(upper, " alt=", altText) +
      align + attribute(" width=", width) + attribute(" height=", height) +
      FormatAttribute(upper, " border=", border.empty() ? "0" : border) +
      attribute(" vspace=", verticalSpace) + attribute(" hspace=", horizontalSpace) +
      (serverMap ? (upper ? " ISMAP" : " ismap") : "") +
      (useClientMap ? FormatAttribute(upper, " usemap=", "#" + mapName) : "") + ">";
  if (link.empty()) return image;
  return (upper ? "<A HREF=" : "<a href=") + Q + link + Q + rollover + ">" + image +
         (upper ? "</A>" : "</a>");
}

ImageSizeReadout ReadImageSize(ImageInfo& images, const std::string& path) {
  ImageSizeReadout r;
  int w = 0, h = 0;
  if (images.Size(path, w, h)) {
    r.known = true;
    r.width = std::to_string(w);
    r.height = std::to_string(h);
    // The number's text form carries a blank where a sign would stand.
    r.widthLabel = "Image width (pixels):  " + r.width;
    r.heightLabel = "Image height (pixels):  " + r.height;
    return r;
  }
  r.problem = ImageHeaderMessage(ReadImageFileHeader(path), path);
  if (r.problem.empty()) r.problem = "The size of " + path + " can't be read.";
  return r;
}

bool SizeReadFromList(const std::string& fileName) {
  if (fileName.size() < 3) return false;
  const std::string last = LCase(fileName.substr(fileName.size() - 3));
  return last == "gif" || last == "jpg";
}

std::string ImageListPattern(bool folderChanged) {
  return folderChanged ? "*.gif;*.jpg" : "*.jpg;*.gif ";
}

namespace {
bool Wildcard(std::string_view name, std::string_view pattern) {
  // Iterative match with one backtrack point for the last "*".
  std::size_t n = 0, p = 0, star = std::string_view::npos, mark = 0;
  while (n < name.size()) {
    if (p < pattern.size() && (pattern[p] == '?' || pattern[p] == name[n])) {
      ++n;
      ++p;
    } else if (p < pattern.size() && pattern[p] == '*') {
      star = p++;
      mark = n;
    } else if (star != std::string_view::npos) {
      p = star + 1;
      n = ++mark;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}
}  // namespace

bool MatchesPattern(const std::string& fileName, const std::string& pattern) {
  const std::string name = LCase(fileName);
  const std::string all = LCase(pattern);
  std::size_t from = 0;
  while (from <= all.size()) {
    std::size_t end = all.find(';', from);
    if (end == std::string::npos) end = all.size();
    const std::string one = TrimBlanks(all.substr(from, end - from));
    if (!one.empty() && Wildcard(name, one)) return true;
    from = end + 1;
  }
  return false;
}

CheckResult ImageTag_OK(Application& app, const ImageTag& form) {
  if (CheckResult failed = form.Validate()) {
    app.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app.title);
    return failed;
  }
  RememberUrl(app, form.linkUrl);
  EmptyUndoBuffer(app);
  std::string head, body = form.Build(TagCaseUpper(app) == 1, ImageName(app.clock.Now()));
  InsertInHeadAndBody(app, head, body);
  return std::nullopt;
}

}  // namespace tessarine
