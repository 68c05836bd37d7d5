#pragma once
// Runs tessarine-site as a program in a fresh temporary folder, for the page tools' tests.

#include <sys/wait.h>
#include <unistd.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace tessarine::pagetooltest {

namespace fs = std::filesystem;

class TempFolder {
 public:
  TempFolder() {
    static std::atomic<int> counter{0};
    path_ = fs::temp_directory_path() /
            ("tessarine-pagetool-" + std::to_string(::getpid()) + "-" + std::to_string(++counter));
    fs::remove_all(path_);
    fs::create_directories(path_);
  }
  ~TempFolder() {
    std::error_code ignored;
    fs::remove_all(path_, ignored);
  }
  TempFolder(const TempFolder&) = delete;
  TempFolder& operator=(const TempFolder&) = delete;

  std::string Path(const std::string& name) const { return (path_ / name).string(); }
  std::string Write(const std::string& name, const std::string& bytes) const {
    std::ofstream out(path_ / name, std::ios::binary);
    out << bytes;
    return Path(name);
  }
  std::string Read(const std::string& name) const {
    std::ifstream in(path_ / name, std::ios::binary);
    return std::string(std::istreambuf_iterator<char>(in), std::istreambuf_iterator<char>());
  }
  bool Exists(const std::string& name) const { return fs::exists(path_ / name); }

 private:
  fs::path path_;
};

struct RunResult {
  int status = -1;
  std::string out;
  std::string err;
};

// Runs "tessarine-site ARGUMENTS" inside the folder; `environment` goes in front.
inline RunResult RunTool(const TempFolder& folder, const std::string& arguments,
                         const std::string& environment = "") {
  const std::string command = "cd '" + folder.Path("") + "' && " + environment + " '" +
                              TESSARINE_SITE_EXE + "' " + arguments +
                              " >.stdout 2>.stderr </dev/null";
  RunResult result;
  const int raw = std::system(command.c_str());
  if (raw != -1 && WIFEXITED(raw)) result.status = WEXITSTATUS(raw);
  result.out = folder.Read(".stdout");
  result.err = folder.Read(".stderr");
  return result;
}

}  // namespace tessarine::pagetooltest
