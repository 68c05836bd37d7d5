#pragma once
// Drives and folders as the file lists see them: which mounted volumes stand for drives,
// the volume a folder lies on, whether a folder can be listed, and the message for one
// that cannot.

#include <string>
#include <vector>

namespace tessarine {

// The error number of the first failure to list `folder`, 0 when it can be listed.
int FolderReadError(const std::string& folder);

// The message for a drive that cannot be read, by its error number.
std::string DriveErrorMessage(int error);
// The same for a folder: one that has gone is named, the rest say what the drive says.
std::string FolderErrorMessage(const std::string& folder, int error);

// The nearest folder at or above `folder` that can be listed; "/" when none can.
std::string NearestReadableFolder(const std::string& folder);

// Mount points worth offering as drives: not the system's own trees (/proc, /sys, /dev,
// /run except removable media, /snap, /boot).
bool IsUserVolume(const std::string& mountPoint);
// The drives in list order: "/" first, then the others sorted, without repeats.
std::vector<std::string> UserDrives(const std::vector<std::string>& mountPoints);
// The drive that holds `folder`: the longest mount point it lies under.
std::string DriveOf(const std::string& folder, const std::vector<std::string>& drives);

}  // namespace tessarine
