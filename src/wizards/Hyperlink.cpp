#include "wizards/Hyperlink.h"

#include <cstdlib>

#include "conventions/FavoriteUrls.h"
#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"
#include "styles/CSSFunctions.h"
#include "styles/StyleState.h"

namespace tessarine {

namespace {

const std::string Q = "\"";
const char* const kLinkSelectors[] = {"A:hover", "A:link", "A:visited"};

CSSstyle& LinkStyle(Application& app, const char* selector) {
  auto style = app.styles.Styles.Item(selector);
  if (!style) {
    // Only a dialog that was not opened through HyperlinkStyles_Open gets here.
    ParseStyleDefinition(app.styles, selector, "");
    style = app.styles.Styles.Item(selector);
  }
  return *style;
}

void WriteRolloverStyles(Application& app, const Hyperlink& form) {
  CSSstyle& hover = LinkStyle(app, "A:hover");
  CSSstyle& link = LinkStyle(app, "A:link");
  CSSstyle& visited = LinkStyle(app, "A:visited");
  if (form.boldOnHover) {
    hover.FontWeight = "bold";
    link.FontWeight.clear();
    visited.FontWeight.clear();
  }
  if (form.underlineOnHover) {
    hover.TextDecoration = "underline";
    link.TextDecoration = "none";
    visited.TextDecoration = "none";
  }
  for (const char* selector : kLinkSelectors) LinkStyle(app, selector).GetStyleDefinition();
  for (const char* selector : kLinkSelectors) {
    std::string definition = LinkStyle(app, selector).Definition;
    if (definition.empty()) continue;
    FormatStyleDefinition(definition, kStyleForDocument);
    WriteStyleDefinition(app, selector, definition, true, false);
  }
}

}  // namespace

CheckResult Hyperlink::Validate() const {
  if (linkText.empty())
    return WizardCheck{"Please enter text to be linked in the box below.", "linkText"};
  if (url.empty() && !linkToAnchor)
    return WizardCheck{"Please enter the URL you wish to link to.", "urlCombo"};
  if (url == "http://" && !linkToAnchor)
    return WizardCheck{"Please enter Web site to be linked in the appropriate box", "urlCombo"};
  if (url == "http://" && linkToAnchor) return std::nullopt;
  // This one leaves the focus where it was.
  if (linkToAnchor && anchorName.empty())
    return WizardCheck{"Please enter the bookmark name you wish to link to.", ""};
  return std::nullopt;
}

std::string Hyperlink::Build(bool upper) const {
  const std::string target =
      targetFrame.empty() ? "" : FormatAttribute(upper, " target=", targetFrame);
  std::string over, out;
  if (!statusText.empty()) {
    over = " OnMouseOver=" + Q + "window.status='" + statusText + "'; return true" + Q;
    out = " OnMouseOut=" + Q + "window.status=' '; return true" + Q;
  }
  const std::string title = toolTip.empty() ? "" : FormatAttribute(upper, " title=", toolTip);
  // "http://" with an anchor stands for no page: the link goes to the anchor alone.
  const std::string address = (linkToAnchor && url == "http://") ? "" : url;
  std::string head = (upper ? "<A HREF=" : "<a href=") + Q + address;
  if (linkToAnchor) head += "#" + anchorName;
  head += Q;
  return head + target + over + out + title + ">" + linkText + (upper ? "</A>" : "</a>");
}

Hyperlink Hyperlink_Open(Application& app) {
  Hyperlink h;
  HyperlinkStyles_Open(app, h);
  if (EditControl* e = app.ActiveEdit()) h.linkText = e->SelText();
  return h;
}

void HyperlinkStyles_Open(Application& app, Hyperlink& form) {
  app.styles.Reset();
  const std::string sheet = GetDocumentStyleSheet(app);
  for (const char* selector : kLinkSelectors)
    ParseStyleDefinition(app.styles, selector, FindStyleDefinition(selector, sheet));
  const CSSstyle& hover = LinkStyle(app, "A:hover");
  form.boldOnHover = LCase(hover.FontWeight) == "bold";
  form.underlineOnHover = LCase(hover.TextDecoration).find("underline") != std::string::npos;
}

void HyperlinkStyles_Close(Application& app) {
  app.styles.Reset();
}

bool HyperlinkHoverSwatch(Application& app, int& red, int& green, int& blue) {
  const std::string color = LinkStyle(app, "A:hover").Color;
  if (color.empty()) return false;
  HexToRgb(app, ColorValueOf(app, color));
  red = std::atoi(app.wizards.ColorRed.c_str());
  green = std::atoi(app.wizards.ColorGreen.c_str());
  blue = std::atoi(app.wizards.ColorBlue.c_str());
  return true;
}

void HyperlinkSetHoverColor(Application& app, const std::string& hex) {
  LinkStyle(app, "A:hover").Color = "#" + hex;
}

CheckResult Hyperlink_OK(Application& app, const Hyperlink& form) {
  // The address is remembered before any check, so a refused OK keeps it too.
  RememberUrl(app, form.url);
  EmptyUndoBuffer(app);
  if (CheckResult failed = form.Validate()) {
    app.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app.title);
    return failed;
  }
  HandOverText(app, form.Build(TagCaseUpper(app) == 1), true);
  WriteRolloverStyles(app, form);
  return std::nullopt;
}

}  // namespace tessarine
