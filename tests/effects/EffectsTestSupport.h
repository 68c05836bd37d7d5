#pragma once
// Expected texts are written with plain line ends here and turned into CR LF.

#include <string>

namespace tessarine::testing {

inline std::string CrLf(const std::string& text) {
  std::string out;
  for (char c : text) {
    if (c == '\n') out += '\r';
    out += c;
  }
  return out;
}

// The one line of `text` that starts with `prefix`, without its line end; empty if none.
inline std::string LineStarting(const std::string& text, const std::string& prefix) {
  std::size_t at = 0;
  while (at < text.size()) {
    const std::size_t end = text.find("\r\n", at);
    const std::string line = text.substr(at, end == std::string::npos ? end : end - at);
    if (line.compare(0, prefix.size(), prefix) == 0) return line;
    if (end == std::string::npos) break;
    at = end + 2;
  }
  return "";
}

}  // namespace tessarine::testing
