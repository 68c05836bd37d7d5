#pragma once
// accessstats.html: the six tables of an access log's counts, and the bar image beside it.

#include <string>
#include <string_view>

namespace tessarine {

struct AccessStats;

inline constexpr const char* kAccessReportName = "accessstats.html";
inline constexpr const char* kPercentBarName = "percntbar.gif";
// The address named in the report's credit line.
inline constexpr const char* kVendorSite = "http://www.orlenda.com";

// The report, lines closed by CR LF.
std::string AccessStatsReport(const AccessStats& stats, std::string_view vendorSite = kVendorSite);

// The bytes of percntbar.gif (a one-pixel bar the report stretches), for writing the
// image beside a report where it is missing.
std::string_view PercentBarImage();

}  // namespace tessarine
