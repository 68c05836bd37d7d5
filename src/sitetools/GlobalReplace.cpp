#include "sitetools/GlobalReplace.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <climits>
#include <cstdio>
#include <memory>

#include "core/DateFormat.h"
#include "core/FileSave.h"
#include "sitetools/SiteText.h"

namespace tessarine {
namespace {

// A file this large is refused rather than read whole into memory twice over.
constexpr std::int64_t kMaxReplaceFileBytes = std::int64_t{1} << 30;

const std::string kStars(82, '*');

enum class ReadResult { Ok, Failed };

// The whole file, or nothing: a partial read must never be written back.
ReadResult ReadWhole(const std::string& path, std::string& bytes) {
  bytes.clear();
  const int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (fd < 0) return ReadResult::Failed;
  struct stat info {};
  if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode) || info.st_size > kMaxReplaceFileBytes) {
    ::close(fd);
    return ReadResult::Failed;
  }
  bytes.resize(static_cast<std::size_t>(info.st_size));
  std::size_t got = 0;
  for (;;) {
    if (got == bytes.size()) bytes.resize(bytes.size() + 65536);  // grew since the stat
    const ssize_t n = ::read(fd, bytes.data() + got, bytes.size() - got);
    if (n < 0 && errno == EINTR) continue;
    if (n < 0 || static_cast<std::int64_t>(got) + n > kMaxReplaceFileBytes) {
      ::close(fd);
      bytes.clear();
      return ReadResult::Failed;
    }
    if (n == 0) break;
    got += static_cast<std::size_t>(n);
  }
  ::close(fd);
  bytes.resize(got);
  return ReadResult::Ok;
}

// The report stays open for the run and is flushed after each line, so that a run that
// dies leaves what it wrote. Failed writes are ignored: the report is a log, not the work.
class ReportFile {
 public:
  explicit ReportFile(const std::string& path) : file_(std::fopen(path.c_str(), "ab")) {}
  ~ReportFile() {
    if (file_) std::fclose(file_);
  }
  ReportFile(const ReportFile&) = delete;
  ReportFile& operator=(const ReportFile&) = delete;
  void Line(std::string_view text) {
    if (!file_) return;
    std::fwrite(text.data(), 1, text.size(), file_);
    std::fwrite("\r\n", 1, 2, file_);
    std::fflush(file_);
  }

 private:
  std::FILE* file_;
};

int ErrnoNumber(int error) {
  switch (error) {
    case EACCES:
    case EROFS:
    case EPERM:
      return 75;
    case ENOSPC:
    case EDQUOT:
      return 61;
    case ENOENT:
      return 53;
    case ENOTDIR:
      return 76;
    default:
      return 57;
  }
}

bool WriteAll(int fd, std::string_view bytes) {
  while (!bytes.empty()) {
    const ssize_t n = ::write(fd, bytes.data(), bytes.size());
    if (n < 0 && errno == EINTR) continue;
    if (n <= 0) return false;
    bytes.remove_prefix(static_cast<std::size_t>(n));
  }
  return true;
}

// Replaces an existing file through a temporary file beside it and a rename, keeping its
// mode and owner; a symbolic link is written through. Unlike a document's save it reserves
// no room first: a full disk shows at the write, and the temporary file goes again.
int RewriteFile(const std::string& path, std::string_view text, std::string_view tail) {
  std::string target = path;
  struct stat info {};
  if (::lstat(path.c_str(), &info) == 0 && S_ISLNK(info.st_mode)) {
    char resolved[PATH_MAX];
    if (::realpath(path.c_str(), resolved)) target = resolved;
  }
  if (::stat(target.c_str(), &info) != 0) return ErrnoNumber(errno);
  if (::access(target.c_str(), W_OK) != 0) return ErrnoNumber(errno);
  const std::size_t slash = target.rfind('/');
  std::string temp =
      (slash == std::string::npos ? std::string("./") : target.substr(0, slash + 1)) +
      ".tsrn-replace-XXXXXX";
  const int fd = ::mkstemp(temp.data());
  if (fd < 0) return ErrnoNumber(errno);
  int error = 0;
  if (!WriteAll(fd, text) || !WriteAll(fd, tail)) error = ErrnoNumber(errno);
  if (!error && ::fchmod(fd, info.st_mode & 07777) != 0) error = ErrnoNumber(errno);
  if (!error) (void)::fchown(fd, info.st_uid, info.st_gid);  // best effort
  if (::close(fd) != 0 && !error) error = ErrnoNumber(errno);
  if (!error && ::rename(temp.c_str(), target.c_str()) != 0) error = ErrnoNumber(errno);
  if (error) ::unlink(temp.c_str());
  return error;
}

std::string SaveFailureText(int error, const std::string& path) {
  if (error == 75) return "Read only file.  Use Save As to save the file.";
  return ErrorDescription(error) + ": " + path;
}

}  // namespace

std::int64_t SearchReplaceText(std::string_view text, const GlobalReplaceInputs& inputs,
                               std::string* replaced) {
  if (replaced) replaced->clear();
  if (inputs.findText.empty()) {
    if (replaced) replaced->assign(text);
    return 0;
  }
  // Without Match Case both sides are searched upper-cased; letters fold as ASCII only, so
  // positions in the folded text are positions in the original.
  std::string foldedText;
  std::string foldedFind;
  std::string_view haystack = text;
  std::string_view needle = inputs.findText;
  if (!inputs.matchCase) {
    foldedText = UpperAscii(text);
    foldedFind = UpperAscii(inputs.findText);
    haystack = foldedText;
    needle = foldedFind;
  }
  // After an empty replacement the caret stays where the hit began and the next search
  // starts one further on.
  const std::size_t skip = inputs.replaceText.empty() ? 1 : 0;
  std::int64_t count = 0;
  std::size_t copied = 0;  // text before this is in `replaced`
  std::size_t from = 0;
  while (from <= haystack.size()) {
    const std::size_t at = haystack.find(needle, from);
    if (at == std::string_view::npos) break;
    ++count;
    if (replaced) {
      replaced->append(text.substr(copied, at - copied));
      replaced->append(inputs.replaceText);
    }
    copied = at + needle.size();
    from = copied + skip;
  }
  if (replaced) replaced->append(text.substr(copied));
  return count;
}

std::string GlobalResultsNote(GlobalMode mode) {
  if (mode == GlobalMode::Find) {
    return "Listed below are the results for your global search.\n\nDoubleclick a file to open "
           "it and Tessarine will highlight the text you are searching for.";
  }
  return "Listed below are the results for your global replace.\n\nDoubleclick a file to open it "
         "in Tessarine.";
}

GlobalReplaceRun RunGlobal(GlobalMode mode, const std::string& folder,
                           const std::vector<std::string>& files, const GlobalReplaceInputs& inputs,
                           GlobalReplaceHost& host, const std::tm& now) {
  GlobalReplaceRun run;
  const bool replacing = mode == GlobalMode::Replace;
  if (files.empty()) {
    host.ShowMessage("Please select one or more files.");
    return run;
  }
  if (replacing &&
      !host.AskYesNo(
          "Are you sure you want to replace the specified text in all selected files?")) {
    return run;
  }
  run.ran = true;
  run.countHeading = replacing ? "# of Instances Replaced" : "# of Instances Found";

  std::string reportFolder = folder;
  if (reportFolder.empty() || reportFolder.back() != '/') reportFolder += '/';
  std::unique_ptr<ReportFile> report;
  if (replacing) {
    report = std::make_unique<ReportFile>(reportFolder + kGlobalReplaceReportName);
    report->Line("\r\n\r\n" + kStars);
    report->Line("GLOBAL REPLACE REPORT FOR " + FormatDate(now, "dddd, mmm d yyyy") + " at " +
                 FormatDate(now, "hh:mm:ss AM/PM"));
    report->Line(kStars);
    report->Line("REPLACE THIS TEXT: " + inputs.findText);
    report->Line("WITH THIS TEXT: " + inputs.replaceText + "\r\n");
  }

  std::string text;
  std::string newText;
  const auto total = static_cast<std::int64_t>(files.size());
  for (std::int64_t i = 0; i < total; ++i) {
    if (host.CancelRequested()) {
      run.cancelled = true;
      break;
    }
    const std::string& path = files[static_cast<std::size_t>(i)];
    GlobalReplaceRow row;
    row.path = path;
    bool readable = true;
    if (replacing && host.IsOpenAsDocument(path)) {
      host.ShowMessage(path +
                       "  is already open in Tessarine.  Replace operation cannot be performed "
                       "on this file.");
      readable = false;
    } else if (ReadWhole(path, text) == ReadResult::Failed) {
      // Unlike a holder that keeps the previous file's text, nothing is carried over: a
      // failed read is never written back.
      host.ShowMessage("Can't open file: " + path);
      readable = false;
    }
    if (!readable) text.clear();
    row.count = readable ? SearchReplaceText(text, inputs, replacing ? &newText : nullptr) : 0;
    if (replacing) report->Line(NumberText(row.count) + "   " + path);
    if (text.empty()) {
      row.outcome =
          readable ? GlobalReplaceRow::Outcome::Empty : GlobalReplaceRow::Outcome::NotOpened;
      row.countText = kNotOpenedText;
    } else {
      row.countText = NumberText(row.count);
    }
    if (replacing && row.count != 0) {
      // The file's text as one line: each rewrite adds one closing line break.
      if (const int error = RewriteFile(path, newText, "\r\n"); error != 0) {
        host.ShowMessage(SaveFailureText(error, path));
        report->Line("   " + std::string(kNotSavedText) + ": " + path);
        row.outcome = GlobalReplaceRow::Outcome::NotSaved;
        row.countText = kNotSavedText;
      }
    }
    run.rows.push_back(std::move(row));
    host.FileDone(i + 1, total);
  }

  if (run.cancelled) {
    host.ShowMessage("Stopped after " + std::to_string(run.rows.size()) + " of " +
                     std::to_string(total) + " files.");
  } else if (replacing) {
    host.ShowMessage(
        "Text has been replaced in all files.\n\nYou can view the Replace results by clicking on "
        "the 'Results' tab or by viewing the\nGlobal Replace Results.txt file found in the folder "
        "where replacements were made.");
  } else {
    host.ShowMessage(
        "Search for text in all files is complete.\n\nYou can view the Find results by clicking "
        "on the 'Results' tab.");
  }
  return run;
}

}  // namespace tessarine
