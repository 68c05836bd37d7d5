#include "sitetools/Projects.h"

#include "platform/SettingsStore.h"
#include "settings/Settings.h"

namespace tessarine {
namespace {

constexpr const char* kSection = "Projects";

std::string Key(int slot, const char* what) {
  return std::to_string(slot) + "_" + what;
}

void WriteProject(SettingsStore& store, int slot, const Project& p) {
  store.SaveSetting(kSection, Key(slot, "ProjectName"), p.name);
  store.SaveSetting(kSection, Key(slot, "ProjectFolder"), p.projectFolder);
  store.SaveSetting(kSection, Key(slot, "ImageFolder"), p.imageFolder);
}

void EraseProject(SettingsStore& store, int slot) {
  for (const char* what : {"ProjectName", "ProjectFolder", "ImageFolder"}) {
    store.DeleteSetting(kSection, Key(slot, what));
  }
}

}  // namespace

Project ReadProject(SettingsStore& store, int slot) {
  return {store.GetSetting(kSection, Key(slot, "ProjectName"), ""),
          store.GetSetting(kSection, Key(slot, "ProjectFolder"), ""),
          store.GetSetting(kSection, Key(slot, "ImageFolder"), "")};
}

std::vector<std::string> ProjectNames(SettingsStore& store) {
  std::vector<std::string> names;
  for (int slot = 1; slot <= kProjectSlots; ++slot) {
    std::string name = ReadProject(store, slot).name;
    if (!name.empty()) names.push_back(std::move(name));
  }
  return names;
}

CheckResult ValidateNewProject(const Project& p) {
  if (p.name.empty()) {
    return WizardCheck{"Enter a name for your Project in the input box below.", "projectName"};
  }
  if (p.projectFolder.empty()) {
    return WizardCheck{"Enter or browse for a Project folder.", "projectFolder"};
  }
  if (p.imageFolder.empty()) {
    return WizardCheck{"Enter or browse for the Project's image folder.", "imageFolder"};
  }
  return std::nullopt;
}

CreateOutcome CreateProject(SettingsStore& store, const Project& project, std::string& message) {
  if (CheckResult failed = ValidateNewProject(project)) {
    message = failed->message;
    return CreateOutcome::Invalid;
  }
  for (int slot = 1; slot <= kProjectSlots; ++slot) {
    if (ReadProject(store, slot).name.empty()) {
      WriteProject(store, slot, project);
      message = "Your Project was created successfully.";
      return CreateOutcome::Created;
    }
  }
  message =
      "You have the maximum of 10 Projects in your Project list.  Please delete one before "
      "attempting to add another Project.";
  return CreateOutcome::Full;
}

void DeleteProject(SettingsStore& store, int slot) {
  if (slot < 1 || slot > kProjectSlots) return;
  EraseProject(store, slot);
  for (int i = 1; i <= kProjectSlots; ++i) {
    if (!ReadProject(store, i).name.empty()) continue;
    for (int j = i + 1; j <= kProjectSlots; ++j) {
      const Project later = ReadProject(store, j);
      if (later.name.empty()) continue;
      WriteProject(store, i, later);
      EraseProject(store, j);
      break;
    }
  }
}

void OpenProject(SettingsVars& settings, const Project& project) {
  settings.WorkingDirectory = project.projectFolder;
  settings.ImageDirectory = project.imageFolder;
}

void OpenProjectSlot(SettingsStore& store, SettingsVars& settings, int slot) {
  OpenProject(settings, ReadProject(store, slot));
}

}  // namespace tessarine
