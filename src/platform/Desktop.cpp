#include "platform/Desktop.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

#include <fstream>

namespace tessarine {

bool ScriptedColorDialog::PickColor(std::int32_t initial, std::int32_t& chosen) {
  initials.push_back(initial);
  if (answers_.empty() || answers_.front() < 0) {
    if (!answers_.empty()) answers_.pop_front();
    return false;
  }
  chosen = answers_.front();
  answers_.pop_front();
  return true;
}

namespace {

// Double fork, so the program is nobody's child here and leaves no zombie; the exec's
// failure comes back through a close-on-exec pipe.
bool SpawnDetached(const std::vector<std::string>& argv) {
  if (argv.empty() || argv[0].empty()) return false;
  int fds[2];
  if (::pipe2(fds, O_CLOEXEC) != 0) return false;
  const pid_t child = ::fork();
  if (child < 0) {
    ::close(fds[0]);
    ::close(fds[1]);
    return false;
  }
  if (child == 0) {
    ::close(fds[0]);
    ::setsid();
    if (::fork() != 0) ::_exit(0);
    std::vector<char*> args;
    for (const auto& a : argv) args.push_back(const_cast<char*>(a.c_str()));
    args.push_back(nullptr);
    const int devnull = ::open("/dev/null", O_RDWR);
    if (devnull >= 0) {
      ::dup2(devnull, 0);
      ::dup2(devnull, 1);
    }
    ::execvp(args[0], args.data());
    const char failed = 1;
    (void)!::write(fds[1], &failed, 1);
    ::_exit(127);
  }
  ::close(fds[1]);
  int status = 0;
  ::waitpid(child, &status, 0);
  char failed = 0;
  const ssize_t n = ::read(fds[0], &failed, 1);
  ::close(fds[0]);
  return n == 0;
}

std::uint32_t Be16(const unsigned char* p) {
  return (p[0] << 8) | p[1];
}
std::uint32_t Be32(const unsigned char* p) {
  return (static_cast<std::uint32_t>(p[0]) << 24) | (p[1] << 16) | (p[2] << 8) | p[3];
}

}  // namespace

bool PosixShell::OpenInDefaultViewer(const std::string& path) {
  opened.push_back(path);
  return SpawnDetached({"xdg-open", path});
}

bool PosixShell::StartProgram(const std::string& program, const std::vector<std::string>& args) {
  std::vector<std::string> argv{program};
  argv.insert(argv.end(), args.begin(), args.end());
  started.push_back(argv);
  return SpawnDetached(argv);
}

bool HeaderImageInfo::Size(const std::string& path, int& width, int& height) {
  std::ifstream in(path, std::ios::binary);
  if (!in) return false;
  unsigned char h[26] = {};
  in.read(reinterpret_cast<char*>(h), sizeof h);
  const auto got = in.gcount();
  if (got >= 10 && (std::string(reinterpret_cast<char*>(h), 6) == "GIF87a" ||
                    std::string(reinterpret_cast<char*>(h), 6) == "GIF89a")) {
    width = h[6] | (h[7] << 8);
    height = h[8] | (h[9] << 8);
    return true;
  }
  if (got >= 24 && Be32(h) == 0x89504E47u && Be32(h + 4) == 0x0D0A1A0Au) {
    width = static_cast<int>(Be32(h + 16));
    height = static_cast<int>(Be32(h + 20));
    return true;
  }
  if (got >= 4 && h[0] == 0xFF && h[1] == 0xD8) {
    // Walk the markers to the first start-of-frame.
    in.clear();
    in.seekg(2);
    for (int guard = 0; guard < 10000 && in; ++guard) {
      unsigned char m[4];
      if (!in.read(reinterpret_cast<char*>(m), 2) || m[0] != 0xFF) return false;
      const unsigned char marker = m[1];
      if (marker == 0xFF) {
        in.seekg(-1, std::ios::cur);  // fill byte
        continue;
      }
      if (marker == 0xD8 || marker == 0x01 || (marker >= 0xD0 && marker <= 0xD7)) continue;
      if (!in.read(reinterpret_cast<char*>(m), 2)) return false;
      const std::uint32_t length = Be16(m);
      if (length < 2) return false;
      const bool sof =
          marker >= 0xC0 && marker <= 0xCF && marker != 0xC4 && marker != 0xC8 && marker != 0xCC;
      if (sof) {
        unsigned char f[5];
        if (!in.read(reinterpret_cast<char*>(f), 5)) return false;
        height = static_cast<int>(Be16(f + 1));
        width = static_cast<int>(Be16(f + 3));
        return true;
      }
      in.seekg(static_cast<std::streamoff>(length) - 2, std::ios::cur);
    }
  }
  return false;
}

std::tm SystemClock::Now() const {
  const std::time_t now = std::time(nullptr);
  std::tm t{};
  localtime_r(&now, &t);
  return t;
}

}  // namespace tessarine
