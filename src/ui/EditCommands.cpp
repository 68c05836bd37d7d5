#include <QAction>
#include <QMenu>

#include "ui/Commands.h"
#include "ui/MDIForm1.h"

namespace tessarine {

void BuildEditCommands(MDIForm1& frame) {
  QMenu* edit = frame.Menu("mnuEdit");
  frame.AddCommand(edit, "mnuGlobalReplace", "&Global Find and Replace...", false, [] {})
      ->setEnabled(false);
}

}  // namespace tessarine
