#pragma once
// Writing many rules back in one pass. The result is exactly the text that writing them one
// after another (StyleWriteEdits) would leave, odd matches included, but the text is not
// searched from its start for every rule: it is held in pieces cut at every "{", and an
// index tells for each selector which pieces end in a match of it.

#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

// One rule to write. The texts are views: the caller keeps them alive through the write.
struct StyleWrite {
  std::string_view selector;
  // As they go between the braces; or, with `oneLine`, a style's one-line Definition, laid
  // out for the document (a declaration a line, tab-indented) as it is written.
  std::string_view declarations;
  bool embedded = true;
  bool remove = false;
  bool oneLine = false;
};

// The declarations as they go between the braces.
std::string DeclarationsAsWritten(const StyleWrite& w);

std::string WriteStyleDefinitions(std::string_view text, const std::vector<StyleWrite>& writes);

}  // namespace tessarine
