#pragma once
// HTMLStrip: a page's text without its markup, in lines cut at 80 characters by one
// equality test on the line buffer.

#include <string>
#include <string_view>

namespace tessarine {

// The stripped text, each line closed by CR LF; the last line is always written, so
// the result is never empty. `utf8` says the page is UTF-8: "&ntilde;" then gives the
// UTF-8 letter and a line counts characters, not bytes; otherwise the single byte 241.
std::string StripHtml(std::string_view page, bool utf8);

// True when the bytes are valid UTF-8 (the editor shows such a text as UTF-8).
bool IsValidUtf8(std::string_view bytes);

}  // namespace tessarine
