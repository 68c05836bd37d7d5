#pragma once
// Timed backup copies: "Backup of " and the file's name, beside the file.

#include <string>

namespace tessarine {

class Application;

// The once-a-minute tick of TimerAutoSave: every `AutoSaveMinutes` ticks (never while it
// is 0) the changed documents are copied.
void TimerAutoSaveTick(Application& app);
// Writes a copy of each changed document; windows and flags stay as they are.
void BackupChangedDocuments(Application& app);
// "/dir/page.html" gives "/dir/Backup of page.html"; "Untitled:1" gives "Backup of Untitled:1".
std::string BackupName(const std::string& caption);

}  // namespace tessarine
