#include "conventions/SaveWarning.h"

#include "core/Application.h"
#include "core/FileSave.h"
#include "platform/CheckedQuestions.h"
#include "platform/DocumentWindow.h"
#include "platform/SettingsStore.h"

namespace tessarine {

CheckedQuestion SaveWarningQuestion() {
  CheckedQuestion q;
  q.title = "Warning: Save document";
  q.text =
      "Tessarine advises you to save your document before inserting any images, hyperlinks or "
      "objects.\r\n\r\nClick 'YES' to save your document or click 'NO' to proceed without "
      "saving.";
  q.yesCaption = "&Yes";
  q.noCaption = "&No";
  q.checkCaption = "Don't show me this again";
  return q;
}

bool SaveWarningApplies(const std::string& setting, const std::string& caption) {
  std::string word = setting;
  for (char& c : word)
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  if (!word.empty() && word != "on") return false;
  return caption.compare(0, 8, "Untitled") == 0;
}

void CheckSaveWarning(Application& app) {
  DocumentWindow* window = app.ActiveDocument();
  if (!window) return;
  if (!SaveWarningApplies(app.store.GetSetting("Miscellaneous", "SaveWarning", "on"),
                          window->Caption()))
    return;
  const CheckedAnswer answer = app.checkedQuestions.Ask(SaveWarningQuestion());
  if (answer.yes) {
    const std::string name = SaveAsDialog(app);
    if (!name.empty()) SaveFile(app, *window, name, SaveMode::Command);
  }
  if (answer.checked) app.store.SaveSetting("Miscellaneous", "SaveWarning", "off");
}

}  // namespace tessarine
