#include "core/HelpTopics.h"

#include <filesystem>

#include "core/Application.h"
#include "platform/Desktop.h"
#include "platform/MessageBoxes.h"
#include "platform/SettingsStore.h"

namespace tessarine {

const std::vector<HelpTopic>& HelpTopics() {
  static const std::vector<HelpTopic> topics = {
      // Topics
      {kHelpContents, "index.html"},
      {kHelpHowToUse, "howto.html"},
      {kHelpTutorial, "tutorial.html"},
      {kHelpBeginners, "beginners.html"},
      {"HowToCreate", "beginners.html"},
      {"HowToUpload", "upload.html"},
      {"HtmlReference", "reference.html"},
      // Windows, by object name
      {"MainWindow", "index.html"},
      {"StartScreen", "index.html"},
      {"PreferencesDialog", "preferences.html"},
      {"CustomMenuDialog", "preferences.html"},
      {"DailyTipDialog", "howto.html"},
      {"PagePropertiesDialog", "text.html"},
      {"FolderChoiceDialog", "sitetools.html"},
      {"PictureViewer", "sitetools.html"},
      {"FindReplaceDialog", "howto.html"},
      {"Templates", "howto.html"},
      {"XmlDocumentDialog", "howto.html"},
      {"HyperlinkDialog", "links.html"},
      {"AnchorDialog", "links.html"},
      {"MailLinkDialog", "links.html"},
      {"ImageDialog", "images.html"},
      {"ImageMapDialog", "images.html"},
      {"MapAreaLinkDialog", "images.html"},
      {"TableWizardDialog", "tables.html"},
      {"TableEditorDialog", "tables.html"},
      {"TablePropertiesDialog", "tables.html"},
      {"NumberedListDialog", "lists.html"},
      {"BulletedListDialog", "lists.html"},
      {"DescriptiveListDialog", "lists.html"},
      {"ConvertTextDialog", "lists.html"},
      {"FormatChar", "text.html"},
      {"HorizontalLine", "text.html"},
      {"Vowels", "text.html"},
      {"DateTime", "text.html"},
      {"Metatags", "text.html"},
      {"ScriptTags", "text.html"},
      {"FrameWizardDialog", "framesforms.html"},
      {"FrameChoiceDialog", "framesforms.html"},
      {"CustomFramesDialog", "framesforms.html"},
      {"FormWizardDialog", "framesforms.html"},
      {"AppletDialog", "framesforms.html"},
      {"AppletParameterDialog", "framesforms.html"},
      {"BackgroundSoundDialog", "framesforms.html"},
      {"EmbeddedMediaDialog", "framesforms.html"},
      {"EffectPickerDialog", "effects.html"},
      {"DigitalClockDialog", "effects.html"},
      {"PersonalGreetingDialog", "effects.html"},
      {"JumpMenuDialog", "effects.html"},
      {"JumpMenuItemDialog", "effects.html"},
      {"MarqueeDialog", "effects.html"},
      {"InlineFrameDialog", "effects.html"},
      {"StyleEditorDialog", "styles.html"},
      {"StyleManagerDialog", "styles.html"},
      {"ValidateDialog", "validate.html"},
      {"AccessStatsDialog", "accessstats.html"},
      {"SiteManagerWindow", "sitetools.html"},
      {"GlobalReplaceDialog", "sitetools.html"},
      {"ProjectManagerDialog", "sitetools.html"},
      {"SpellDialog", "sitetools.html"},
      {"QuickViewDialog", "sitetools.html"},
  };
  return topics;
}

namespace {

const HelpTopic* Find(std::string_view id) {
  for (const HelpTopic& t : HelpTopics())
    if (t.id == id) return &t;
  return nullptr;
}

}  // namespace

bool HasHelpTopic(std::string_view id) {
  return Find(id) != nullptr;
}

std::string_view HelpPageOf(std::string_view id) {
  const HelpTopic* t = Find(id);
  return t ? t->page : Find(kHelpContents)->page;
}

std::string_view HelpTopicOfContext(int contextId) {
  switch (contextId) {
    case 40:
      return kHelpHowToUse;
    case 10:
      return "HowToCreate";
    case 42:
      return "HowToUpload";
    case 33:
      return "HtmlReference";
    default:
      return kHelpContents;
  }
}

std::string HelpFilePath(const std::string& programFolder, std::string_view id) {
  return programFolder + "/help/" + std::string(HelpPageOf(id));
}

bool ShowHelpTopic(Application& app, std::string_view id) {
  const std::string path = HelpFilePath(app.programFolder, id);
  std::error_code ec;
  if (!std::filesystem::is_regular_file(path, ec)) {
    app.messages.Show("The help page " + path + " cannot be found.", MsgButtons::OK,
                      MsgIcon::Exclamation, "Tessarine Help");
    return false;
  }
  if (app.shell.OpenInDefaultViewer(path)) return true;
  app.messages.Show(
      "The help page " + path + " could not be opened: no program to show Web pages was found.",
      MsgButtons::OK, MsgIcon::Exclamation, "Tessarine Help");
  return false;
}

bool StartScreenWanted(const SettingsStore& store) {
  const std::string value = store.GetSetting("Miscellaneous", "MainMenuBox", "");
  return value == "on" || value.empty();
}

void CloseStartScreen(SettingsStore& store, bool dontShowAgain) {
  if (dontShowAgain) store.SaveSetting("Miscellaneous", "MainMenuBox", "off");
}

}  // namespace tessarine
