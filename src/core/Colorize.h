#pragma once
// The two colouring passes, as pure functions over a text snapshot. Each writes the final
// style byte of every character into `styles` (which must hold `length` bytes), in the
// order a selection-based control would receive the writes, so a later write wins.

#include <cstdint>
#include <functional>
#include <string_view>

#include "platform/EditControl.h"
#include "settings/Settings.h"

namespace tessarine {

enum class PassEnd {
  Finished,   // walked to the end of the text
  Cancelled,  // Esc: colours laid so far stay, the rest is plain
  Abandoned,  // an unterminated last tag (or script comment) reached the end of the text
};

struct PassResult {
  PassEnd end = PassEnd::Finished;
  // Zero-based position the walk had reached when it stopped.
  Pos position = 0;
  // The selection the last span write left behind (the whole text after the reset).
  Pos lastSelStart = 0;
  Pos lastSelLength = 0;
};

struct ColorizeOptions {
  ColorFlags flags;
  bool bold = false;  // the Font/Bold setting
};

// Called about every kPassChunk characters with the walk's position; returning true
// cancels the pass (the key handler's Esc).
using PassYield = std::function<bool(Pos position)>;
constexpr Pos kPassChunk = 64 * 1024;

PassResult ColorizeTags(std::string_view text, const ColorizeOptions& options, Style* styles,
                        const PassYield& yield = {});
PassResult ColorizeScriptComments(std::string_view text, bool bold, Style* styles,
                                  const PassYield& yield = {});

}  // namespace tessarine
