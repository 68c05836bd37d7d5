#pragma once
// What the three list dialogs share: the items collected so far, one line each.

#include <string>

#include "conventions/WizardCheck.h"

namespace tessarine {

class Application;

// One "<LI> " line: a tab, the tag, the text and a line end.
std::string ListItemLine(bool upper, const std::string& text);
// One topic and its description: "<DT> " and "<DD> " on two lines.
std::string DescriptiveItemLines(bool upper, const std::string& topic,
                                 const std::string& description);
// A list's text written over the selection; the undo history starts afresh.
void WriteList(Application& app, const std::string& text);
// The active document's selection, which becomes the first item's text.
std::string SelectionForFirstItem(Application& app);
// Shows a failed check's message (the dialog stays open) and passes the check on.
CheckResult ShowRefusal(Application& app, CheckResult failed);

}  // namespace tessarine
