#pragma once
// The tag at the caret and the one that pairs with it, for the view to highlight. Reads
// the text only near the caret and gives up beyond a bound, so a caret in a 50 MB page
// costs no more than one in a small one.

#include <string_view>

#include "platform/EditControl.h"

namespace tessarine {

struct TagMatch {
  // Each range covers "<" or "</" and the tag's name.
  Pos tagStart = 0, tagLength = 0;
  Pos matchStart = 0, matchLength = 0;
  bool found = false;
};

// How far the search for the pair walks from the caret's tag, in bytes.
constexpr Pos kTagMatchReach = 1 << 20;

// `text` holds the document from `offset` on (a window around the caret); positions in and
// out are the document's.
TagMatch FindMatchingTag(std::string_view text, Pos offset, Pos caret, Pos reach = kTagMatchReach);

}  // namespace tessarine
