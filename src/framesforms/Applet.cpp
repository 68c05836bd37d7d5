#include "framesforms/Applet.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"

namespace tessarine {

const char* const kAppletAligns[kAppletAlignCount] = {
    "None",  "Top",     "Middle",    "Bottom(Default)", "Left",
    "Right", "Texttop", "Absmiddle", "Baseline",        "Absbottom"};

namespace {
bool Blank(const std::string& s) {
  return s.find_first_not_of(' ') == std::string::npos;
}
std::string Optional(bool upper, const char* head, const std::string& value) {
  return value.empty() ? "" : FormatAttribute(upper, head, value);
}
}  // namespace

std::string AppletAlignDescription(const std::string& item) {
  static const std::pair<const char*, const char*> kDescriptions[] = {
      {"Top",
       "Aligns the top of the applet with the top of the tallest item (image, text, etc.) "
       "in the line."},
      {"Bottom(Default)", "Aligns the bottom of the applet with the baseline of the text."},
      {"Middle", "Aligns the middle of the applet with the middle of the baseline text."},
      {"Texttop", "Aligns the top of the applet with the top of the tallest text in the line."},
      {"Absbottom",
       "Aligns the bottom of the applet with the bottom of the lowest item in the line."},
      {"Absmiddle",
       "Aligns the middle of the applet with the middle of the largest item in the line."},
      {"Baseline", "Aligns the bottom of the applet with the baseline of the text."},
      {"Left",
       "Aligns applet to the left margin and wraps multiple lines of text next to (to the "
       "right of) the image."},
      {"Right",
       "Aligns applet to the right margin and wraps multiple lines of text next to (to "
       "the left of) the image."},
  };
  for (const auto& [name, text] : kDescriptions)
    if (item == name) return text;
  return "";
}

std::string AppletAlignAttribute(bool upper, const std::string& item) {
  if (item.empty() || item == "None") return "";
  const std::string attribute =
      " ALIGN=\"" + (item == "Bottom(Default)" ? std::string("Bottom") : item) + "\"";
  return upper ? attribute : LCase(attribute);
}

CheckResult ValidateApplet(const AppletInputs& in) {
  if (Blank(in.appletFile))
    return WizardCheck{"Please enter Applet name in the box below.", "appletFile"};
  return std::nullopt;
}

std::string BuildApplet(bool upper, const AppletInputs& in) {
  std::string text = std::string(upper ? "<APPLET CODE=" : "<applet code=") + "\"" + in.appletFile +
                     "\"" + Optional(upper, " codebase=", in.codebase) +
                     Optional(upper, " alt=", in.altText) + AppletAlignAttribute(upper, in.align) +
                     Optional(upper, " width=", in.width) + Optional(upper, " height=", in.height) +
                     Optional(upper, " vspace=", in.verticalSpace) +
                     Optional(upper, " hspace=", in.horizontalSpace) + ">\r\n";
  if (in.changingExistingTag) return text;
  for (const std::string& line : in.parameters) text += "\t" + line + "\r\n";
  return text + (upper ? "</APPLET>" : "</applet>");
}

CheckResult Applet_OK(Application& app, const AppletInputs& in) {
  EmptyUndoBuffer(app);
  if (CheckResult failed = ValidateApplet(in)) return failed;
  std::string head;
  std::string body = BuildApplet(app.settings.TagCaseUpper, in);
  InsertInHeadAndBody(app, head, body);
  return std::nullopt;
}

}  // namespace tessarine
