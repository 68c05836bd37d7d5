#include "platform/Desktop.h"

#include "platform/ImageHeader.h"

#include <fcntl.h>
#include <signal.h>
#include <sys/wait.h>
#include <unistd.h>

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
  const ImageHeader header = ReadImageFileHeader(path);
  if (!header.ok()) return false;
  width = header.width;
  height = header.height;
  return true;
}

std::tm SystemClock::Now() const {
  const std::time_t now = std::time(nullptr);
  std::tm t{};
  localtime_r(&now, &t);
  return t;
}

}  // namespace tessarine
