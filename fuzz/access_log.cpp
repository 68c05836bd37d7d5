// The access log's line scanner: a log fed whole and fed in blocks of any size must count
// the same, and every counted line lands in exactly one operating-system row and one
// domain row (aol.com counted again under .com).
#include <algorithm>
#include <numeric>

#include "FuzzInput.h"
#include "sitetools/AccessLogStats.h"
#include "sitetools/AccessStatsReport.h"

using namespace tessarine;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  fuzz::FuzzInput in(data, size);
  const std::size_t block = in.Byte() % 97 + 1;
  const std::string_view log = in.Rest();

  AccessLogCounter whole;
  CountAccessLogText(log, whole);

  // Lines split here by hand at LF (when the log has no CR) and fed in pieces of `block`
  // bytes: the scanner must count what it counted on whole lines.
  if (log.find('\r') == std::string_view::npos) {
    std::size_t start = 0;
    AccessLogCounter byHand;
    while (start <= log.size()) {
      const std::size_t end = std::min(log.find('\n', start), log.size());
      const std::string_view one = log.substr(start, end - start);
      if (!one.empty() || end < log.size()) {
        byHand.BeginLine();
        for (std::size_t at = 0; at < one.size(); at += block) byHand.Feed(one.substr(at, block));
        byHand.EndLine();
      }
      start = end + 1;
    }
    FUZZ_CHECK(byHand.Stats() == whole.Stats());
  }

  const AccessStats& s = whole.Stats();
  const auto sum = [](const auto& counters) {
    return std::accumulate(counters.begin(), counters.end(), std::int64_t{0});
  };
  FUZZ_CHECK(sum(s.osHits) == s.totalHits);
  FUZZ_CHECK(sum(s.domainHits) - s.Domain(DomainRow::Aol) == s.totalHits);
  FUZZ_CHECK(s.Domain(DomainRow::Aol) <= s.Domain(DomainRow::Com));
  FUZZ_CHECK(sum(s.ieHits) + sum(s.netscapeHits) <= s.totalHits);
  FUZZ_CHECK(sum(s.hourHits) <= s.totalHits && sum(s.dayHits) <= s.totalHits &&
             sum(s.monthHits) <= s.totalHits);
  const std::string report = AccessStatsReport(s);
  FUZZ_CHECK(report.ends_with("</FONT></BODY></HTML>\r\n"));
  return 0;
}
