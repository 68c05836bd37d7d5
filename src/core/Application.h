#pragma once
// The application object: all long-lived state, grouped by subsystem, and the desktop
// services the logic talks through. Nothing else is global.

#include <cstdint>
#include <string>

#include "conventions/WizardState.h"
#include "core/DocumentList.h"
#include "core/Editing.h"
#include "core/FileState.h"
#include "core/Preview.h"
#include "platform/Platform.h"
#include "settings/Settings.h"
#include "sitetools/SiteToolState.h"
#include "styles/StyleState.h"

namespace tessarine {

class EditControl;
class DocumentWindow;

// The shared state of the text services.
struct TextServiceState {
  std::string LastStartTag;
  std::string LastEndTag;
  bool ReplaceSelectionOnce = false;
};

struct ColorizeState {
  std::int16_t ColorizingInProgress = 0;
  bool CancelColorizing = false;
};

// The desktop services are reached as members: app.frame, app.messages and so on.
class Application : public Platform {
 public:
  Application(const Platform& platform, std::string programFolder);

  const std::string programFolder;
  const std::string title = "Tessarine";
  // Where the folder settings point until the user chooses: the program's folder unless
  // the desktop has a better place (the home folder).
  std::string defaultDocumentFolder;

  SettingsVars settings;
  DocumentList documents;
  TextServiceState textServices;
  ColorizeState colorizing;
  FileState files;
  EditingState editing;
  ProgramState programs;
  WizardState wizards;
  SiteToolState sites;
  StyleState styles;  // Styles, CurrentStyle, StyleDialogMode
  // The image dialog's file list opens where it was last left.
  std::string imageBrowseDirectory;

  // The frame's active child: every command works on it at the moment it runs.
  DocumentWindow* ActiveDocument();
  EditControl* ActiveEdit();
  void LoadSettings();
};

}  // namespace tessarine
