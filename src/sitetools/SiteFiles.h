#pragma once
// File tests and reads of the site tools. Only regular files count: a folder, a device, a
// pipe or a socket is "not existing", so that a link to /dev/zero or a FIFO can never
// block or feed a crawl without end.

#include <cstdint>
#include <functional>
#include <optional>
#include <string>

namespace tessarine {

// The most bytes of one file that the site tools read as text. Pages are small; a bigger
// file (a linked archive or disk image taken for a page) is read up to here only.
inline constexpr std::int64_t kMaxPageTextBytes = 32 * 1024 * 1024;

// Which file a path names, whatever its spelling.
struct FileId {
  std::uint64_t device = 0;
  std::uint64_t inode = 0;
  bool operator==(const FileId&) const = default;
};

struct FileIdHash {
  std::size_t operator()(const FileId& id) const {
    return std::hash<std::uint64_t>()(id.inode * 0x9E3779B97F4A7C15ULL ^ id.device);
  }
};

// True when the file can be opened for reading. Opens it, never reads it.
bool FileExistsForRead(const std::string& path);
// The same test, giving the file's identity.
std::optional<FileId> ReadableFileId(const std::string& path);
// Size in bytes, or -1 on failure.
std::int64_t FileLength(const std::string& path);
// The file's bytes, at most maxBytes of them; nothing when it cannot be opened or read.
// `cut`, when given, tells whether the file went on beyond maxBytes.
std::optional<std::string> ReadFileText(const std::string& path,
                                        std::int64_t maxBytes = kMaxPageTextBytes,
                                        bool* cut = nullptr);
// Modification date and time as "m/d/yyyy h:mm:ss AM"; empty on failure.
std::string FileDateText(const std::string& path);

}  // namespace tessarine
