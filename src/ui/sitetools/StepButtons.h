#pragma once
// The button row of a step-by-step tool window: Help on the left; Previous, Next and
// Cancel on the right, Next the default.

class QHBoxLayout;
class QPushButton;

namespace tessarine {

struct StepButtons {
  QHBoxLayout* row;
  QPushButton* help;
  QPushButton* previous;
  QPushButton* next;
  QPushButton* cancel;
};

StepButtons MakeStepButtons();

}  // namespace tessarine
