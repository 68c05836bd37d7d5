#pragma once
// Edit Tag: the tag around the caret is read back into the wizard that writes it. The
// reads are plain prefix and substring tests, kept as the wizards' users know them: a
// key found inside a longer name ("SRC=" in "DYNSRC=") gives that attribute's value.

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarine {

class Application;
class DocumentWindow;
struct Hyperlink;
struct ImageTag;
struct FormatChar;
struct HorizontalLine;
struct AppletInputs;
struct AppletParameter;

enum class TagWizard {
  None,
  Image,
  Applet,
  Parameter,
  Hyperlink,
  PageProperties,
  FormatChar,
  HorizontalLine
};

// The wizard for a tag text (without its "<"): the first prefix of the table that the
// tag's first characters, upper-cased, equal. "A HREF" needs exactly one blank.
TagWizard WizardForTag(std::string_view currentTag);

// The value of `key` ("ALT=", with its equals sign) in `currentTag`: found anywhere,
// ignoring case; a quoted value runs to the next double quote, any other to the next blank;
// either stops before the tag's last character when nothing ends it. Empty if not found.
std::string ParseTag(std::string_view currentTag, std::string_view key);
// Whether a bare word ("ISMAP") stands anywhere in the tag, ignoring case.
bool TagHasWord(std::string_view currentTag, std::string_view word);

// Per document window: the last tag read, kept between commands.
struct EditTagState {
  std::string currentTag;
};

// Where the command found its tag in the text.
struct TagAtCaret {
  bool searched = false;     // false: empty text, or no "<" before the caret; nothing to do
  bool selectTag = false;    // false: no ">" followed; the selection and tag stay as they were
  std::size_t selStart = 0;  // the whole tag (or link element), from "<" to ">" inclusive
  std::size_t selLength = 0;
  TagWizard wizard = TagWizard::None;  // from the current tag, fresh or kept
  std::string linkText;                // for a link: the text between its tags
};

// Finds the tag before `caret` (a byte offset) and updates `state.currentTag`. For a link,
// the tag is widened to its "</A>" when one follows. Each read is bounded by the text: the
// backward search stops at the first "<", the forward ones at the first ">" and "</A>".
TagAtCaret FindTagAtCaret(std::string_view text, std::size_t caret, EditTagState& state);

// The BODY tag's fields, colours without a leading "#".
struct BodyTagFields {
  std::string backgroundColor, textColor, linkColor, visitedLinkColor, activeLinkColor;
  std::string leftMargin, topMargin;
  std::string backgroundImage;
  bool fixedBackground = false;
};

// Fill a wizard's record from the tag; fields the tag does not name keep their values.
void FillImage(std::string_view currentTag, ImageTag& form);
// The link text is the element's own, empty when the tag had no "</A>" behind it.
void FillHyperlink(std::string_view currentTag, const std::string& linkText, Hyperlink& form);
void FillBody(std::string_view currentTag, BodyTagFields& form);
void FillFormatChar(std::string_view currentTag, FormatChar& form);
void FillHorizontalLine(std::string_view currentTag, HorizontalLine& form);
// An applet read back writes its opening tag alone; its parameter lines stay in the page.
void FillApplet(std::string_view currentTag, AppletInputs& form);
void FillAppletParameter(std::string_view currentTag, AppletParameter& form);

// The command up to its dialog: marks a tag edit under way, finds the tag before the
// window's caret and selects it. The wizard then replaces the selection as it always does;
// with no wizard for the tag the mark is cleared and nothing else happens.
struct EditTagRequest {
  TagWizard wizard = TagWizard::None;
  std::string currentTag;
  std::string linkText;
};
EditTagRequest EditTag_Begin(Application& app, DocumentWindow& window);

}  // namespace tessarine
