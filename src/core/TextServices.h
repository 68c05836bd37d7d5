#pragma once
// The text services: every command and wizard writes to the active document through
// these. They obey the tag case and do not recolour.

#include <cstddef>
#include <string>
#include <string_view>

namespace tessarine {

class Application;

void EmptyUndoBuffer(Application& app);
void InsertAtCaret(Application& app, const std::string& text, bool keepCase);
void WrapSelection(Application& app, const std::string& startTag, const std::string& endTag,
                   bool keepCase);
// Either text may be empty. Both are rewritten with what was inserted.
void InsertInHeadAndBody(Application& app, std::string& headText, std::string& bodyText);

// ASCII lower case: bytes of other characters are left alone.
std::string LCase(std::string_view text);
std::string UCase(std::string_view text);
// UCase into `to` (which may be `from`), eight bytes at a step: pages are upper-cased whole.
void UpperCaseInto(const char* from, std::size_t size, char* to);
// The two texts are the same but for ASCII case.
bool EqualsNoCase(std::string_view a, std::string_view b);
// UCase(text).find(UCase(needle), from), without upper-cased copies of a text that can be a
// whole page.
std::size_t FindNoCase(std::string_view text, std::string_view needle, std::size_t from = 0);
// One-based position of `needle` at or after one-based `start`, ignoring ASCII case; 0 when
// absent.
long long InStrNoCase(long long start, std::string_view text, std::string_view needle);

}  // namespace tessarine
