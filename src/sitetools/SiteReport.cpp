#include "sitetools/SiteReport.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>
#include <cstring>

namespace tessarine {

void SiteReport::Fail(const File& file, const std::string& why) {
  if (failure_.empty()) failure_ = std::string(file.name) + ": " + why;
}

void SiteReport::FailErrno(const File& file) {
  Fail(file, std::strerror(errno));
}

void SiteReport::Open(File& file, const std::string& folder, const char* name) {
  file.name = name;
  const std::string path = folder + name;
  // Without O_NONBLOCK a FIFO would hold the open until some reader came; with it, a FIFO
  // that nobody reads fails at once (ENXIO) and one that is read is refused below. The
  // file is emptied only once it is known to be a regular one.
  const int fd = ::open(path.c_str(), O_WRONLY | O_CREAT | O_NONBLOCK | O_CLOEXEC | O_NOCTTY, 0666);
  if (fd < 0) {
    if (errno == ENXIO)
      Fail(file, "not a regular file");
    else
      FailErrno(file);
    return;
  }
  struct stat info {};
  if (::fstat(fd, &info) != 0 || !S_ISREG(info.st_mode)) {
    Fail(file, "not a regular file");
    ::close(fd);
    return;
  }
  if (::ftruncate(fd, 0) != 0 || ::fcntl(fd, F_SETFL, 0) != 0) {
    FailErrno(file);
    ::close(fd);
    return;
  }
  file.stream = ::fdopen(fd, "wb");
  if (!file.stream) {
    FailErrno(file);
    ::close(fd);
  }
}

void SiteReport::Create(const std::string& folder, const std::string& firstLine) {
  Close();
  failure_.clear();
  Open(link_, folder, kLinkReportName);
  Open(broken_, folder, kBrokenLinksName);
  LinkLine(firstLine);
  BrokenLine(firstLine);
}

void SiteReport::Line(File& file, std::string_view text) {
  if (!file.stream) return;
  // One report line per entry: line breaks and tabs inside a link, title or path (file
  // names may hold them) are written as blanks, or they would split or shift the line.
  std::string line(text);
  for (char& c : line)
    if (c == '\r' || c == '\n' || c == '\t') c = ' ';
  line += "\r\n";
  if (std::fwrite(line.data(), 1, line.size(), file.stream) != line.size()) FailErrno(file);
}

void SiteReport::Flush() {
  for (File* file : {&link_, &broken_})
    if (file->stream && std::fflush(file->stream) != 0) FailErrno(*file);
}

void SiteReport::Close() {
  for (File* file : {&link_, &broken_}) {
    if (file->stream && std::fclose(file->stream) != 0) FailErrno(*file);
    file->stream = nullptr;
  }
}

}  // namespace tessarine
