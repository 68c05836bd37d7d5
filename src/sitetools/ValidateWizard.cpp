#include "sitetools/ValidateWizard.h"

#include <filesystem>

#include "sitetools/SiteFiles.h"

namespace tessarine {

namespace {
constexpr const char* kFileNameSub =
    "In the box below, specify the filename where you wish to save the cleaned HTML.";
}

ValidateView ValidateWizard::ShowStep(int step) {
  ValidateView v;
  v.previousEnabled = step > 1;
  switch (step) {
    case 1:
      v.page = ValidatePage::Choice;
      v.heading = "Step 1: Validate and Clean your HTML";
      v.subHeading =
          "Choose whether you wish to validate your HTML and find errors or if you want "
          "Tessarine to clean/reformat your HTML.";
      break;
    case 2:
      if (!cleanChosen) {
        ValidateDocument();
        v.page = ValidatePage::ValidationDone;
        v.heading = "Validation complete!";
        v.subHeading = "The validation of your HTML is complete!";
        v.nextCaption = "&Done";
      } else {
        v.page = ValidatePage::CleanOptions;
        v.heading = "Step 2: Specify settings for HTML cleaning";
        v.subHeading =
            "Specify the settings below to indicate how your HTML will be cleaned and "
            "reformatted.";
      }
      break;
    case 3:
      if (!cleanChosen) {
        v.close = true;
        break;
      }
      v.page = ValidatePage::FileName;
      v.heading = "Step 3: Specify a filename for your cleaned HTML page";
      v.subHeading = kFileNameSub;
      v.focusFileName = true;
      break;
    case 4:
      if (fileName.empty()) {
        host_.ShowMessage("Please specify a filename to save the cleaned Web page.");
        return ShowStep(--step_);
      }
      CleanDocument();
      v.page = ValidatePage::CleanDone;
      v.heading = "HTML cleaning/reformatting is complete!";
      v.subHeading = kFileNameSub;
      v.nextCaption = "&Done";
      break;
    default:
      v.close = true;
      break;
  }
  return v;
}

void ValidateWizard::ValidateDocument() {
  const std::string text = host_.DocumentText();
  TidyJob job;
  job.options = sessionOptions_;
  job.page = text;
  job.errorFile = TidyErrorFilePath();
  // A run that stops part way must not leave the last run's report standing.
  std::error_code ignored;
  std::filesystem::remove(job.errorFile, ignored);
  const TidyOutcome outcome = RunTidyInChild(job);
  const auto report = ReadFileText(job.errorFile, std::int64_t{64} << 20);
  host_.ShowErrorPanel(report ? &*report : nullptr);
  const std::string failure = TidyFailureMessage(outcome);
  if (!failure.empty()) host_.ShowMessage(failure);
}

void ValidateWizard::CleanDocument() {
  const auto sequence = CleanOptionSequence(options);
  sessionOptions_.insert(sessionOptions_.end(), sequence.begin(), sequence.end());
  // Cleaning reads the saved file: an untitled or unreadable one gives nothing to write.
  const auto page = ReadFileText(host_.DocumentTitle(), std::int64_t{1} << 30);
  if (!page) return;
  TidyJob job;
  job.options = sessionOptions_;
  job.page = *page;
  job.outputFile = fileName;
  const TidyOutcome outcome = RunTidyInChild(job);
  const std::string failure = TidyFailureMessage(outcome);
  if (!failure.empty()) host_.ShowMessage(failure);
}

}  // namespace tessarine
