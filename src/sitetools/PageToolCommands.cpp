#include "sitetools/PageToolCommands.h"

#include <filesystem>

#include "core/Application.h"
#include "core/ColorizeRun.h"
#include "core/FileOpen.h"
#include "core/FileSave.h"
#include "platform/DocumentWindow.h"
#include "platform/EditControl.h"
#include "platform/FileDialogs.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"
#include "sitetools/HtmlStripper.h"
#include "sitetools/HunspellEngine.h"
#include "sitetools/SpellCheck.h"

namespace tessarine {

void HtmlStripCommand(Application& app) {
  EditControl* edit = app.ActiveEdit();
  if (!edit) return;
  app.messages.Show(
      "This tool will strip the HTML code from your Web page and save your Web page text in a "
      "separate file.",
      MsgButtons::OK, MsgIcon::Information, app.title);
  FileDialogRequest request;
  request.title = "Save Stripped File As...";
  request.filter =
      "All Files (*.*)|*.*|Text Files (*.txt)|*.txt|HTML Files (*.htm, *.html)|*.htm;*.html";
  request.filterIndex = 2;
  request.save = true;
  request.confirmOverwrite = true;
  const std::string path = app.fileDialogs.Show(request).path;
  if (path.empty()) return;
  const std::string_view text = edit->View();
  const int error = WriteFileReplacing(path, StripHtml(text, IsValidUtf8(text)), {});
  if (error != 0) {
    app.messages.Show(ErrorDescription(error), MsgButtons::OK, MsgIcon::Critical, app.title);
    return;
  }
  if (app.messages.Show("Current Active Document has been stripped of its HTML code.  Would you "
                        "like to view the stripped file?",
                        MsgButtons::YesNo, MsgIcon::Question, "HTML Stripper") == MsgAnswer::Yes)
    OpenFile(app, path);
}

void SpellCheckCommand(Application& app, SpellPrompter& prompter) {
  DocumentWindow* window = app.ActiveDocument();
  if (!window) return;
  const auto folders = DictionaryFolders();
  const std::string language =
      ChooseDictionary(InstalledDictionaries(folders),
                       app.store.GetSetting(kSpellSection, kSpellLanguageKey, "en_US"));
  std::string error;
  auto engine = HunspellSpellEngine::Open(
      language, folders, (std::filesystem::path(app.programFolder) / "custom.dic").string(), error);
  if (!engine) {
    app.messages.Show(error, MsgButtons::OK, MsgIcon::Exclamation, app.title);
    return;
  }
  EditControl& edit = window->Edit();
  const SpellReport report = RunSpellCheck(edit, *engine, prompter);
  app.messages.Show(SpellReportMessage(report), MsgButtons::OK, MsgIcon::Information, app.title);
  edit.SetFocus();
  edit.SetSelLength(0);
  if (report.wordsReplaced > 0) ColorizeTags(app, *window);
}

}  // namespace tessarine
