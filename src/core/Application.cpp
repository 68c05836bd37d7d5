#include "core/Application.h"

#include "platform/DocumentWindow.h"
#include "platform/Frame.h"

namespace tessarine {

Application::Application(const Platform& p, std::string folder)
    : Platform(p), programFolder(std::move(folder)), defaultDocumentFolder(programFolder) {}

DocumentWindow* Application::ActiveDocument() {
  return frame.ActiveDocumentWindow();
}

EditControl* Application::ActiveEdit() {
  DocumentWindow* w = ActiveDocument();
  return w ? &w->Edit() : nullptr;
}

void Application::LoadSettings() {
  tessarine::LoadSettings(settings, store, defaultDocumentFolder, &messages);
}

}  // namespace tessarine
