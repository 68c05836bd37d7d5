#pragma once
// Global find and replace: one text searched for, and optionally replaced, in a list of
// files that are not open as documents. Find only counts; Replace rewrites each file that
// has a hit through a temporary file and a rename, so a run that dies leaves every file
// either as it was or wholly rewritten, and logs the run in "Global Replace Report.txt".

#include <cstdint>
#include <ctime>
#include <string>
#include <string_view>
#include <vector>

namespace tessarine {

enum class GlobalMode { Find, Replace };

struct GlobalReplaceInputs {
  std::string findText;
  std::string replaceText;
  bool matchCase = false;
};

// One row of the results list: the file and its second column.
struct GlobalReplaceRow {
  enum class Outcome {
    Counted,    // searched (Find), or searched and, with hits, rewritten (Replace)
    Empty,      // read, but empty: counted as not opened
    NotOpened,  // unreadable, or open as a document
    NotSaved,   // hits found, but the rewrite failed: the file is as it was
  };
  std::string path;
  std::string countText;  // " 3", "File could not be opened", "File could not be saved"
  std::int64_t count = 0;
  Outcome outcome = Outcome::Counted;
};

// What the run asks of the window (or the command line) that starts it.
class GlobalReplaceHost {
 public:
  virtual ~GlobalReplaceHost() = default;
  virtual bool IsOpenAsDocument(const std::string& path) = 0;
  virtual void ShowMessage(const std::string& text) = 0;
  virtual bool AskYesNo(const std::string& question) = 0;
  // After each file: files done, files queued. Lets the window paint and take a Cancel.
  virtual void FileDone(std::int64_t done, std::int64_t total) {
    (void)done;
    (void)total;
  }
  virtual bool CancelRequested() { return false; }
};

struct GlobalReplaceRun {
  bool ran = false;          // false when no file was given or the question was answered No
  bool cancelled = false;    // stopped between two files
  std::string countHeading;  // "# of Instances Found" or "# of Instances Replaced"
  std::vector<GlobalReplaceRow> rows;
};

// A file's hits and, when `replaced` is given, its text with every hit replaced. The scan
// goes on behind each inserted replacement; after an empty replacement it skips one
// character, so a hit that starts just where the removed one stood is passed over. An empty
// find text finds nothing.
std::int64_t SearchReplaceText(std::string_view text, const GlobalReplaceInputs& inputs,
                               std::string* replaced);

// The whole command: the checks, the question, the report, each file in order. `folder`
// (closing "/" optional) holds the report; `now` dates it.
GlobalReplaceRun RunGlobal(GlobalMode mode, const std::string& folder,
                           const std::vector<std::string>& files, const GlobalReplaceInputs& inputs,
                           GlobalReplaceHost& host, const std::tm& now);

inline constexpr const char* kGlobalReplaceReportName = "Global Replace Report.txt";
inline constexpr const char* kNotOpenedText = "File could not be opened";
inline constexpr const char* kNotSavedText = "File could not be saved";

// The results page's text after a run.
std::string GlobalResultsNote(GlobalMode mode);

}  // namespace tessarine
