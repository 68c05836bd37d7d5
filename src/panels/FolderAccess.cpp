#include "panels/FolderAccess.h"

#include <algorithm>
#include <cerrno>
#include <cstring>
#include <filesystem>
#include <system_error>

namespace tessarine {
namespace fs = std::filesystem;

int FolderReadError(const std::string& folder) {
  if (folder.empty()) return ENOENT;
  std::error_code error;
  fs::directory_iterator it(folder, error);
  if (error) return error.value() ? error.value() : EIO;
  return 0;
}

std::string DriveErrorMessage(int error) {
  switch (error) {
    case EIO:
      return "Drive I/O error.";
    case EACCES:
    case EPERM:
      return "Permission denied.";
    default:
      return "Drive not ready.";
  }
}

std::string FolderErrorMessage(const std::string& folder, int error) {
  if (error == ENOENT || error == ENOTDIR) return "The folder " + folder + " cannot be found.";
  return DriveErrorMessage(error);
}

std::string NearestReadableFolder(const std::string& folder) {
  fs::path at = fs::path(folder).lexically_normal();
  if (!at.has_filename()) at = at.parent_path();  // a closing "/"
  while (!at.empty() && at != at.root_path()) {
    if (FolderReadError(at.string()) == 0) return at.string();
    at = at.parent_path();
  }
  return "/";
}

namespace {
bool IsUnder(const std::string& path, const std::string& root) {
  if (root == "/") return !path.empty() && path.front() == '/';
  return path == root || (path.size() > root.size() && path.compare(0, root.size(), root) == 0 &&
                          path[root.size()] == '/');
}
}  // namespace

bool IsUserVolume(const std::string& mountPoint) {
  if (mountPoint.empty() || mountPoint.front() != '/') return false;
  if (mountPoint == "/") return true;
  for (const char* system : {"/proc", "/sys", "/dev", "/snap", "/boot"}) {
    if (IsUnder(mountPoint, system)) return false;
  }
  if (IsUnder(mountPoint, "/run")) return IsUnder(mountPoint, "/run/media");
  return true;
}

std::vector<std::string> UserDrives(const std::vector<std::string>& mountPoints) {
  std::vector<std::string> drives;
  for (const std::string& m : mountPoints) {
    if (m != "/" && IsUserVolume(m)) drives.push_back(m);
  }
  std::sort(drives.begin(), drives.end());
  drives.erase(std::unique(drives.begin(), drives.end()), drives.end());
  drives.insert(drives.begin(), "/");
  return drives;
}

std::string DriveOf(const std::string& folder, const std::vector<std::string>& drives) {
  std::string best = "/";
  for (const std::string& d : drives) {
    if (IsUnder(folder, d) && d.size() > best.size()) best = d;
  }
  return best;
}

}  // namespace tessarine
