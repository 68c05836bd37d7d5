#include "wizards/ListItems.h"

#include "conventions/TagConventions.h"
#include "core/Application.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"

namespace tessarine {

std::string ListItemLine(bool upper, const std::string& text) {
  return std::string("\t") + (upper ? "<LI> " : "<li> ") + text + "\r\n";
}

std::string DescriptiveItemLines(bool upper, const std::string& topic,
                                 const std::string& description) {
  return std::string("\t") + (upper ? "<DT> " : "<dt> ") + topic + "\r\n\t\t" +
         (upper ? "<DD> " : "<dd> ") + description + "\r\n";
}

void WriteList(Application& app, const std::string& text) {
  // The tags are already in the tag case; the user's text must keep its own.
  HandOverText(app, text, true);
}

std::string SelectionForFirstItem(Application& app) {
  EditControl* e = app.ActiveEdit();
  return e ? e->SelText() : std::string();
}

CheckResult ShowRefusal(Application& app, CheckResult failed) {
  if (failed) app.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app.title);
  return failed;
}

}  // namespace tessarine
