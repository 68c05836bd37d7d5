#pragma once
// The validator and cleaner's use of libtidy: which options are set in which order, what
// goes in, where the report and the cleaned page go. Tidy runs in a child process.

#include <string>
#include <string_view>
#include <vector>

#include "sitetools/ChildProcess.h"

namespace tessarine {

struct TidyOption {
  std::string name;
  std::string value;
  bool operator==(const TidyOption&) const = default;
};

// The cleaning page of the validator.
struct CleanOptions {
  bool addAltText = false;
  std::string altText;
  bool fontToCss = false;
  bool upperCaseTags = false;
  bool breakBeforeBr = false;
  bool paragraphsToBreaks = false;
  bool formatXhtml = false;
  bool indent = false;
  std::string indentSpaces;
  std::string indentUnits = "Tabs";  // shown, reaches no option
  bool wrapAttributes = false;
  bool wrap = false;
  std::string wrapChars;
};

// The option that "Convert <P> tags to <BR> tags" sets: libtidy has no option that turns
// paragraphs into breaks; empty paragraphs used as spacing are what it can remove.
inline constexpr const char* kParagraphOption = "drop-empty-paras";

// The options of one cleaning run, in the order they are set.
std::vector<TidyOption> CleanOptionSequence(const CleanOptions& options);

// What Tidy is asked to do once. The page is read from memory; the report goes to
// `errorFile`, the cleaned page to `outputFile` (through a temporary file beside it, so
// a failed run leaves no half page) or nowhere when empty.
struct TidyJob {
  std::vector<TidyOption> options;  // every option set so far, in order
  std::string_view page;
  std::string errorFile;
  std::string outputFile;
};

struct TidyOutcome {
  ChildResult child;    // how the child ended
  int tidyResult = -1;  // 0 clean, 1 warnings, 2 errors, -1 Tidy failed or did not run
  bool outputWritten = false;
  bool Ran() const { return child.status == ChildResult::Status::Exited && tidyResult >= 0; }
};

// In this process; returns Tidy's result (0, 1, 2, or -1).
int RunTidyHere(const TidyJob& job, bool* outputWritten = nullptr);
// In a child process; a crash or a run past the time limit shows in `child`.
TidyOutcome RunTidyInChild(const TidyJob& job, int timeLimitSeconds = 600);

// The user's message for a run that did not finish, or "".
std::string TidyFailureMessage(const TidyOutcome& outcome);

// Where the validator's report is kept: a per-user temporary file.
std::string TidyErrorFilePath();

// "line 12 column 5 - Warning: ..." gives 12 and 5.
bool ParseTidyLocation(std::string_view message, long long& line, long long& column);
// The byte offset of a line and column as Tidy counts them (lines end at LF, CR or
// CR LF; a tab moves to the next stop of 8; a UTF-8 character counts one), clamped to
// the text.
std::size_t OffsetOfTidyLocation(std::string_view text, long long line, long long column);

}  // namespace tessarine
