#pragma once
// The style tools' shared state: the working copy of the active document's rules while the
// style manager or the hyperlink wizard is open, the style last touched, and the mode the
// style editor and manager were opened in.

#include <cstdint>
#include <memory>

#include "styles/CSSStyleCollection.h"

namespace tessarine {

struct StyleState {
  CSSStyleCollection Styles;
  // May hold a style that is in no collection (a duplicate selector's leftover).
  std::shared_ptr<CSSstyle> CurrentStyle;
  std::int16_t StyleDialogMode = 0;

  // A dialog that reads the document starts from nothing.
  void Reset() {
    Styles.Clear();
    CurrentStyle.reset();
  }
};

}  // namespace tessarine
