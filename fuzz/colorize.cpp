// The two colouring passes over any text, with any switches, cancelled or not.
#include <vector>

#include "FuzzInput.h"
#include "core/Colorize.h"
#include "core/Styles.h"

using namespace tessarine;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::uint8_t switches = in.Byte();
  const std::uint8_t cancelAt = in.Byte();
  const std::string_view text = in.Rest();

  ColorizeOptions options;
  options.flags.ColorTags = true;
  options.flags.TableColorTags = switches & 1;
  options.flags.QuoteColorTags = switches & 2;
  options.flags.CommentColorTags = switches & 4;
  options.flags.CommentTagItalic = switches & 8;
  options.flags.ASPColorTags = switches & 16;
  options.bold = switches & 32;
  // Esc at the first chance, now and then.
  PassYield yield;
  if (cancelAt == 0xff) yield = [](Pos) { return true; };

  const auto length = static_cast<Pos>(text.size());
  std::vector<Style> styles(text.size() + 1, 0xee);
  const PassResult r = (switches & 64)
                           ? ColorizeScriptComments(text, options.bold, styles.data(), yield)
                           : ColorizeTags(text, options, styles.data(), yield);
  FUZZ_CHECK(r.position >= 0 && r.position <= length);
  FUZZ_CHECK(r.lastSelStart >= 0 && r.lastSelLength >= 0 &&
             r.lastSelStart + r.lastSelLength <= length);
  for (std::size_t i = 0; i < text.size(); ++i) FUZZ_CHECK(styles[i] < kStyleCount);
  FUZZ_CHECK(styles[text.size()] == 0xee);  // nothing written past the text
  return 0;
}
