#include "sitetools/AccessLogStats.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cmath>
#include <cstring>
#include <vector>

#include "settings/Settings.h"

namespace tessarine {
namespace {

struct OsTexts {
  OsRow row;
  std::array<std::string_view, 3> texts;
};

// Searched in this order; the first row with a text in the line wins.
constexpr std::array<OsTexts, 8> kOsTests{{
    {OsRow::Windows95, {"Windows 95", "Win95", {}}},
    {OsRow::Windows98, {"Windows 98", "Win98", {}}},
    {OsRow::Windows3x, {"Windows 3.1", "Win16", {}}},
    {OsRow::WindowsNT, {"Windows NT", "WinNT", {}}},
    {OsRow::MacOS, {"Macintosh", "MacOS", "Mac_PPC"}},
    {OsRow::Linux, {"Linux", {}, {}}},
    {OsRow::Unix, {"UNIX", "IRIX", "X11"}},
    {OsRow::WebTV, {"WebTV", {}, {}}},
}};

struct DomainEnding {
  std::string_view ending;
  DomainRow row;
};
constexpr std::array<DomainEnding, 11> kOtherEndings{{{".net", DomainRow::Net},
                                                      {".org", DomainRow::Org},
                                                      {".edu", DomainRow::Edu},
                                                      {".gov", DomainRow::Gov},
                                                      {".mil", DomainRow::Mil},
                                                      {".us", DomainRow::Us},
                                                      {".uk", DomainRow::Uk},
                                                      {".ca", DomainRow::Ca},
                                                      {".jp", DomainRow::Jp},
                                                      {".au", DomainRow::Au},
                                                      {".de", DomainRow::De}}};

constexpr std::string_view kMsie = "MSIE";
constexpr std::string_view kMozilla = "Mozilla/";

bool EndsWith(std::string_view text, std::string_view end) {
  return text.size() >= end.size() && text.substr(text.size() - end.size()) == end;
}

// Adds 1 to counter[index] when the tolerant value of the columns rounds into its range.
template <std::size_t N>
void CountColumn(std::array<std::int64_t, N>& counter, std::string_view head, std::size_t from,
                 std::size_t count) {
  const std::string columns(from < head.size() ? head.substr(from, count) : std::string_view());
  const double value = std::nearbyint(Val(columns));
  if (value >= 0 && value < static_cast<double>(N)) ++counter[static_cast<std::size_t>(value)];
}

template <std::size_t N>
void CountVersion(std::array<std::int64_t, N>& counter, const std::string& text) {
  std::int16_t version = 0;
  if (StrictInt16(text, version) && version >= 0 && static_cast<std::size_t>(version) < N)
    ++counter[static_cast<std::size_t>(version)];
}

}  // namespace

void AccessLogCounter::BeginLine() {
  length_ = 0;
  skipped_ = false;
  head_.clear();
  carry_.clear();
  bestOs_ = kOsRows - 1;
  msieFound_ = mozillaFound_ = false;
  msieNext_.clear();
  mozillaNext_.clear();
  msieWant_ = mozillaWant_ = 0;
  tail_.clear();
  trailingBlanks_ = 0;
}

void AccessLogCounter::Feed(std::string_view piece) {
  if (piece.empty() || skipped_) return;
  if (length_ == 0 && (piece[0] == '#' || piece[0] == '\r' || piece[0] == '\n')) {
    skipped_ = true;
    return;
  }
  if (head_.size() < kHead) head_.append(piece.substr(0, kHead - head_.size()));
  // What follows an "MSIE" or "Mozilla/" found at the end of an earlier piece.
  if (msieWant_ > 0) {
    const auto take = piece.substr(0, msieWant_);
    msieNext_.append(take);
    msieWant_ -= take.size();
  }
  if (mozillaWant_ > 0) {
    const auto take = piece.substr(0, mozillaWant_);
    mozillaNext_.append(take);
    mozillaWant_ -= take.size();
  }
  if (carry_.empty()) {
    Search(piece);
  } else {
    scratch_.assign(carry_);
    scratch_.append(piece);
    Search(scratch_);
  }
  const std::string_view searched = carry_.empty() ? piece : std::string_view(scratch_);
  carry_.assign(searched.substr(searched.size() - std::min(searched.size(), kOverlap)));
  TakeTail(piece);
  length_ += piece.size();
}

// `text` is the carry and the new piece; a match inside the carry alone was already seen,
// and only first matches are kept.
void AccessLogCounter::Search(std::string_view text) {
  if (!msieFound_) {
    const auto p = text.find(kMsie);
    if (p != std::string_view::npos) {
      msieFound_ = true;
      msieNext_.assign(text.substr(std::min(text.size(), p + 4), 2));
      msieWant_ = 2 - msieNext_.size();
    }
  }
  if (!mozillaFound_ && !msieFound_) {
    const auto p = text.find(kMozilla);
    if (p != std::string_view::npos) {
      mozillaFound_ = true;
      mozillaNext_.assign(text.substr(std::min(text.size(), p + 8), 1));
      mozillaWant_ = 1 - mozillaNext_.size();
    }
  }
  for (int i = 0; i < bestOs_ && i < static_cast<int>(kOsTests.size()); ++i) {
    for (std::string_view t : kOsTests[i].texts) {
      if (!t.empty() && text.find(t) != std::string_view::npos) {
        bestOs_ = i;
        break;
      }
    }
  }
}

// Keeps the last characters of the line as Trim would leave its end: trailing blanks
// are only counted, and become part of the tail when something follows them.
void AccessLogCounter::TakeTail(std::string_view piece) {
  const auto last = piece.find_last_not_of(' ');
  if (last == std::string_view::npos) {
    trailingBlanks_ += piece.size();
    return;
  }
  if (trailingBlanks_ > 0) {
    tail_.append(static_cast<std::size_t>(std::min<std::uint64_t>(trailingBlanks_, kTail)), ' ');
  }
  const std::string_view body = piece.substr(0, last + 1);
  tail_.append(body.substr(body.size() - std::min(body.size(), kTail)));
  if (tail_.size() > kTail) tail_.erase(0, tail_.size() - kTail);
  trailingBlanks_ = piece.size() - last - 1;
}

void AccessLogCounter::EndLine() {
  if (skipped_ || length_ == 0) return;
  ++stats_.totalHits;
  CountBrowser();
  const OsRow os =
      bestOs_ < static_cast<int>(kOsTests.size()) ? kOsTests[bestOs_].row : OsRow::Unknown;
  ++stats_.osHits[static_cast<int>(os)];
  CountColumn(stats_.hourHits, head_, 0, 2);
  CountColumn(stats_.dayHits, head_, 5, 1);
  CountColumn(stats_.monthHits, head_, 9, 2);
  CountDomain();
}

void AccessLogCounter::CountBrowser() {
  if (msieFound_) {
    CountVersion(stats_.ieHits, msieNext_);
  } else if (mozillaFound_) {
    CountVersion(stats_.netscapeHits, mozillaNext_);
  } else {
    // No "Mozilla/": its position reads as 0, and column 8 is taken.
    CountVersion(stats_.netscapeHits, head_.size() > 7 ? head_.substr(7, 1) : std::string());
  }
}

void AccessLogCounter::CountDomain() {
  const std::string_view tail = tail_;
  auto count = [this](DomainRow row) { ++stats_.domainHits[static_cast<int>(row)]; };
  if (EndsWith(tail, "|")) return count(DomainRow::Unresolved);
  if (EndsWith(tail, ".com")) {
    count(DomainRow::Com);
    if (EndsWith(tail, "aol.com")) count(DomainRow::Aol);
    return;
  }
  for (const auto& e : kOtherEndings) {
    if (EndsWith(tail, e.ending)) return count(e.row);
  }
  count(DomainRow::Other);
}

namespace {

// Splits a stream of blocks into lines for the counter; a CR LF split between two blocks
// is still one line end.
class LineSplitter {
 public:
  explicit LineSplitter(AccessLogCounter& counter) : counter_(counter) {}
  void Block(std::string_view block) {
    std::size_t i = 0;
    if (afterCr_ && !block.empty() && block[0] == '\n') i = 1;
    afterCr_ = false;
    const char* data = block.data();
    while (i < block.size()) {
      const void* lf = std::memchr(data + i, '\n', block.size() - i);
      const std::size_t lfAt = lf ? static_cast<const char*>(lf) - data : block.size();
      const void* cr = std::memchr(data + i, '\r', lfAt - i);
      const std::size_t end = cr ? static_cast<const char*>(cr) - data : lfAt;
      if (end == block.size()) {
        Piece(block.substr(i));
        return;
      }
      Piece(block.substr(i, end - i));
      FinishLine();
      if (block[end] == '\r') {
        if (end + 1 == block.size()) {
          afterCr_ = true;
          return;
        }
        i = block[end + 1] == '\n' ? end + 2 : end + 1;
      } else {
        i = end + 1;
      }
    }
  }
  void Finish() {
    if (open_) FinishLine();
  }

 private:
  void Piece(std::string_view piece) {
    if (!open_) {
      counter_.BeginLine();
      open_ = true;
    }
    counter_.Feed(piece);
  }
  void FinishLine() {
    if (!open_) counter_.BeginLine();
    counter_.EndLine();
    open_ = false;
  }

  AccessLogCounter& counter_;
  bool open_ = false;
  bool afterCr_ = false;
};

}  // namespace

void CountAccessLogText(std::string_view text, AccessLogCounter& counter) {
  LineSplitter splitter(counter);
  splitter.Block(text);
  splitter.Finish();
}

LogReadResult CountAccessLogFile(const std::string& path, AccessLogCounter& counter,
                                 std::size_t blockSize) {
  const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
  if (fd < 0) return LogReadResult::NotFound;
  std::vector<char> block(std::max<std::size_t>(blockSize, 1));
  bool first = true;
  LineSplitter splitter(counter);
  LogReadResult result = LogReadResult::Ok;
  for (;;) {
    const ssize_t n = ::read(fd, block.data(), block.size());
    if (n < 0 && errno == EINTR) continue;
    if (n < 0) {
      result = first && errno == EISDIR ? LogReadResult::NotFound : LogReadResult::ReadError;
      break;
    }
    first = false;
    if (n == 0) break;
    splitter.Block(std::string_view(block.data(), static_cast<std::size_t>(n)));
  }
  splitter.Finish();
  ::close(fd);
  return result;
}

}  // namespace tessarine
