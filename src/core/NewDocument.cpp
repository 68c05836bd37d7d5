#include "core/NewDocument.h"

#include <algorithm>
#include <filesystem>

#include "core/Application.h"
#include "core/ColorizeRun.h"
#include "core/DateFormat.h"
#include "core/Documents.h"
#include "core/Editing.h"
#include "core/FileOpen.h"
#include "core/RecentFiles.h"
#include "core/TextServices.h"
#include "platform/Desktop.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/Frame.h"

namespace tessarine {

const char* const kTessarineSite = "http://www.tessarine.org";
const char* const kHtml40LooseSysId = "http://www.w3.org/TR/REC-html40/loose.dtd";
const char* const kXslWorkingDraftNs = "http://www.w3.org/TR/WD-xsl";

namespace {
const char* const kCrLf = "\r\n";
}

Skeleton HtmlSkeleton(bool tagCaseUpper, const std::string& title, const std::tm& now) {
  const std::string date = FormatDate(now, "mmmm dd, yyyy ");
  const std::string time = FormatDate(now, "hh:mm AM/PM");
  const std::string doctype = std::string("<!DOCTYPE HTML PUBLIC \"-//W3C//DTD HTML 4.0 ") +
                              "Transitional//EN\" \"" + kHtml40LooseSysId + "\">\r\n\r\n";
  const std::string generator = std::string("Tessarine for Windows - ") + kTessarineSite;
  const std::string tail = "\r\n\r\n\r\n\r\n</BODY>\r\n</HTML>";
  Skeleton s;
  s.offsetFromEnd = 22;
  if (tagCaseUpper) {
    s.head = doctype + "<HTML>\r\n\r\n" + "<HEAD>\r\n\t" + "<TITLE>" + title + "</TITLE>\r\n\t" +
             "<META Name=\"Generator\" Value=\"" + generator + "\">\r\n" + "</HEAD>\r\n\r\n\r\n" +
             "<!-- Created on " + date + " at " + time + " -->\r\n\r\n" + "<BODY>";
    s.tail = tail;
  } else {
    // One line end after <html>, and one blank before "at": this variant was written so.
    s.head = doctype + "<html>\r\n<head>\r\n\t" +
             LCase("<TITLE>" + title + "</TITLE>\r\n\t" + "<meta name=\"Generator\" Value=\"" +
                   generator + "\">\r\n" + "</HEAD>\r\n\r\n\r\n" + "<!-- Created on " + date +
                   "at " + time + " -->\r\n\r\n" + "<BODY>");
    s.tail = LCase(tail);
  }
  return s;
}

Skeleton AspSkeleton() {
  Skeleton s;
  s.head =
      "<%@ Language=VBScript %>\r\n<html>\r\n<head>\r\n\t\t<meta name=\"generator\" "
      "Content=\"Tessarine created by Orlenda Software\">\r\n</head>\r\n\r\n<body>";
  s.tail = "\r\n\r\n\r\n\r\n</body>\r\n</html>";
  s.offsetFromEnd = 22;
  return s;
}

Skeleton XslSkeleton() {
  Skeleton s;
  // "xmnls" is the attribute as new style sheets have always had it.
  s.head = std::string("<?xml version=\"1.0\" ?>\r\n<xsl:stylesheet xmnls:xsl=\"") +
           kXslWorkingDraftNs + "\">\r\n\r\n" +
           "<xsl:template match=\"/\">\r\n\r\n\r\n</xsl:template>\r\n</xsl:stylesheet>";
  s.offsetFromEnd = 37;
  return s;
}

std::string BuildXmlDocText(const XmlDocInputs& in) {
  const std::string standalone = in.chkStandalone ? " standalone=\"yes\"" : " standalone=\"no\"";
  std::string v = in.cboVersion;
  v.erase(0, v.find_first_not_of(' '));
  v.erase(v.find_last_not_of(' ') + 1);
  const std::string version = " version=\"" + (v.empty() ? std::string("1.0") : v) + "\"";
  std::string link = kCrLf;
  const std::string& name = in.txtStyleSheetFilename;
  if (!name.empty()) {
    const char* type = name.find(".css") != std::string::npos ? "text/css" : "text/xsl";
    link = std::string("<?xml-stylesheet type=\"") + type + "\" href=\"" + name + "\"?>\r\n\r\n";
  }
  return "<?xml" + version + standalone + "?>\r\n" + link;
}

void NewDocument(Application& app, const std::string& kind) {
  FileState& files = app.files;
  if (EditControl* e = app.ActiveEdit()) e->SetFocus();
  files.NewDocumentInProgress = 1;
  files.BodyTag.clear();
  DocumentWindow* window = NewDocumentWindow(app);
  const int slot = app.documents.SlotOf(window);
  const auto serial = app.documents.Form(slot).serial;
  EditControl& edit = window->Edit();
  edit.SetFocus();
  files.DocumentTitle = "Document Title should be typed here";

  Skeleton s;
  bool laid = false;
  if (kind == "HTML" || kind == "HTMLTemplate") {
    s = HtmlSkeleton(app.settings.TagCaseUpper, files.DocumentTitle, app.clock.Now());
    laid = !app.settings.BlankNewDoc;
  } else if (kind == "ASP") {
    s = AspSkeleton();
    laid = true;
  } else if (kind == "XSL") {
    s = XslSkeleton();
    laid = true;
  } else if (kind == "XML") {
    s.offsetFromEnd = 1;
    XmlDocInputs in;
    if (files.showXmlDocDialog && files.showXmlDocDialog(in)) edit.SetText(BuildXmlDocText(in));
  } else if (kind == "CSS") {
    if (files.showStyleManager) files.showStyleManager(*window);
  }
  // The offset holds whether or not the skeleton went in, as the caret rule uses it.
  files.offsetFromEnd = s.offsetFromEnd;
  if (laid) {
    edit.SetText(s.head);
    if (!s.tail.empty()) {
      edit.SetSelStart(edit.SelStart() + 5000);
      edit.ReplaceSel(s.tail);
    }
  }

  // A dialog or a pass's yield may have closed the window; the steps for it then end.
  auto alive = [&] { return app.documents.IsAlive(window, serial); };
  if (alive() && app.settings.Flags.ColorTags) ColorizeTags(app, *window);
  if (alive()) {
    MarkDocumentUnchanged(app, slot);
    app.frame.SetSaveButtonEnabled(false);
    // 5000 stands for the end of the text; a negative result leaves the caret alone.
    edit.SetSelStart(edit.SelStart() + 5000);
    const auto pos = edit.SelStart() - files.offsetFromEnd;
    if (pos >= 0) edit.SetSelStart(pos);
    app.frame.SetLengthPanel(edit.Length());
    UpdateLinePanel(app, *window);
  }
  files.NewDocumentInProgress = 0;
  LoadRecentFiles(app);
}

std::vector<std::string> ListTemplates(const std::string& programFolder) {
  namespace fs = std::filesystem;
  std::vector<std::string> names;
  std::error_code ec;
  for (auto it = fs::directory_iterator(programFolder, ec); !ec && it != fs::directory_iterator();
       it.increment(ec)) {
    const std::string name = it->path().filename().string();
    if (name.size() > 4 && LCase(name.substr(name.size() - 4)) == ".tzt" && it->is_regular_file(ec))
      names.push_back(name);
  }
  std::sort(names.begin(), names.end());
  return names;
}

std::string TemplatePath(const std::string& programFolder, const std::string& name,
                         bool doubleClick) {
  if (!doubleClick && programFolder == "/") return programFolder + name;
  return programFolder + "/" + name;
}

void OpenTemplate(Application& app, const std::string& selectedName, bool doubleClick) {
  if (selectedName.empty())
    NewDocument(app, "HTMLTemplate");
  else
    OpenFile(app, TemplatePath(app.programFolder, selectedName, doubleClick));
}

}  // namespace tessarine
