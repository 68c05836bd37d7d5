#include "platform/MessageBoxes.h"

namespace tessarine {

MsgAnswer ScriptedMessageBoxes::Show(const std::string& text, MsgButtons buttons, MsgIcon icon,
                                     const std::string& title) {
  shown_.push_back({text, buttons, icon, title});
  if (!answers_.empty()) {
    const MsgAnswer a = answers_.front();
    answers_.pop_front();
    return a;
  }
  // Unscripted: the first button.
  switch (buttons) {
    case MsgButtons::YesNo:
    case MsgButtons::YesNoCancel:
      return MsgAnswer::Yes;
    case MsgButtons::RetryCancel:
      return MsgAnswer::Retry;
    default:
      return MsgAnswer::OK;
  }
}

}  // namespace tessarine
