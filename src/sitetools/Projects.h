#pragma once
// Projects: named pairs of a page folder and an image folder, kept in ten slots of the
// settings store's "Projects" section and packed from slot 1 upward. A project is no file;
// removing one touches no page or image.

#include <string>
#include <vector>

#include "conventions/WizardCheck.h"

namespace tessarine {

class SettingsStore;
struct SettingsVars;

inline constexpr int kProjectSlots = 10;
inline constexpr int kProjectMenuEntries = 5;

struct Project {
  std::string name;
  std::string projectFolder;
  std::string imageFolder;
};

Project ReadProject(SettingsStore& store, int slot);
// The names of the taken slots, 1 to 10 in order: the dialog's list.
std::vector<std::string> ProjectNames(SettingsStore& store);

// The create button's checks: the name, then the two folders.
CheckResult ValidateNewProject(const Project& project);

enum class CreateOutcome { Invalid, Full, Created };
// Writes the project into the first free slot; the message to show is in `message`.
CreateOutcome CreateProject(SettingsStore& store, const Project& project, std::string& message);

// Removes slot `slot` (1-based) and moves the later ones down.
void DeleteProject(SettingsStore& store, int slot);

// Opening a project: its folders become this run's working and image folders. The
// settings of section "Directory" stay as they are.
void OpenProject(SettingsVars& settings, const Project& project);
// A recent-project entry: slot `slot` read straight from the store.
void OpenProjectSlot(SettingsStore& store, SettingsVars& settings, int slot);

inline constexpr const char* kDeleteProjectQuestion =
    "Are you sure you want to delete this Project?  HTML files and images will NOT be deleted.  "
    "ONLY the Project name will be deleted.";
inline constexpr const char* kSelectProjectMessage = "Select a Project from the List";

}  // namespace tessarine
