#pragma once
// Message boxes and questions. The logic passes the told text, buttons and icon; the
// answer comes back as a value.

#include <deque>
#include <string>
#include <vector>

namespace tessarine {

enum class MsgButtons { OK, OKCancel, YesNo, YesNoCancel, RetryCancel };
enum class MsgIcon { None, Critical, Question, Exclamation, Information };
enum class MsgAnswer { OK, Cancel, Yes, No, Retry };

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;
  virtual MsgAnswer Show(const std::string& text, MsgButtons buttons, MsgIcon icon,
                         const std::string& title) = 0;
};

// Headless: answers from a script, records every box shown.
class ScriptedMessageBoxes : public MessageBoxes {
 public:
  struct Shown {
    std::string text;
    MsgButtons buttons;
    MsgIcon icon;
    std::string title;
  };
  void Queue(MsgAnswer answer) { answers_.push_back(answer); }
  const std::vector<Shown>& shown() const { return shown_; }
  void Clear() { shown_.clear(); }
  MsgAnswer Show(const std::string& text, MsgButtons buttons, MsgIcon icon,
                 const std::string& title) override;

 private:
  std::deque<MsgAnswer> answers_;
  std::vector<Shown> shown_;
};

}  // namespace tessarine
