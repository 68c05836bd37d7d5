#include "cli/CommandIo.h"

#include <cstdio>
#include <cstring>

#include "core/FileSave.h"
#include "sitetools/SiteFiles.h"

namespace tessarine::cli {

namespace {
// Pages larger than this are not pages; the tools refuse them rather than exhaust memory.
constexpr std::int64_t kMaxInputBytes = std::int64_t{1} << 30;
}  // namespace

std::optional<std::string> ReadInput(const std::string& command, const std::string& path) {
  const std::int64_t length = FileLength(path);
  if (length > kMaxInputBytes) {
    std::fprintf(stderr, "tessarine-site %s: %s: file too large\n", command.c_str(), path.c_str());
    return std::nullopt;
  }
  auto text = ReadFileText(path, kMaxInputBytes);
  if (!text) {
    std::fprintf(stderr, "tessarine-site %s: %s: cannot read the file\n", command.c_str(),
                 path.c_str());
  }
  return text;
}

bool WriteOutput(const std::string& command, const std::string& path, std::string_view bytes) {
  if (path.empty()) {
    if (std::fwrite(bytes.data(), 1, bytes.size(), stdout) != bytes.size() ||
        std::fflush(stdout) != 0) {
      std::fprintf(stderr, "tessarine-site %s: cannot write to standard output\n", command.c_str());
      return false;
    }
    return true;
  }
  const int error = WriteFileReplacing(path, bytes, {});
  if (error != 0) {
    std::fprintf(stderr, "tessarine-site %s: %s: %s\n", command.c_str(), path.c_str(),
                 ErrorDescription(error).c_str());
    return false;
  }
  return true;
}

bool IsHelp(const char* arg) {
  return std::strcmp(arg, "--help") == 0 || std::strcmp(arg, "-h") == 0;
}

}  // namespace tessarine::cli
