#include "wizards/DateTime.h"

#include "core/Application.h"
#include "core/DateFormat.h"
#include "platform/Desktop.h"
#include "platform/EditControl.h"
#include "platform/MessageBoxes.h"

namespace tessarine {

const std::vector<std::string>& DateTimeRows() {
  static const std::vector<std::string> rows = {
      "Monday, May 28, 2002", "5/28/02",  "28/5/02",  "May 28, 2002",
      "28 May 2002",          "May 2002", "10:30 PM", "5/28/01 10:30 PM"};
  return rows;
}

CheckResult DateTime::Validate() const {
  if (formatRow.empty()) return WizardCheck{"Select a Date/Time format.", "formatRow"};
  return std::nullopt;
}

std::string DateTime::Build(const std::tm& now) const {
  const std::string head = formatRow.substr(0, 6);
  const bool pm = formatRow.size() >= 2 && formatRow.compare(formatRow.size() - 2, 2, "PM") == 0;
  std::string stamp;
  if (head == "Monday")
    stamp = FormatDate(now, "dddd, mmmm dd, yyyy");
  else if (head == "5/28/0" && pm)
    // Begins like the short date: only its last letters tell it apart.
    stamp = FormatDate(now, "m/dd/yy  ") + FormatDate(now, "h:mm AM/PM");
  else if (head == "5/28/0")
    stamp = FormatDate(now, "m/dd/yy");
  else if (head == "28/5/0")
    stamp = FormatDate(now, "dd/m/yy");
  else if (head == "May 28")
    stamp = FormatDate(now, "mmmm dd, yyyy");
  else if (head == "28 May")
    stamp = FormatDate(now, "dd mmmm yyyy");
  else if (head == "May 20")
    stamp = FormatDate(now, "mmmm yyyy");
  else if (head == "10:30 ")
    stamp = FormatDate(now, "h:mm AM/PM");
  else
    return "";
  return leadingText + " " + stamp;
}

CheckResult DateTime_OK(Application& app, const DateTime& form) {
  if (CheckResult failed = form.Validate()) {
    app.messages.Show(failed->message, MsgButtons::OK, MsgIcon::None, app.title);
    return failed;
  }
  const std::string stamp = form.Build(app.clock.Now());
  EditControl* e = app.ActiveEdit();
  if (e && !stamp.empty()) e->ReplaceSel(stamp);
  return std::nullopt;
}

}  // namespace tessarine
