#pragma once
// The Java applet dialog: the APPLET tag, its parameter lines and its closing tag.

#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

constexpr int kAppletAlignCount = 10;
extern const char* const kAppletAligns[kAppletAlignCount];

struct AppletInputs {
  std::string appletFile;  // the class file, CODE
  std::string codebase;
  std::string altText;
  std::vector<std::string> parameters;  // whole PARAM lines, from the parameter dialog
  std::string width;
  std::string height;
  std::string verticalSpace;
  std::string horizontalSpace;
  std::string align;  // an item of kAppletAligns, or empty when none was picked
  // Opened to change a tag already in the document: the opening tag alone is written.
  bool changingExistingTag = false;
};

// The sentence shown under the alignment preview; empty for "None".
std::string AppletAlignDescription(const std::string& item);
// The ALIGN attribute for an item: nothing for "None", "Bottom" for the default.
std::string AppletAlignAttribute(bool tagCaseUpper, const std::string& item);

CheckResult ValidateApplet(const AppletInputs& in);
std::string BuildApplet(bool tagCaseUpper, const AppletInputs& in);

// OK: the checks, then the text through InsertInHeadAndBody with an empty head. The
// undo history is emptied first, as the dialog always did, even when a check fails.
CheckResult Applet_OK(Application& app, const AppletInputs& in);

}  // namespace tessarine
