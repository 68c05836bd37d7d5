#include "sitetools/SiteFiles.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <ctime>

namespace tessarine {
namespace {

// Opens a regular file for reading; -1 for anything else. O_NONBLOCK keeps a FIFO from
// blocking the open before the type test can refuse it.
int OpenRegular(const std::string& path, struct stat* info) {
  if (path.empty()) return -1;
  int fd = ::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY);
  if (fd < 0) return -1;
  if (::fstat(fd, info) != 0 || !S_ISREG(info->st_mode)) {
    ::close(fd);
    return -1;
  }
  return fd;
}

}  // namespace

std::optional<FileId> ReadableFileId(const std::string& path) {
  struct stat info;
  int fd = OpenRegular(path, &info);
  if (fd < 0) return std::nullopt;
  ::close(fd);
  return FileId{static_cast<std::uint64_t>(info.st_dev), static_cast<std::uint64_t>(info.st_ino)};
}

bool FileExistsForRead(const std::string& path) {
  return ReadableFileId(path).has_value();
}

std::int64_t FileLength(const std::string& path) {
  struct stat info;
  if (path.empty() || ::stat(path.c_str(), &info) != 0 || !S_ISREG(info.st_mode)) return -1;
  return static_cast<std::int64_t>(info.st_size);
}

std::optional<std::string> ReadFileText(const std::string& path, std::int64_t maxBytes, bool* cut) {
  if (cut) *cut = false;
  struct stat info;
  int fd = OpenRegular(path, &info);
  if (fd < 0) return std::nullopt;
  std::string text;
  // st_size is only a hint: files under /proc say 0 and still have content.
  // One byte more than the size, so that the read which meets the end needs no growth.
  const std::int64_t hint =
      std::min<std::int64_t>(info.st_size > 0 ? info.st_size + 1 : 4096, maxBytes);
  text.resize(static_cast<std::size_t>(std::max<std::int64_t>(hint, 1)));
  std::int64_t used = 0;
  bool failed = false;
  while (used < maxBytes) {
    if (used == static_cast<std::int64_t>(text.size())) {
      text.resize(static_cast<std::size_t>(std::min<std::int64_t>(maxBytes, used * 2)));
    }
    ssize_t got = ::read(fd, text.data() + used, text.size() - static_cast<std::size_t>(used));
    if (got < 0) {
      if (errno == EINTR) continue;
      failed = true;
      break;
    }
    if (got == 0) break;
    used += got;
  }
  if (!failed && used >= maxBytes && cut) {
    // One byte more says whether the file goes on.
    char probe;
    ssize_t more;
    while ((more = ::read(fd, &probe, 1)) < 0 && errno == EINTR) {
    }
    *cut = more > 0;
  }
  ::close(fd);
  if (failed) return std::nullopt;
  text.resize(static_cast<std::size_t>(used));
  return text;
}

std::string FileDateText(const std::string& path) {
  struct stat info;
  if (path.empty() || ::stat(path.c_str(), &info) != 0) return {};
  std::tm local{};
  const std::time_t when = info.st_mtime;
  if (!::localtime_r(&when, &local)) return {};
  int hour = local.tm_hour % 12;
  if (hour == 0) hour = 12;
  char out[64];
  std::snprintf(out, sizeof out, "%d/%d/%d %d:%02d:%02d %s", local.tm_mon + 1, local.tm_mday,
                local.tm_year + 1900, hour, local.tm_min, local.tm_sec,
                local.tm_hour < 12 ? "AM" : "PM");
  return out;
}

}  // namespace tessarine
