#pragma once
// The two-button question with a check box, as a small modal dialog.

#include "platform/CheckedQuestions.h"

class QWidget;

namespace tessarine {

class QtCheckedQuestions : public CheckedQuestions {
 public:
  void SetParent(QWidget* parent) { parent_ = parent; }
  CheckedAnswer Ask(const CheckedQuestion& question) override;

 private:
  QWidget* parent_ = nullptr;
};

}  // namespace tessarine
