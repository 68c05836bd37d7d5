#include "sitetools/TidyRunner.h"

#include <tidy/tidy.h>
#include <tidy/tidybuffio.h>
#include <unistd.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <filesystem>

#include "settings/Settings.h"
#include "sitetools/HtmlStripper.h"

namespace tessarine {
namespace fs = std::filesystem;

namespace {

// The number as Tidy takes it: rounded, and held within 0..most so that no value typed
// can overflow the conversion.
std::string WholeNumber(const std::string& text, double most) {
  const double n = std::nearbyint(Val(text));
  return std::to_string(static_cast<long long>(n > 0 ? std::min(n, most) : 0));
}

// The indent box holds at most three digits; a larger number from elsewhere would have
// Tidy write gigabytes of spaces for a modestly nested page.
constexpr double kMostIndentSpaces = 999;
constexpr double kMostWrap = 2147483647;

// Tidy's run on the page, the cleaned page written to `outputPath` when not empty.
int RunTidyToFile(const TidyJob& job, const std::string& outputPath) {
  TidyDoc doc = tidyCreate();
  if (!doc) return -1;
  // A page that is not UTF-8 is a single-byte page: Tidy reads and writes it as such.
  if (!IsValidUtf8(job.page)) {
    tidyOptParseValue(doc, "input-encoding", "win1252");
    tidyOptParseValue(doc, "output-encoding", "win1252");
  }
  for (const TidyOption& option : job.options)
    tidyOptParseValue(doc, option.name.c_str(), option.value.c_str());
  TidyBuffer discarded;
  tidyBufInit(&discarded);
  if (job.errorFile.empty() || !tidySetErrorFile(doc, job.errorFile.c_str()))
    tidySetErrorBuffer(doc, &discarded);

  static byte empty = 0;
  TidyBuffer input;
  tidyBufInit(&input);
  tidyBufAttach(
      &input,
      job.page.empty() ? &empty : reinterpret_cast<byte*>(const_cast<char*>(job.page.data())),
      static_cast<uint>(job.page.size()));
  int rc = tidyParseBuffer(doc, &input);
  if (rc >= 0) rc = tidyCleanAndRepair(doc);
  if (rc >= 0) rc = tidyRunDiagnostics(doc);
  if (rc >= 0 && !outputPath.empty() && tidySaveFile(doc, outputPath.c_str()) < 0) rc = -1;
  tidyBufDetach(&input);
  tidyRelease(doc);
  tidyBufFree(&discarded);
  return rc > 2 ? 2 : rc;
}

std::string TemporaryBeside(const std::string& target) {
  const fs::path path(target);
  return (path.parent_path() /
          ("." + path.filename().string() + ".tidy-" + std::to_string(::getpid()) + ".tmp"))
      .string();
}

bool Remove(const std::string& path) {
  std::error_code error;
  fs::remove(path, error);
  return false;
}

// The cleaned page replaces the target only when Tidy wrote one.
bool KeepOutput(const std::string& temporary, const std::string& target) {
  std::error_code error;
  if (fs::exists(temporary, error) && fs::file_size(temporary, error) > 0 && !error) {
    fs::rename(temporary, target, error);
    if (!error) return true;
  }
  return Remove(temporary);
}

}  // namespace

std::vector<TidyOption> CleanOptionSequence(const CleanOptions& o) {
  std::vector<TidyOption> seq;
  if (o.addAltText) seq.push_back({"alt-text", o.altText});
  if (o.fontToCss) seq.push_back({"clean", "yes"});
  if (o.upperCaseTags) seq.push_back({"uppercase-tags", "yes"});
  if (o.breakBeforeBr) seq.push_back({"break-before-br", "yes"});
  if (o.paragraphsToBreaks) {
    seq.push_back({kParagraphOption, "yes"});
    seq.push_back({kParagraphOption, "yes"});
  }
  if (o.formatXhtml) seq.push_back({"output-xhtml", "yes"});
  if (o.indent) {
    seq.push_back({"indent", "auto"});
    seq.push_back({"indent-spaces",
                   o.indentSpaces.empty() ? "2" : WholeNumber(o.indentSpaces, kMostIndentSpaces)});
  } else {
    seq.push_back({"indent", "no"});
  }
  if (o.wrapAttributes) seq.push_back({"indent-attributes", "yes"});
  seq.push_back({"wrap", "0"});
  if (o.wrap && !o.wrapChars.empty()) seq.push_back({"wrap", WholeNumber(o.wrapChars, kMostWrap)});
  return seq;
}

int RunTidyHere(const TidyJob& job, bool* outputWritten) {
  const std::string temporary = job.outputFile.empty() ? "" : TemporaryBeside(job.outputFile);
  const int rc = RunTidyToFile(job, temporary);
  bool kept = false;
  if (!temporary.empty())
    kept = rc >= 0 ? KeepOutput(temporary, job.outputFile) : Remove(temporary);
  if (outputWritten) *outputWritten = kept;
  return rc;
}

TidyOutcome RunTidyInChild(const TidyJob& job, int timeLimitSeconds) {
  TidyOutcome outcome;
  const std::string temporary = job.outputFile.empty() ? "" : TemporaryBeside(job.outputFile);
  outcome.child = RunInChildProcess(
      [&] {
        const int rc = RunTidyToFile(job, temporary);
        return rc < 0 ? 3 : rc;
      },
      timeLimitSeconds);
  if (outcome.child.status == ChildResult::Status::Exited && outcome.child.exitCode <= 2)
    outcome.tidyResult = outcome.child.exitCode;
  if (!temporary.empty()) {
    outcome.outputWritten =
        outcome.tidyResult >= 0 ? KeepOutput(temporary, job.outputFile) : Remove(temporary);
  }
  return outcome;
}

std::string TidyFailureMessage(const TidyOutcome& outcome) {
  using S = ChildResult::Status;
  switch (outcome.child.status) {
    case S::Exited:
      return "";
    case S::Crashed:
      return "HTML Tidy stopped on this page before it finished (signal " +
             std::to_string(outcome.child.signal) + "). Your documents are unchanged.";
    case S::TimedOut:
      return "HTML Tidy did not finish this page in time and was stopped. Your documents are "
             "unchanged.";
    case S::NotStarted:
      break;
  }
  return "HTML Tidy could not be started.";
}

std::string TidyErrorFilePath() {
  const char* runtime = std::getenv("XDG_RUNTIME_DIR");
  std::error_code error;
  if (runtime && *runtime && fs::is_directory(runtime, error))
    return (fs::path(runtime) / "tessarine-tidyerrors.txt").string();
  return (fs::temp_directory_path(error) /
          ("tessarine-" + std::to_string(::getuid()) + "-tidyerrors.txt"))
      .string();
}

bool ParseTidyLocation(std::string_view message, long long& line, long long& column) {
  auto number = [&](std::size_t at, long long& value) -> std::size_t {
    std::size_t i = at;
    value = 0;
    while (i < message.size() && message[i] >= '0' && message[i] <= '9' && i - at < 12)
      value = value * 10 + (message[i++] - '0');
    return i > at ? i : std::string_view::npos;
  };
  const std::size_t l = message.find("line ");
  if (l == std::string_view::npos) return false;
  const std::size_t afterLine = number(l + 5, line);
  if (afterLine == std::string_view::npos || message.substr(afterLine, 8) != " column ")
    return false;
  return number(afterLine + 8, column) != std::string_view::npos;
}

std::size_t OffsetOfTidyLocation(std::string_view text, long long line, long long column) {
  std::size_t i = 0;
  for (long long current = 1; current < line && i < text.size(); ++i) {
    if (text[i] == '\n' || (text[i] == '\r' && (i + 1 >= text.size() || text[i + 1] != '\n')))
      ++current;
  }
  long long col = 1;
  while (i < text.size() && col < column && text[i] != '\r' && text[i] != '\n') {
    col = text[i] == '\t' ? ((col - 1) / 8 + 1) * 8 + 1 : col + 1;
    ++i;
    while (i < text.size() && (static_cast<unsigned char>(text[i]) & 0xC0) == 0x80) ++i;
  }
  return i;
}

}  // namespace tessarine
