#pragma once
// What the page tools of tessarine-site share: reading the page, writing a result to a
// file (whole or not at all) or to standard output, and a simple option walk.

#include <optional>
#include <string>
#include <string_view>

namespace tessarine::cli {

// The file's bytes, or nothing after a message on standard error.
std::optional<std::string> ReadInput(const std::string& command, const std::string& path);
// To `path` through a temporary file, or to standard output when `path` is empty.
// False after a message on standard error.
bool WriteOutput(const std::string& command, const std::string& path, std::string_view bytes);
bool IsHelp(const char* arg);

}  // namespace tessarine::cli
