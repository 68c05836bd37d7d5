#pragma once
// Colouring as the user types (a view choice, off unless chosen): the lines around an edit
// are coloured again with the document's own pass, without hiding the control or touching
// the status text, and without reading more than a bounded window of the text.

#include "platform/EditControl.h"

namespace tessarine {

class Application;
class DocumentWindow;

struct TextRange {
  Pos start = 0;
  Pos length = 0;
};

// How far the range may widen on each side of the edit to find a tag's end.
constexpr Pos kLiveColorReach = 64 * 1024;

// The range to colour again after edits in [editStart, editEnd): from just behind the last
// ">" before the edit's line (so the pass starts outside a tag) to just behind the first
// ">" after it, each within reach; the line's own ends where there is none.
TextRange LiveColorRange(const EditControl& edit, Pos editStart, Pos editEnd);

// Colours that range again, as the pass chosen for the document would.
void RecolorAroundEdit(Application& app, DocumentWindow& window, Pos editStart, Pos editEnd);

}  // namespace tessarine
