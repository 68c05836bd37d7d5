#include "core/DateFormat.h"

#include <cctype>

namespace tessarine {

namespace {

const char* const kMonths[] = {"January",   "February", "March",    "April",
                               "May",       "June",     "July",     "August",
                               "September", "October",  "November", "December"};
const char* const kDays[] = {"Sunday",   "Monday", "Tuesday", "Wednesday",
                             "Thursday", "Friday", "Saturday"};

char Lower(char c) {
  return static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
}

bool StartsWithNoCase(std::string_view s, std::size_t at, std::string_view word) {
  if (s.size() - at < word.size()) return false;
  for (std::size_t i = 0; i < word.size(); ++i)
    if (Lower(s[at + i]) != Lower(word[i])) return false;
  return true;
}

// The marker that switches hours to the 12-hour clock, as written in the pattern.
const std::string_view kMarkers[] = {"AM/PM", "A/P"};

std::size_t MarkerAt(std::string_view s, std::size_t at) {
  for (std::string_view m : kMarkers)
    if (StartsWithNoCase(s, at, m)) return m.size();
  return 0;
}

void Number(std::string& out, long long value, bool twoDigits) {
  if (twoDigits && value < 10 && value >= 0) out += '0';
  out += std::to_string(value);
}

int Wrap(long long v, int n) {
  return static_cast<int>(((v % n) + n) % n);
}

// The year and the day of the year counted on in 64 bits: a tm may hold any int.
long long Year(const std::tm& t) {
  return static_cast<long long>(t.tm_year) + 1900;
}

}  // namespace

std::string FormatDate(const std::tm& t, std::string_view p) {
  bool twelveHour = false;
  for (std::size_t i = 0; i < p.size(); ++i)
    if (MarkerAt(p, i)) twelveHour = true;

  std::string out;
  bool afterHour = false;  // an m after h or hh means minutes
  std::size_t i = 0;
  while (i < p.size()) {
    const char c = p[i];
    const char lc = Lower(c);
    std::size_t run = 1;
    while (i + run < p.size() && Lower(p[i + run]) == lc) ++run;
    if (c == '"') {
      const std::size_t end = p.find('"', i + 1);
      const std::size_t stop = end == std::string_view::npos ? p.size() : end;
      out.append(p.substr(i + 1, stop - i - 1));
      i = stop == p.size() ? stop : stop + 1;
      continue;
    }
    if (c == '\\') {
      if (i + 1 < p.size()) out += p[i + 1];
      i += 2;
      continue;
    }
    if (const std::size_t m = MarkerAt(p, i)) {
      // The marker's own case is kept: "AM/PM" gives "PM", "am/pm" gives "pm".
      const bool pm = t.tm_hour >= 12;
      const bool upper = std::isupper(static_cast<unsigned char>(p[i]));
      std::string word = m == 5 ? (pm ? "PM" : "AM") : (pm ? "P" : "A");
      if (!upper)
        for (char& ch : word) ch = Lower(ch);
      out += word;
      i += m;
      continue;
    }
    switch (lc) {
      case 'd':
        if (run == 1 || run == 2)
          Number(out, t.tm_mday, run == 2);
        else if (run == 3)
          out += std::string(kDays[Wrap(t.tm_wday, 7)]).substr(0, 3);
        else
          out += kDays[Wrap(t.tm_wday, 7)];
        break;
      case 'm':
        if (afterHour && run <= 2)
          Number(out, t.tm_min, run == 2);
        else if (run <= 2)
          Number(out, Wrap(t.tm_mon, 12) + 1, run == 2);
        else if (run == 3)
          out += std::string(kMonths[Wrap(t.tm_mon, 12)]).substr(0, 3);
        else
          out += kMonths[Wrap(t.tm_mon, 12)];
        break;
      case 'y':
        if (run == 1)
          out += std::to_string(static_cast<long long>(t.tm_yday) + 1);
        else if (run <= 3)
          Number(out, Wrap(Year(t), 100), true);
        else
          out += std::to_string(Year(t));
        break;
      case 'h': {
        int h = t.tm_hour;
        if (twelveHour) h = h % 12 == 0 ? 12 : h % 12;
        Number(out, h, run >= 2);
        break;
      }
      case 'n':
        Number(out, t.tm_min, run >= 2);
        break;
      case 's':
        Number(out, t.tm_sec, run >= 2);
        break;
      case 'w':
        out += std::to_string(Wrap(t.tm_wday, 7) + 1);
        break;
      case 'q':
        out += std::to_string(Wrap(t.tm_mon, 12) / 3 + 1);
        break;
      default:
        out.append(run, c);
        i += run;
        continue;  // literals don't end an hour's reach
    }
    afterHour = lc == 'h';
    i += run;
  }
  return out;
}

}  // namespace tessarine
