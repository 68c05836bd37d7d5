#include "ui/Commands.h"
#include "ui/MDIForm1.h"

namespace tessarine {

void BuildProgramCommands(MDIForm1&) {}

}  // namespace tessarine
