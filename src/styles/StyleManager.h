#pragma once
// The style manager's logic: reading the active document's rules into Styles, the
// batch written back on OK, applying a style at the caret, and the preview page.

#include <string>
#include <vector>

#include "conventions/WizardCheck.h"
#include "styles/StyleSheetWriter.h"

namespace tessarine {

class Application;
class CSSStyleCollection;

// A window whose caption ends in ".css" (any case) shows a style sheet: nothing to apply.
bool IsStyleSheetCaption(const std::string& caption);
inline const char* const kNoApplyInStyleSheet =
    "You cannot apply a style to a CSS document.  Use the Style Manager to add or edit a style.";

// Styles is made anew from the active document. `listed` gets the selectors in sheet
// order. False when the manager should not open: in apply mode with nothing to apply, the
// user asked whether to add styles and said No (Yes turns the mode to full).
bool LoadStyles(Application& app, std::vector<std::string>& listed);

// What OK writes: each changed style, each deleted one cut, in the order of Styles. The
// writes point into the styles.
std::vector<StyleWrite> SaveStylesWrites(const CSSStyleCollection& styles,
                                         const std::string& caption);
// Writes them into the active document as one edit.
void SaveStyles(Application& app);

// Only class and ID styles can be applied.
bool CanApplyStyle(const std::string& selector);
enum class ApplyMethod { None, Span, Div, AtCursor };
// Wraps the selection (or fills the caret's tag) with the style; then SaveStyles.
CheckResult ApplyStyle(Application& app, const std::string& selector, ApplyMethod method);

// The manager's preview: every style, deleted ones too, over sample text.
std::string ManagerPreviewPage(const CSSStyleCollection& styles);

}  // namespace tessarine
