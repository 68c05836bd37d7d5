#pragma once
// The HTML validator's steps: validate the active document's text into the error panel,
// or clean its saved file into a new one. Options set by one run stay set for the later
// runs of the same opening, as they would in one Tidy session.

#include <string>
#include <vector>

#include "sitetools/TidyRunner.h"

namespace tessarine {

// What the wizard needs from the window around it.
class ValidateHost {
 public:
  virtual ~ValidateHost() = default;
  virtual std::string DocumentText() = 0;
  // The active document's title: its file's path, or "Untitled:n".
  virtual std::string DocumentTitle() = 0;
  // Makes the error panel visible; `text` replaces its text unless it is null.
  virtual void ShowErrorPanel(const std::string* text) = 0;
  virtual void ShowMessage(const std::string& text) = 0;
};

enum class ValidatePage { Choice, ValidationDone, CleanOptions, FileName, CleanDone };

struct ValidateView {
  ValidatePage page = ValidatePage::Choice;
  std::string heading;
  std::string subHeading;
  std::string nextCaption = "&Next >>";
  bool previousEnabled = false;
  bool close = false;  // the wizard closes
  bool focusFileName = false;
};

class ValidateWizard {
 public:
  explicit ValidateWizard(ValidateHost& host) : host_(host) {}

  // The inputs the dialog binds.
  bool cleanChosen = false;  // "Clean up your Web page" rather than "Validate your HTML"
  CleanOptions options;
  std::string fileName;

  ValidateView Start() { return ShowStep(step_ = 1); }
  ValidateView Next() { return ShowStep(++step_); }
  ValidateView Previous() { return ShowStep(--step_); }
  int Step() const { return step_; }
  // Every option set in this opening, in order.
  const std::vector<TidyOption>& SessionOptions() const { return sessionOptions_; }

 private:
  ValidateView ShowStep(int step);
  void ValidateDocument();
  void CleanDocument();

  ValidateHost& host_;
  int step_ = 1;
  std::vector<TidyOption> sessionOptions_;
};

}  // namespace tessarine
