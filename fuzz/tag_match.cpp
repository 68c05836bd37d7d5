// The paired-tag search and the live colouring range over any text and any caret: both
// stay inside the text and the range covers the edit.
#include <cstdlib>

#include "FuzzInput.h"
#include "core/LiveColoring.h"
#include "core/TagMatch.h"
#include "platform/BufferEdit.h"

using namespace tessarine;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::uint8_t caretByte = in.Byte();
  const std::uint8_t offsetByte = in.Byte();
  const std::uint8_t reachByte = in.Byte();
  const std::string_view text = in.Rest();
  const auto n = static_cast<Pos>(text.size());
  const Pos offset = offsetByte;
  const Pos caret = offset + (n ? static_cast<Pos>(caretByte) * (n + 1) / 256 : 0);

  const TagMatch m = FindMatchingTag(text, offset, caret, reachByte * 64);
  if (m.found) {
    for (auto [start, length] : {std::pair{m.tagStart, m.tagLength}, {m.matchStart, m.matchLength}})
      if (start < offset || length < 1 || start + length > offset + n) std::abort();
    if (text[static_cast<std::size_t>(m.matchStart - offset)] != '<') std::abort();
  }

  BufferEdit edit;
  edit.SetText(text);
  const Pos at = caret - offset;
  const TextRange r = LiveColorRange(edit, at, at + (reachByte & 7));
  if (r.start < 0 || r.length < 0 || r.start + r.length > n) std::abort();
  if (n > 0 && at <= n && (r.start > at || r.start + r.length < std::min(at, n))) std::abort();
  return 0;
}
