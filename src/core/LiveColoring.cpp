#include "core/LiveColoring.h"

#include <algorithm>
#include <vector>

#include "core/Application.h"
#include "core/Colorize.h"
#include "core/ColorizeRun.h"
#include "platform/DocumentWindow.h"

namespace tessarine {

TextRange LiveColorRange(const EditControl& edit, Pos editStart, Pos editEnd) {
  const Pos total = edit.Length();
  editStart = std::clamp<Pos>(editStart, 0, total);
  editEnd = std::clamp<Pos>(editEnd, editStart, total);

  const Pos backFrom = std::max<Pos>(0, editStart - kLiveColorReach);
  const std::string_view before = edit.RangeView(backFrom, editStart - backFrom);
  Pos start = backFrom;
  const auto lineStart = before.find_last_of("\r\n");
  const std::size_t searchEnd = lineStart == std::string_view::npos ? 0 : lineStart;
  const auto gt = before.rfind('>', searchEnd);
  if (gt != std::string_view::npos)
    start = backFrom + static_cast<Pos>(gt) + 1;
  else if (lineStart != std::string_view::npos)
    start = backFrom + static_cast<Pos>(lineStart) + 1;

  const Pos forwardTo = std::min(total, editEnd + kLiveColorReach);
  const std::string_view after = edit.RangeView(editEnd, forwardTo - editEnd);
  Pos end = forwardTo;
  const auto lineEnd = after.find_first_of("\r\n");
  const auto gt2 = after.find('>', lineEnd == std::string_view::npos ? 0 : lineEnd);
  if (gt2 != std::string_view::npos)
    end = editEnd + static_cast<Pos>(gt2) + 1;
  else if (lineEnd != std::string_view::npos)
    end = editEnd + static_cast<Pos>(lineEnd);
  return {start, std::max<Pos>(0, end - start)};
}

void RecolorAroundEdit(Application& app, DocumentWindow& window, Pos editStart, Pos editEnd) {
  // A running or abandoned whole-document pass owns the colours.
  if (app.colorizing.ColorizingInProgress == 1 || !app.settings.Flags.ColorTags) return;
  EditControl& edit = window.Edit();
  const TextRange r = LiveColorRange(edit, editStart, editEnd);
  if (r.length == 0) return;
  const std::string_view text = edit.RangeView(r.start, r.length);
  std::vector<Style> styles(text.size());
  const PassResult result =
      IsScriptCaption(window.Caption(), false)
          ? ColorizeScriptComments(text, app.settings.Bold, styles.data())
          : ColorizeTags(text, {app.settings.Flags, app.settings.Bold}, styles.data());
  // A tag or comment left open at the range's end is coloured by the next whole pass.
  const Pos count =
      result.end == PassEnd::Abandoned ? std::min(result.position, r.length) : r.length;
  edit.SetStyles(r.start, styles.data(), count);
}

}  // namespace tessarine
