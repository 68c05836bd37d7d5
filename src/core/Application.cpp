#include "core/Application.h"

#include "platform/DocumentWindow.h"
#include "platform/Frame.h"

namespace tessarine {

Application::Application(Frame& f, MessageBoxes& m, SettingsStore& s, FileDialogs& d,
                         std::string folder)
    : frame(f),
      messages(m),
      store(s),
      fileDialogs(d),
      programFolder(std::move(folder)),
      defaultDocumentFolder(programFolder) {}

DocumentWindow* Application::ActiveDocument() {
  return frame.ActiveDocumentWindow();
}

EditControl* Application::ActiveEdit() {
  DocumentWindow* w = ActiveDocument();
  return w ? &w->Edit() : nullptr;
}

void Application::LoadSettings() {
  tessarine::LoadSettings(settings, store, defaultDocumentFolder);
}

}  // namespace tessarine
