#pragma once
// The one pass over an access log: hits by day, month, hour, operating system, browser
// version and domain, by fixed columns and exact-case substrings of each line.

#include <array>
#include <cstdint>
#include <string>
#include <string_view>

namespace tessarine {

// Rows in the order of their tests (not of the report).
enum class OsRow { Windows95, Windows98, Windows3x, WindowsNT, MacOS, Linux, Unix, WebTV, Unknown };
enum class DomainRow {
  Com,
  Aol,
  Net,
  Org,
  Edu,
  Gov,
  Mil,
  Us,
  Uk,
  Ca,
  Jp,
  Au,
  De,
  Other,
  Unresolved
};
inline constexpr int kOsRows = 9;
inline constexpr int kDomainRows = 15;

// Counters are 64-bit: a large log counts on instead of losing hits past 32767.
struct AccessStats {
  std::int64_t totalHits = 0;
  std::array<std::int64_t, 8> dayHits{};       // 1 Sunday .. 7 Saturday; 0 counted, not shown
  std::array<std::int64_t, 13> monthHits{};    // 1..12
  std::array<std::int64_t, 25> hourHits{};     // 0..23 shown, 24 counted
  std::array<std::int64_t, 6> ieHits{};        // by major version after "MSIE"
  std::array<std::int64_t, 6> netscapeHits{};  // by the digit after "Mozilla/"
  std::array<std::int64_t, kOsRows> osHits{};
  std::array<std::int64_t, kDomainRows> domainHits{};

  bool operator==(const AccessStats&) const = default;
  std::int64_t Os(OsRow row) const { return osHits[static_cast<int>(row)]; }
  std::int64_t Domain(DomainRow row) const { return domainHits[static_cast<int>(row)]; }
};

// Counts one line at a time. A line may come in pieces (a very long line is never held
// whole); the scanner keeps only what the tests need: the first columns, the first
// "MSIE" and "Mozilla/" with what follows them, which texts were seen, and the tail.
class AccessLogCounter {
 public:
  void AddLine(std::string_view line) {
    BeginLine();
    Feed(line);
    EndLine();
  }
  void BeginLine();
  void Feed(std::string_view piece);
  void EndLine();

  const AccessStats& Stats() const { return stats_; }

 private:
  static constexpr std::size_t kHead = 11;     // columns 1 to 11
  static constexpr std::size_t kOverlap = 15;  // longest searched text less one, and more
  static constexpr std::size_t kTail = 16;     // longest domain ending, and more

  void Search(std::string_view text);
  void TakeTail(std::string_view piece);
  void CountBrowser();
  void CountDomain();

  AccessStats stats_;
  std::uint64_t length_ = 0;
  bool skipped_ = false;
  std::string head_;
  std::string carry_;    // the end of the previous piece, searched again with the next
  std::string scratch_;  // carry_ + piece
  int bestOs_ = 0;       // lowest row found so far; rows at or above it need no search
  bool msieFound_ = false, mozillaFound_ = false;
  std::string msieNext_, mozillaNext_;  // the characters after each, as far as known
  std::size_t msieWant_ = 0, mozillaWant_ = 0;
  std::string tail_;  // the last characters before the trailing blanks
  std::uint64_t trailingBlanks_ = 0;
};

enum class LogReadResult { Ok, NotFound, ReadError };

// Streams the file through the counter in fixed-size blocks: memory stays constant
// whatever the size of the file or of its lines. A line ends at LF, CR or CR LF.
// NotFound: the file cannot be opened for reading (missing, a folder, no permission).
LogReadResult CountAccessLogFile(const std::string& path, AccessLogCounter& counter,
                                 std::size_t blockSize = std::size_t{1} << 20);
// The same over a text in memory.
void CountAccessLogText(std::string_view text, AccessLogCounter& counter);

}  // namespace tessarine
