#pragma once
// The main window's menus and toolbar buttons, filled subsystem by subsystem. Each
// builder adds its own entries to the menus MDIForm1 made and binds its own buttons.

namespace tessarine {

class MDIForm1;

void BuildFileCommands(MDIForm1& frame);     // File menu, New/Open/Save buttons
void BuildEditCommands(MDIForm1& frame);     // Edit menu, clipboard and Find buttons
void BuildTagCommands(MDIForm1& frame);      // Insert and Format menus, tag buttons
void BuildProgramCommands(MDIForm1& frame);  // browsers, external programs, printing

}  // namespace tessarine
