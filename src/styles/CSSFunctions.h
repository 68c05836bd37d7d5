#pragma once
// The text side of the style tools: finding a document's style sheet, cutting it into
// rules and a rule into properties, and writing a rule back into the text in place. All by
// substring search over the plain text: there is no tokeniser, and comments are ordinary
// text. Positions are 0-based byte offsets.

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

class Application;
struct StyleState;

// The sheet of a text shown in a window with `caption`: the whole text for a caption that
// holds ".css", else what stands between the first "<STYLE" tag's ">" and its "</STYLE",
// else nothing (a linked sheet is never followed).
std::string_view DocumentStyleSheet(std::string_view text, std::string_view caption);
std::string GetDocumentStyleSheet(Application& app);

struct StyleRule {
  std::string selector;      // line breaks and tabs removed, trimmed
  std::string declarations;  // as they stand between the braces
};
// Every closed rule of a sheet, in order. A rule whose "}" never comes ends the reading.
std::vector<StyleRule> ScanStyleRules(std::string_view sheet);
// Reads every rule of `sheet` into state.Styles (the first of a selector wins) and returns
// the selectors in sheet order, duplicates included, as the manager lists them.
std::vector<std::string> LoadStyleRules(StyleState& state, std::string_view sheet);

// What lies between a selector and its "{" must vanish once blanks, tabs and then CR LF
// pairs are taken out: a lone CR or LF does not.
bool IsBlankGap(std::string_view gap);

// The declarations of the first rule whose selector (ignoring case) is followed by nothing
// but white space up to its "{"; tabs and line breaks removed. Empty when there is none.
std::string FindStyleDefinition(std::string_view selector, std::string_view sheet);

// Adds a style for the rule to state.Styles and fills it from the declarations; CurrentStyle
// is left on it. A selector already there keeps its first style: this one is filled but
// belongs to no collection.
void ParseStyleDefinition(StyleState& state, const std::string& selector,
                          const std::string& declarations);
void ParseStyleDefinition(StyleState& state, const std::string& selector,
                          std::string&& declarations);

// Cuts a measure such as "12pt" into number and unit (see the tests for the odd cases).
void SplitValueAndUnit(std::string_view value, std::string& unit, std::string& number);

enum StyleLayout : int {
  kStyleOneLine = 0,      // line breaks and tabs removed
  kStyleForDisplay = 1,   // one declaration a line, indented by four blanks
  kStyleForDocument = 2,  // one declaration a line, indented by a tab
};
void FormatStyleDefinition(std::string& declarations, int mode);
std::string FormattedStyleDefinition(std::string_view declarations, int mode);
// FormattedStyleDefinition(declarations, kStyleForDocument) added to `out`.
void AppendDocumentLayout(std::string& out, std::string_view declarations);

struct TextEdit {
  std::int64_t start = 0;
  std::int64_t length = 0;
  std::string text;
  bool operator==(const TextEdit&) const = default;
};
// The edits that writing one rule makes, in order, each counted in the text the earlier
// ones left: maybe a new STYLE block, then the rule replaced, cut, or inserted first in the
// block (or at the end of a text that is no page). `embedded` says the text is a page.
std::vector<TextEdit> StyleWriteEdits(std::string_view text, std::string_view selector,
                                      std::string_view declarations, bool embedded, bool remove);
// The same edits made in the active document, through its selection.
void WriteStyleDefinition(Application& app, const std::string& selector,
                          const std::string& declarations, bool embedded, bool remove);

// Applies edits as StyleWriteEdits returns them to a string.
void ApplyTextEdits(std::string& text, const std::vector<TextEdit>& edits);

}  // namespace tessarine
