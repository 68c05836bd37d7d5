#pragma once
// Web page properties: the page's title and BODY tag, read from the document when the dialog
// opens and written back in place on OK, and the report of the page's weight.

#include <array>
#include <cstddef>
#include <cstdint>
#include <ctime>
#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;
struct BodyTagFields;

inline constexpr const char* kDefaultDocumentTitle = "Document Title should be typed here";

// A colour combo: the text shown, and the value that OK writes.
struct ColorEntry {
  std::string text;
  std::string value;
};

// The colour combos after the background's: the order of their list.
enum PageColor : std::size_t { TextColor, LinkColor, VisitedLinkColor, ActiveLinkColor };

struct PageProperties {
  std::string title;  // the page's title
  ColorEntry backgroundColor;
  std::array<ColorEntry, 4> colors;  // by PageColor
  std::string backgroundImage;       // file name for the background
  bool fixedBackground = false;      // a fixed watermark
  std::string leftMargin, topMargin;
  bool dontShowForNewPages = false;

  CheckResult Validate() const;
  // The title written: the default one unless a title was typed.
  std::string DocumentTitle() const;
  // "<BODY" and the attributes in the order background, bgcolor, text, link, vlink, alink,
  // margins (each under two names), fixed; each left out when empty.
  std::string BuildBodyTag(bool tagCaseUpper) const;
};

// A typed or listed colour text: a name of the colour table (exactly, so lower case) writes
// its six digits, anything else "#" and the text, an empty text nothing. Sets ColorRed,
// ColorGreen and ColorBlue for the swatch and the preview.
ColorEntry EnterColor(Application& app, const std::string& text);
// The colour dialog's choice (after PickColor, unless ColorCancelled): its digits, with "#".
ColorEntry PickedColorEntry(Application& app);

// Where the title and the BODY tag stand in a page. Searches ignore case.
struct PageLayout {
  bool hasTitle = false;  // "<TITLE>" with a "</TITLE>" behind it
  std::size_t titleStart = 0, titleLength = 0;
  bool hasBody = false;                       // "<BODY" with a ">" behind it
  std::size_t bodyStart = 0, bodyLength = 0;  // from "<" to ">" inclusive
};
PageLayout FindPageLayout(std::string_view text);

// The fields of a BODY tag (without its "<", with its ">"). The link colour is read under
// " LINK=", with its blank, so that VLINK and ALINK are not taken for it.
BodyTagFields ReadBodyTag(std::string_view tag);
// The fields into the form, each colour through the entry rule as if typed.
void ApplyBodyFields(Application& app, const BodyTagFields& fields, PageProperties& form);
// Only the five colours, as "Another Web Page" takes them.
void ApplyBodyColors(Application& app, const BodyTagFields& fields, PageProperties& form);

// The page an empty document gets: doctype, head with the default title, the "Created on"
// comment and `bodyTag`; all of it lower case unless tags are upper case.
std::string PagePropertiesSkeleton(bool tagCaseUpper, const std::string& bodyTag,
                                   const std::tm& now);

struct PageOpening {
  PageProperties form;
  bool selectTitle = false;  // the default title: selected in its field, ready to be typed over
};
// Opening on the active document: marks a tag edit, lays in the skeleton if the text is empty,
// reads the title and the BODY tag and selects that tag.
PageOpening PageProperties_Open(Application& app);

// "Another Web Page": browses for a page and takes the colours of its BODY tag. False when
// nothing was taken (cancelled, unreadable, no BODY tag; the last two with their message).
bool PageProperties_ColorsFromPage(Application& app, PageProperties& form);
// The same for a page's text already read.
bool ColorsFromPageText(Application& app, std::string_view text, PageProperties& form);

// OK: checks, stores ShowPageProps, rewrites title, BODY tag and meta lines of the active
// document. On a failed check it shows the message and returns it; nothing is changed.
CheckResult PageProperties_OK(Application& app, const PageProperties& form);
// Cancel: the selection collapses; meta tags specified meanwhile are dropped.
void PageProperties_Cancel(Application& app);

// The page information.
struct PageScan {
  std::string title;
  std::vector<std::string> images;  // BACKGROUND="..." then IMG SRC="...", trimmed, in order
};
// The text with every comment taken out, an unclosed one to the end.
std::string RemoveComments(std::string_view text);
// Reads a page's text (comments already removed).
PageScan ScanPage(std::string_view text);
// The page's size and its images': a file that cannot be read counts -1.
std::int64_t PageTotalSize(std::int64_t pageSize, const std::vector<std::string>& images,
                           const std::function<std::int64_t(const std::string&)>& sizeOf);
struct DownloadTime {
  std::int64_t minutes = 0, seconds = 0;
};
// At 3600 bytes a second, as a 28.8 modem goes.
DownloadTime DownloadTimeOf(std::int64_t totalBytes);

struct PageReport {
  std::vector<std::string> lines;
  std::string unreadable;  // a file that could not be read; the report stops there
};
// The report for the file `fileName` (a document's caption); "Untitled..." is a new page.
PageReport BuildPageReport(const std::string& fileName);
// The report of the active document, with "Can't open file: " for a read failure.
std::vector<std::string> PageInformation(Application& app);

}  // namespace tessarine
