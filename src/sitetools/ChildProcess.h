#pragma once
// Runs a piece of work in a forked child, so that a crash or an endless recursion in a
// library costs a message and never the caller. The child sees the caller's memory as it
// was at the fork, so inputs need no copying; it reports through its exit code and files.

#include <functional>
#include <string>

namespace tessarine {

struct ChildResult {
  enum class Status { Exited, Crashed, TimedOut, NotStarted };
  Status status = Status::NotStarted;
  int exitCode = -1;  // when Exited
  int signal = 0;     // when Crashed
};

// `work` returns the child's exit code (0 to 125). `timeLimitSeconds` 0 means none.
ChildResult RunInChildProcess(const std::function<int()>& work, int timeLimitSeconds = 0);

}  // namespace tessarine
