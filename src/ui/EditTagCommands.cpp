// Page properties and Edit Tag.

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "platform/DocumentWindow.h"
#include "ui/Commands.h"
#include "ui/MainWindow.h"
#include "ui/wizards/HyperlinkDialog.h"
#include "ui/wizards/ImageDialog.h"
#include "wizards/EditTag.h"
#include "wizards/Hyperlink.h"
#include "wizards/ImageTag.h"

namespace tessarine {

namespace {

// The tag before the caret back into its wizard; the wizard's text replaces the selected tag.
void EditTag(MainWindow& frame) {
  Application* app = frame.App();
  DocumentWindow* window = app ? app->ActiveDocument() : nullptr;
  if (!window) return;
  const EditTagRequest request = EditTag_Begin(*app, *window);
  switch (request.wizard) {
    case TagWizard::Image: {
      ImageTag image;
      FillImage(request.currentTag, image);
      ui::ImageDialog(*app, &frame, image).exec();
      break;
    }
    case TagWizard::Hyperlink: {
      Hyperlink link;
      FillHyperlink(request.currentTag, request.linkText, link);
      ui::HyperlinkDialog(*app, &frame, link).exec();
      break;
    }
    case TagWizard::None:
      break;
    default:
      // No reopening dialog here yet for this tag: the tag stays selected, unchanged.
      CloseWizard(*app);
      break;
  }
}

}  // namespace

void BuildEditTagCommands(MainWindow& frame) {
  MainWindow* f = &frame;
  // The Edit menu is also the text's right-click menu; its E is Redo's, so D is the key.
  frame.AddCommand(frame.Menu("mnuEdit"), "mnuEditTag", "E&dit Tag...", true, [f] { EditTag(*f); });
}

}  // namespace tessarine
