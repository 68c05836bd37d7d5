#pragma once
// Writing many rules back in one pass. The result is exactly the text that writing them one
// after another (StyleWriteEdits) would leave, odd matches included, but the text is not
// searched from its start for every rule: it is held in pieces cut at every "{", and an
// index tells for each selector which pieces end in a match of it.

#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

struct StyleWrite {
  std::string selector;
  std::string declarations;
  bool embedded = true;
  bool remove = false;
};

std::string WriteStyleDefinitions(std::string_view text, const std::vector<StyleWrite>& writes);

}  // namespace tessarine
