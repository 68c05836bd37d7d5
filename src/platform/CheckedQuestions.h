#pragma once
// A question with two buttons and a check box under them ("Don't show me this again").

#include <deque>
#include <string>
#include <vector>

namespace tessarine {

struct CheckedQuestion {
  std::string title;
  std::string text;
  std::string yesCaption;
  std::string noCaption;
  std::string checkCaption;
};

struct CheckedAnswer {
  bool yes = false;      // false for the second button and for closing the window
  bool checked = false;  // the box as it stood when the window closed
};

class CheckedQuestions {
 public:
  virtual ~CheckedQuestions() = default;
  virtual CheckedAnswer Ask(const CheckedQuestion& question) = 0;
};

// Headless: answers from a script ("No", unticked, once it runs dry), records each question.
class ScriptedCheckedQuestions : public CheckedQuestions {
 public:
  void Queue(bool yes, bool checked) { answers_.push_back({yes, checked}); }
  const std::vector<CheckedQuestion>& asked() const { return asked_; }
  CheckedAnswer Ask(const CheckedQuestion& question) override {
    asked_.push_back(question);
    if (answers_.empty()) return {};
    const CheckedAnswer a = answers_.front();
    answers_.pop_front();
    return a;
  }

 private:
  std::deque<CheckedAnswer> answers_;
  std::vector<CheckedQuestion> asked_;
};

}  // namespace tessarine
