#pragma once
// The small editor of the site manager: where a link found in a page's text (counted with
// its comments removed) stands in the page as it is on disk, and saving it back.

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarine {

// `strippedPos` counted in the text without its "<!--" ... "-->" comments: the same
// place in `original`, every comment before it counted back in.
std::int64_t OriginalPosition(std::string_view original, std::int64_t strippedPos);

// The row's position to jump to: the link's end position less its length and one, never
// before the start.
std::int64_t JumpPosition(const std::string& positionText, const std::string& link);

// Writes the text and one closing line break; "" when saved, else the message to show.
std::string SaveQuickView(const std::string& path, std::string_view text);

}  // namespace tessarine
