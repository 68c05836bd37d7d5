#pragma once
// Headless Chromium and a loopback web server, for checking that generated pages run.
// Every browser run is bounded by `timeout`, so a hanging page fails instead of hanging.

#include <arpa/inet.h>
#include <netinet/in.h>
#include <signal.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <string>
#include <thread>

#include "core/TestApp.h"

namespace tessarine::testing {

// The first of the names found on PATH, or "".
inline std::string FindProgram(std::initializer_list<const char*> names) {
  const char* path = std::getenv("PATH");
  std::string dirs = path ? path : "/usr/bin:/bin";
  for (const char* name : names) {
    std::size_t at = 0;
    while (at <= dirs.size()) {
      const std::size_t end = dirs.find(':', at);
      const std::string dir = dirs.substr(at, end == std::string::npos ? end : end - at);
      const std::filesystem::path candidate = std::filesystem::path(dir) / name;
      if (!dir.empty() && ::access(candidate.c_str(), X_OK) == 0) return candidate.string();
      if (end == std::string::npos) break;
      at = end + 1;
    }
  }
  return "";
}

inline std::string Chromium() {
  return FindProgram({"chromium", "chromium-browser"});
}

// Loads `url` in a fresh profile, lets timers run for `budgetMs` of virtual time, and
// gives the document as it then stands.
inline std::string DumpDom(const std::string& url, int budgetMs) {
  TempDir profile;
  const std::string command =
      "timeout -k 5 60 '" + Chromium() +
      "' --headless --no-sandbox --disable-gpu --disable-quic --no-first-run "
      "--disable-background-networking --disable-component-update --disable-sync "
      "--user-data-dir='" +
      profile.path().string() + "' --virtual-time-budget=" + std::to_string(budgetMs) +
      " --dump-dom '" + url + "' 2>/dev/null";
  std::string out;
  if (FILE* pipe = ::popen(command.c_str(), "r")) {
    char buffer[4096];
    std::size_t n;
    while ((n = std::fread(buffer, 1, sizeof buffer, pipe)) > 0) out.append(buffer, n);
    ::pclose(pipe);
  }
  return out;
}

// python3's http.server on a free loopback port, serving `folder`.
class LoopbackServer {
 public:
  explicit LoopbackServer(const std::filesystem::path& folder) {
    port_ = FreePort();
    if (port_ == 0) return;
    pid_ = ::fork();
    if (pid_ == 0) {
      std::freopen("/dev/null", "w", stdout);
      std::freopen("/dev/null", "w", stderr);
      const std::string port = std::to_string(port_);
      ::execlp("python3", "python3", "-m", "http.server", port.c_str(), "--bind", "127.0.0.1",
               "--directory", folder.c_str(), static_cast<char*>(nullptr));
      ::_exit(127);
    }
    // Up when it accepts a connection; given up after about ten seconds.
    for (int attempt = 0; attempt < 100 && !ready_; ++attempt) {
      ready_ = Accepts();
      if (!ready_) std::this_thread::sleep_for(std::chrono::milliseconds(100));
    }
  }
  ~LoopbackServer() {
    if (pid_ > 0) {
      ::kill(pid_, SIGTERM);
      ::waitpid(pid_, nullptr, 0);
    }
  }
  bool ready() const { return ready_; }
  std::string Url(const std::string& name) const {
    return "http://127.0.0.1:" + std::to_string(port_) + "/" + name;
  }

 private:
  static int FreePort() {
    const int s = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof a;
    int port = 0;
    if (::bind(s, reinterpret_cast<sockaddr*>(&a), sizeof a) == 0 &&
        ::getsockname(s, reinterpret_cast<sockaddr*>(&a), &length) == 0)
      port = ntohs(a.sin_port);
    ::close(s);
    return port;
  }
  bool Accepts() const {
    const int s = ::socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in a{};
    a.sin_family = AF_INET;
    a.sin_port = htons(static_cast<std::uint16_t>(port_));
    a.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    const bool ok = ::connect(s, reinterpret_cast<sockaddr*>(&a), sizeof a) == 0;
    ::close(s);
    return ok;
  }

  int port_ = 0;
  pid_t pid_ = -1;
  bool ready_ = false;
};

// The inner markup of the element with `id` in a dumped document, or "".
inline std::string InnerOf(const std::string& dom, const std::string& id) {
  const std::size_t at = dom.find("id=\"" + id + "\"");
  if (at == std::string::npos) return "";
  const std::size_t tagStart = dom.rfind('<', at);
  const std::size_t nameEnd = dom.find_first_of(" >", tagStart);
  const std::string name = dom.substr(tagStart + 1, nameEnd - tagStart - 1);
  const std::size_t start = dom.find('>', at);
  if (start == std::string::npos) return "";
  // Skip nested elements of the same name.
  int depth = 1;
  std::size_t scan = start + 1;
  while (depth > 0) {
    const std::size_t open = dom.find("<" + name, scan), close = dom.find("</" + name + ">", scan);
    if (close == std::string::npos) return "";
    if (open != std::string::npos && open < close) {
      ++depth;
      scan = open + 1;
    } else if (--depth > 0) {
      scan = close + 1;
    } else {
      return dom.substr(start + 1, close - start - 1);
    }
  }
  return "";
}

}  // namespace tessarine::testing
