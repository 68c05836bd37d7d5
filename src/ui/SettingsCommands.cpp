// Preferences, the menu systems, the start screen and help.

#include "ui/Commands.h"
#include "ui/MainWindow.h"

namespace tessarine {

void BuildSettingsCommands(MainWindow& frame) {
  (void)frame;
}

}  // namespace tessarine
