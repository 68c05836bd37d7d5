#pragma once
// New documents: the skeleton of each kind, the caret rule, the XML dialog's text and the
// template chooser.

#include <ctime>
#include <string>
#include <vector>

namespace tessarine {

class Application;

// Tessarine's own address, named in the generator tag of new pages.
extern const char* const kTessarineSite;
// The W3C's system identifier of the HTML 4.0 Transitional DTD.
extern const char* const kHtml40LooseSysId;
// The namespace of the XSL working draft.
extern const char* const kXslWorkingDraftNs;

// `kind`: "HTML", "HTMLTemplate", "ASP", "XML", "XSL" or "CSS", exactly; anything else
// leaves the new window empty.
void NewDocument(Application& app, const std::string& kind);

struct Skeleton {
  std::string head, tail;
  long offsetFromEnd = 0;
};
// The texts a kind lays in; XML and CSS come from their dialogs and have none here.
Skeleton HtmlSkeleton(bool tagCaseUpper, const std::string& title, const std::tm& now);
Skeleton AspSkeleton();
Skeleton XslSkeleton();

// XmlDocumentDialog ("New XML document").
struct XmlDocInputs {
  std::string cboVersion = "1.0";
  bool chkStandalone = false;
  std::string txtStyleSheetFilename;
};
std::string BuildXmlDocText(const XmlDocInputs& in);

// Templates: the "*.tzt" files of the program's folder, sorted.
std::vector<std::string> ListTemplates(const std::string& programFolder);
// The path of a chosen template. OK leaves out the separator after a root folder; a
// double-click always puts one.
std::string TemplatePath(const std::string& programFolder, const std::string& name,
                         bool doubleClick);
// OK (or a double-click): a blank template choice gives the ordinary skeleton.
void OpenTemplate(Application& app, const std::string& selectedName, bool doubleClick);

}  // namespace tessarine
