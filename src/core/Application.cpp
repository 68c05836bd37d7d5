#include "core/Application.h"

#include "platform/DocumentWindow.h"
#include "platform/Frame.h"
#include "platform/Platform.h"

namespace tessarine {

Application::Application(const Platform& p, std::string folder)
    : frame(p.frame),
      messages(p.messages),
      store(p.store),
      fileDialogs(p.fileDialogs),
      colorDialog(p.colorDialog),
      shell(p.shell),
      clipboard(p.clipboard),
      images(p.images),
      clock(p.clock),
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
