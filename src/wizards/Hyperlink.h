#pragma once
// The hyperlink dialog: the clickable text, the address or an anchor on it, the frame,
// and the status-bar and screen-tip extras. Edit Tag fills the same record from an old tag.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

struct Hyperlink {
  std::string linkText;       // shown and clickable on the page
  std::string url;            // the address list's text
  bool linkToAnchor = false;  // "Link to an anchor?"
  std::string anchorName;
  std::string targetFrame;
  std::string statusText;  // for the browser's status bar while the mouse is over
  std::string toolTip;
  // The roll-over look of every link of the page, written to its style sheet: boxes that
  // are clear leave the sheet's look as it is.
  bool boldOnHover = false;
  bool underlineOnHover = false;

  // The first failing check; none also for the address "http://" with an anchor, which
  // Build then writes as a link to the anchor alone.
  CheckResult Validate() const;
  // The A tag with its text, in the given tag case.
  std::string Build(bool tagCaseUpper) const;
};

// A new record for the dialog: the document's selection as the text, and the roll-over
// boxes as the page's style sheet has them.
Hyperlink Hyperlink_Open(Application& app);

// The styles of the page's links, A:hover, A:link and A:visited, are read afresh from the
// document's sheet into the style state (each exists afterwards, if only empty). The roll-
// over boxes are filled from A:hover; an empty record keeps them clear. Closing the dialog
// must call HyperlinkStyles_Close.
void HyperlinkStyles_Open(Application& app, Hyperlink& form);
void HyperlinkStyles_Close(Application& app);
// The hover colour as the swatch shows it, red, green and blue; false when there is none.
// A colour written with "#" reaches HexToRgb as it stands, so the swatch shows the digits
// one place late, while the style keeps its text.
bool HyperlinkHoverSwatch(Application& app, int& red, int& green, int& blue);
// The swatch's pick: the hover colour becomes "#" and the six digits.
void HyperlinkSetHoverColor(Application& app, const std::string& hex);

// OK: remembers the address whatever it is, then checks; on a failed check shows the
// message and returns it. Otherwise the link replaces the selection and the roll-over look
// goes into the page's style sheet.
CheckResult Hyperlink_OK(Application& app, const Hyperlink& form);

}  // namespace tessarine
