#include "wizards/Anchor.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "core/TextServices.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"

namespace tessarine {

CheckResult Anchor::Validate() const {
  if (name.empty())
    return WizardCheck{"Please enter Anchor/Bookmark name in the box below.", "anchorName"};
  return std::nullopt;
}

std::string Anchor::Build(bool upper) const {
  const std::string q = "\"";
  return (upper ? "<A NAME=" : "<a name=") + q + name + q + ">" + text + (upper ? "</A>" : "</a>");
}

Anchor Anchor_Open(Application& app) {
  Anchor a;
  if (EditControl* e = app.ActiveEdit()) a.text = e->SelText();
  return a;
}

CheckResult Anchor_OK(Application& app, const Anchor& form) {
  EmptyUndoBuffer(app);
  if (CheckResult failed = form.Validate()) {
    app.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app.title);
    return failed;
  }
  EmptyUndoBuffer(app);
  std::string head, body = form.Build(TagCaseUpper(app) == 1);
  InsertInHeadAndBody(app, head, body);
  return std::nullopt;
}

}  // namespace tessarine
