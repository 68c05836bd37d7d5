#include "wizards/PageProperties.h"

#include <algorithm>

#include "conventions/CFile.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/DateFormat.h"
#include "core/NewDocument.h"
#include "core/TextServices.h"
#include "platform/Desktop.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "sitetools/SiteFiles.h"
#include "wizards/EditTag.h"

namespace tessarine {

namespace {

constexpr std::size_t npos = std::string_view::npos;

// First place of `needle` at or after `from`, ignoring ASCII case; npos when absent.
std::size_t Find(std::string_view text, std::string_view needle, std::size_t from = 0) {
  if (from > text.size()) return npos;
  const long long at = InStrNoCase(static_cast<long long>(from) + 1, text, needle);
  return at == 0 ? npos : static_cast<std::size_t>(at - 1);
}

std::string WithoutHash(std::string value) {
  if (!value.empty() && value[0] == '#') value.erase(0, 1);
  return value;
}

std::string Trim(std::string_view s) {
  const std::size_t b = s.find_first_not_of(' ');
  if (b == npos) return "";
  return std::string(s.substr(b, s.find_last_not_of(' ') - b + 1));
}

bool EndsWithNoCase(std::string_view name, std::string_view end) {
  return name.size() >= end.size() && LCase(name.substr(name.size() - end.size())) == end;
}

// Every `key` (upper case, ending in a double quote) of the text, ignoring case: the value up
// to the next double quote, trimmed; one without its closing quote runs to the end.
void CollectQuoted(std::string_view text, std::string_view key, std::vector<std::string>& out) {
  for (std::size_t at = Find(text, key); at != npos; at = Find(text, key, at + key.size())) {
    const std::size_t start = at + key.size();
    std::size_t end = text.find('"', start);
    if (end == npos) end = text.size();
    out.push_back(Trim(text.substr(start, end - start)));
  }
}

// The file's folder, with its closing "/"; empty for a bare name.
std::string FolderOf(const std::string& path) {
  const std::size_t slash = path.rfind('/');
  return slash == npos ? "" : path.substr(0, slash + 1);
}

}  // namespace

CheckResult PageProperties::Validate() const {
  if (fixedBackground && backgroundImage.empty())
    return WizardCheck{
        "You have specified that the background image is fixed.  Please enter a "
        "filename for the background image.",
        "backgroundImage"};
  return std::nullopt;
}

std::string PageProperties::DocumentTitle() const {
  return title.empty() ? kDefaultDocumentTitle : title;
}

std::string PageProperties::BuildBodyTag(bool upper) const {
  auto part = [upper](std::string_view head, const std::string& value) {
    return value.empty() ? std::string() : FormatAttribute(upper, head, value);
  };
  std::string tag = upper ? "<BODY" : "<body";
  tag += part(" background=", backgroundImage);
  tag += part(" bgcolor=", backgroundColor.value);
  tag += part(" text=", colors[TextColor].value);
  tag += part(" link=", colors[LinkColor].value);
  tag += part(" vlink=", colors[VisitedLinkColor].value);
  tag += part(" alink=", colors[ActiveLinkColor].value);
  // Each browser family reads its own name for the margins.
  tag += part(" leftmargin=", leftMargin) + part(" marginwidth=", leftMargin);
  tag += part(" topmargin=", topMargin) + part(" marginheight=", topMargin);
  if (fixedBackground) {
    const std::string fixed = " bgproperties=\"fixed\"";
    tag += upper ? UCase(fixed) : fixed;
  }
  return tag + ">";
}

ColorEntry EnterColor(Application& app, const std::string& text) {
  WizardState& w = app.wizards;
  if (w.ColorTable[0][0].empty()) LoadColorTable(app);
  for (std::size_t i = 0; i < w.ColorTable[0].size(); ++i) {
    if (w.ColorTable[0][i] == text) {
      HexToRgb(app, w.ColorTable[1][i]);
      return {text, w.ColorTable[1][i]};
    }
  }
  HexToRgb(app, text);
  return {text, text.empty() ? "" : "#" + text};
}

ColorEntry PickedColorEntry(Application& app) {
  const std::string& hex = app.wizards.PickedColorHex;
  HexToRgb(app, hex);
  return {hex, "#" + hex};
}

PageLayout FindPageLayout(std::string_view text) {
  PageLayout layout;
  if (const std::size_t t = Find(text, "<TITLE>"); t != npos) {
    const std::size_t start = t + 7;
    if (const std::size_t end = Find(text, "</TITLE>", start); end != npos) {
      layout.hasTitle = true;
      layout.titleStart = start;
      layout.titleLength = end - start;
    }
  }
  if (const std::size_t b = Find(text, "<BODY"); b != npos) {
    if (const std::size_t g = text.find('>', b); g != npos) {
      layout.hasBody = true;
      layout.bodyStart = b;
      layout.bodyLength = g - b + 1;
    }
  }
  return layout;
}

BodyTagFields ReadBodyTag(std::string_view tag) {
  BodyTagFields fields;
  FillBody(tag, fields);
  fields.linkColor = WithoutHash(ParseTag(tag, " LINK="));
  return fields;
}

void ApplyBodyColors(Application& app, const BodyTagFields& fields, PageProperties& form) {
  form.backgroundColor = EnterColor(app, fields.backgroundColor);
  form.colors[TextColor] = EnterColor(app, fields.textColor);
  form.colors[LinkColor] = EnterColor(app, fields.linkColor);
  form.colors[VisitedLinkColor] = EnterColor(app, fields.visitedLinkColor);
  form.colors[ActiveLinkColor] = EnterColor(app, fields.activeLinkColor);
}

void ApplyBodyFields(Application& app, const BodyTagFields& fields, PageProperties& form) {
  ApplyBodyColors(app, fields, form);
  form.leftMargin = fields.leftMargin;
  form.topMargin = fields.topMargin;
  form.backgroundImage = fields.backgroundImage;
  form.fixedBackground = fields.fixedBackground;
}

std::string PagePropertiesSkeleton(bool upper, const std::string& bodyTag, const std::tm& now) {
  const std::string page =
      std::string("<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 ") + "Transitional//EN\" \"" +
      kHtml40LooseSysId + "\">\r\n\r\n" + "<HTML>\r\n\r\n<HEAD>\r\n\t<TITLE>" +
      kDefaultDocumentTitle + "</TITLE>\r\n</HEAD>\r\n\r\n<!-- Created on " +
      FormatDate(now, "mmmm dd, yyyy ") + " at " + FormatDate(now, "hh:mm AM/PM") + " -->\r\n\r\n" +
      bodyTag + "\r\n\r\n\r\n\r\n</BODY>\r\n</HTML>";
  return upper ? page : LCase(page);
}

PageOpening PageProperties_Open(Application& app) {
  PageOpening opening;
  app.wizards.TagEditActive = 1;
  if (app.wizards.ColorTable[0][0].empty()) LoadColorTable(app);
  opening.form.dontShowForNewPages = !app.settings.ShowPageProps;
  EditControl* edit = app.ActiveEdit();
  if (!edit) return opening;
  if (edit->Length() == 0) {
    // A new page's body tag is cleared; a plain one stands in, or the page would have none.
    const bool upper = TagCaseUpper(app) == 1;
    const std::string body = app.files.BodyTag.empty() ? "<BODY>" : app.files.BodyTag;
    edit->ReplaceSel(PagePropertiesSkeleton(upper, body, app.clock.Now()));
  }
  const std::string_view text = edit->View();
  const PageLayout layout = FindPageLayout(text);
  if (layout.hasTitle)
    opening.form.title.assign(text.substr(layout.titleStart, layout.titleLength));
  opening.selectTitle = opening.form.title == kDefaultDocumentTitle;
  if (layout.hasBody) {
    const std::string tag(text.substr(layout.bodyStart + 1, layout.bodyLength - 1));
    edit->Select(static_cast<Pos>(layout.bodyStart), static_cast<Pos>(layout.bodyLength));
    ApplyBodyFields(app, ReadBodyTag(tag), opening.form);
  }
  return opening;
}

bool ColorsFromPageText(Application& app, std::string_view text, PageProperties& form) {
  const PageLayout layout = FindPageLayout(text);
  if (!layout.hasBody) {
    app.messages.Show("No colors in this HTML document.", MsgButtons::OK, MsgIcon::None, app.title);
    return false;
  }
  const std::string_view tag = text.substr(layout.bodyStart + 1, layout.bodyLength - 1);
  ApplyBodyColors(app, ReadBodyTag(tag), form);
  return true;
}

bool PageProperties_ColorsFromPage(Application& app, PageProperties& form) {
  CFile file(app.fileDialogs);
  const std::string path = file.Browse();
  if (path.empty()) return false;
  const std::optional<std::string> text = ReadFileText(path);
  if (!text) {
    app.messages.Show("Can't open file: " + path, MsgButtons::OK, MsgIcon::None, app.title);
    return false;
  }
  return ColorsFromPageText(app, *text, form);
}

CheckResult PageProperties_OK(Application& app, const PageProperties& form) {
  FileState& files = app.files;
  WizardState& w = app.wizards;
  files.BodyTag.clear();
  files.DocumentTitle.clear();
  if (CheckResult failed = form.Validate()) {
    app.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app.title);
    return failed;
  }
  files.DocumentTitle = form.DocumentTitle();
  const bool upper = TagCaseUpper(app) == 1;
  app.settings.ShowPageProps = !form.dontShowForNewPages;
  app.store.SaveSetting("Miscellaneous", "ShowPageProps", form.dontShowForNewPages ? "0" : "1");
  files.BodyTag = form.BuildBodyTag(upper);

  EditControl* edit = app.ActiveEdit();
  if (!edit) return std::nullopt;
  EmptyUndoBuffer(app);
  // One step for Undo, up to where a head has to be made (that empties the history).
  UndoGroup group(*edit);
  if (!form.title.empty()) {
    const std::string_view text = edit->View();
    const std::size_t t = Find(text, "<TITLE>");
    if (t == npos) {
      std::string head = "<title>" + files.DocumentTitle + "</title>\r\n", body;
      InsertInHeadAndBody(app, head, body);
    } else {
      const std::size_t end = Find(text, "</TITLE>", t + 7);
      // Without its end tag the title goes in behind "<TITLE>", replacing nothing.
      edit->Select(static_cast<Pos>(t + 7), end == npos ? 0 : static_cast<Pos>(end - t - 7));
      edit->ReplaceSel(files.DocumentTitle);
    }
  }
  {
    const PageLayout layout = FindPageLayout(edit->View());
    // With no BODY tag the new one takes the place of the selection.
    if (layout.hasBody)
      edit->Select(static_cast<Pos>(layout.bodyStart), static_cast<Pos>(layout.bodyLength));
    edit->ReplaceSel(files.BodyTag);
  }
  if (!w.MetaDescription.empty() || !w.MetaKeywords.empty() || !w.MetaEffects.empty()) {
    const std::string meta = w.MetaDescription + w.MetaKeywords + w.MetaEffects;
    const std::size_t h = Find(edit->View(), "<HEAD>");
    if (h != npos) {
      edit->Select(static_cast<Pos>(h + 6), 0);
      edit->ReplaceSel("\r\n" + meta);
    } else {
      // No head to put them in: one is made, rather than the tags being dropped.
      std::string head = meta, body;
      if (head.size() >= 2) head.resize(head.size() - 2);  // the head brings its own line end
      InsertInHeadAndBody(app, head, body);
    }
    w.MetaDescription.clear();
    w.MetaKeywords.clear();
    w.MetaEffects.clear();
  }
  return std::nullopt;
}

void PageProperties_Cancel(Application& app) {
  if (EditControl* edit = app.ActiveEdit()) edit->SetSelLength(0);
  app.wizards.MetaDescription.clear();
  app.wizards.MetaKeywords.clear();
  app.wizards.MetaEffects.clear();
}

std::string RemoveComments(std::string_view text) {
  std::string out;
  out.reserve(text.size());
  std::size_t from = 0;
  while (from < text.size()) {
    const std::size_t open = text.find("<!--", from);
    if (open == npos) break;
    out.append(text.substr(from, open - from));
    const std::size_t close = text.find("-->", open + 4);
    from = close == npos ? text.size() : close + 3;
  }
  if (from < text.size()) out.append(text.substr(from));
  return out;
}

PageScan ScanPage(std::string_view text) {
  PageScan scan;
  const PageLayout layout = FindPageLayout(text);
  if (layout.hasTitle) scan.title.assign(text.substr(layout.titleStart, layout.titleLength));
  // Names keep their own case: the file system tells them apart.
  CollectQuoted(text, "BACKGROUND=\"", scan.images);
  CollectQuoted(text, "IMG SRC=\"", scan.images);
  return scan;
}

std::int64_t PageTotalSize(std::int64_t pageSize, const std::vector<std::string>& images,
                           const std::function<std::int64_t(const std::string&)>& sizeOf) {
  std::int64_t total = pageSize;
  for (const std::string& name : images) total += sizeOf(name);
  return total;
}

DownloadTime DownloadTimeOf(std::int64_t totalBytes) {
  const std::int64_t t = totalBytes / 1800;
  // Half of t, a half rounded to the even neighbour, as whole-number division takes it.
  std::int64_t half = t / 2;
  const std::int64_t rest = t % 2;
  if (rest != 0 && half % 2 != 0) half += rest;
  return {half / 60, half % 60};
}

PageReport BuildPageReport(const std::string& fileName) {
  PageReport report;
  auto& lines = report.lines;
  if (LCase(fileName).rfind("untitled", 0) == 0) {
    lines = {"File Type:     HTML Document", "File name:     Untitled"};
    return report;
  }
  const bool page = EndsWithNoCase(fileName, ".htm") || EndsWithNoCase(fileName, "html");
  const bool asp = EndsWithNoCase(fileName, ".asp");
  const char* type = page                               ? "HTML Document"
                     : asp                              ? "ASP Document"
                     : EndsWithNoCase(fileName, ".gif") ? "GIF Image"
                     : EndsWithNoCase(fileName, ".jpg") ? "JPG Image"
                                                        : "Unknown";
  lines.push_back(std::string("File Type:     ") + type);
  lines.push_back("File name:     " + fileName);
  const std::int64_t size = FileLength(fileName);
  std::int64_t total = size;
  if (page || asp) {
    const std::optional<std::string> text = ReadFileText(fileName);
    if (!text) {
      report.unreadable = fileName;
      return report;
    }
    const PageScan scan = ScanPage(RemoveComments(*text));
    lines.push_back("Web Page Title:     " + scan.title);
    const std::string folder = FolderOf(fileName);
    total = PageTotalSize(size, scan.images,
                          [&folder](const std::string& name) { return FileLength(folder + name); });
  }
  lines.push_back("File Size:    " + std::to_string(size) + " bytes");
  lines.push_back("Last Modified:     " + FileDateText(fileName));
  if (page || asp)
    lines.push_back("File size including all images contained within it:    " +
                    std::to_string(total) + " bytes");
  const DownloadTime time = DownloadTimeOf(total);
  lines.push_back("Time to download using a 28.8 modem:   " + std::to_string(time.minutes) + "m" +
                  std::to_string(time.seconds) + "s");
  return report;
}

std::vector<std::string> PageInformation(Application& app) {
  DocumentWindow* doc = app.ActiveDocument();
  if (!doc) return {};
  PageReport report = BuildPageReport(doc->Caption());
  if (!report.unreadable.empty())
    app.messages.Show("Can't open file: " + report.unreadable, MsgButtons::OK, MsgIcon::None,
                      app.title);
  return report.lines;
}

}  // namespace tessarine
