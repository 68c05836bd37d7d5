#include "sitetools/QuickView.h"

#include <algorithm>
#include <cstdlib>

#include "core/FileSave.h"

namespace tessarine {

std::int64_t OriginalPosition(std::string_view original, std::int64_t strippedPos) {
  std::int64_t pos = std::max<std::int64_t>(strippedPos, 0);
  std::size_t from = 0;
  for (;;) {
    const std::size_t open = original.find("<!--", from);
    if (open == std::string_view::npos || static_cast<std::int64_t>(open) > pos) break;
    const std::size_t close = original.find("-->", open + 4);
    if (close == std::string_view::npos) break;  // never closed: the analyser kept it
    const std::size_t length = close + 3 - open;
    pos += static_cast<std::int64_t>(length);
    from = open + length;
  }
  return std::min<std::int64_t>(pos, static_cast<std::int64_t>(original.size()));
}

std::int64_t JumpPosition(const std::string& positionText, const std::string& link) {
  const std::int64_t end = std::strtoll(positionText.c_str(), nullptr, 10);
  return std::max<std::int64_t>(0, end - static_cast<std::int64_t>(link.size()) - 1);
}

std::string SaveQuickView(const std::string& path, std::string_view text) {
  const int error = WriteFileReplacing(path, text, "\r\n");
  if (error == 0) return {};
  if (error == 75) return "Read-only file.  File not saved.";
  return "Error# " + std::to_string(error) + ": " + ErrorDescription(error);
}

}  // namespace tessarine
