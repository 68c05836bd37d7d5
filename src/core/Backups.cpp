#include "core/Backups.h"

#include "core/Application.h"
#include "core/Documents.h"
#include "core/FileSave.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"

namespace tessarine {

void TimerAutoSaveTick(Application& app) {
  ++app.files.autoSaveTicks;
  const int minutes = app.settings.AutoSaveMinutes;
  // Reaching covers a setting lowered below the count already made.
  if (minutes != 0 && app.files.autoSaveTicks >= minutes) {
    app.files.autoSaveTicks = 0;
    BackupChangedDocuments(app);
  }
}

std::string BackupName(const std::string& caption) {
  const auto slash = caption.find_last_of('/');
  const std::size_t split = slash == std::string::npos ? 0 : slash + 1;
  return caption.substr(0, split) + "Backup of " + caption.substr(split);
}

void BackupChangedDocuments(Application& app) {
  for (int i = 1; i <= app.documents.UpperBound(); ++i) {
    const DocumentSlot& s = app.documents.Form(i);
    if (!s.form || !DocumentNeedsSaving(app, i)) continue;
    // A copy that cannot be written is skipped; the next tick tries again.
    (void)WriteFileReplacing(BackupName(s.form->Caption()), s.form->Edit().View(), "\r\n");
  }
}

}  // namespace tessarine
