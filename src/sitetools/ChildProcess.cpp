#include "sitetools/ChildProcess.h"

#include <poll.h>
#include <signal.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>

#include <cerrno>

namespace tessarine {

ChildResult RunInChildProcess(const std::function<int()>& work, int timeLimitSeconds) {
  ChildResult result;
  const pid_t pid = ::fork();
  if (pid < 0) return result;
  if (pid == 0) {
    // No exit handlers of the parent (its windows, its files) run in the child.
    int code = 125;
    try {
      code = work();
    } catch (...) {
      code = 125;
    }
    ::_exit(code);
  }
  bool timedOut = false;
  if (timeLimitSeconds > 0) {
#ifdef SYS_pidfd_open
    const int pidfd = static_cast<int>(::syscall(SYS_pidfd_open, pid, 0));
    if (pidfd >= 0) {
      pollfd p{pidfd, POLLIN, 0};
      int ready;
      do {
        ready = ::poll(&p, 1, timeLimitSeconds * 1000);
      } while (ready < 0 && errno == EINTR);
      if (ready == 0) {
        ::kill(pid, SIGKILL);
        timedOut = true;
      }
      ::close(pidfd);
    }
#endif
  }
  int status = 0;
  pid_t waited;
  do {
    waited = ::waitpid(pid, &status, 0);
  } while (waited < 0 && errno == EINTR);
  if (waited != pid) return result;
  if (timedOut) {
    result.status = ChildResult::Status::TimedOut;
  } else if (WIFEXITED(status)) {
    result.status = ChildResult::Status::Exited;
    result.exitCode = WEXITSTATUS(status);
  } else if (WIFSIGNALED(status)) {
    result.status = ChildResult::Status::Crashed;
    result.signal = WTERMSIG(status);
  }
  return result;
}

}  // namespace tessarine
