#pragma once
// The main window's menus and toolbar buttons, filled subsystem by subsystem. Each
// builder adds its own entries to the menus MainWindow made and binds its own buttons.

namespace tessarine {

class MainWindow;

void BuildFileCommands(MainWindow& frame);         // File menu, New/Open/Save buttons
void BuildEditCommands(MainWindow& frame);         // Edit menu, clipboard and Find buttons
void BuildTagCommands(MainWindow& frame);          // Insert and Format menus, tag buttons
void BuildProgramCommands(MainWindow& frame);      // browsers, external programs, printing
void BuildStyleCommands(MainWindow& frame);        // style editor, style manager
void BuildLinkImageCommands(MainWindow& frame);    // links, anchors, mail links, images, maps
void BuildListTableCommands(MainWindow& frame);    // lists, conversion, table wizard
void BuildFrameFormCommands(MainWindow& frame);    // frames, forms, applets, media
void BuildEffectCommands(MainWindow& frame);       // special effects
void BuildSiteManagerCommands(MainWindow& frame);  // site manager, global replace, projects
void BuildSiteToolCommands(MainWindow& frame);     // log statistics, tidy, stripper, spelling
void BuildSettingsCommands(MainWindow& frame);     // preferences, menu systems, help
void BuildEditTagCommands(MainWindow& frame);      // page properties, Edit Tag
void BuildHelpCommands(MainWindow& frame);         // Help menu, F1, the start screen
// The start screen, once the window is laid out and before the first document.
void ShowStartScreenAtStart(MainWindow& frame);
// Last: icons, toolbar style, view choices, the window list, About.
void BuildViewCommands(MainWindow& frame);

}  // namespace tessarine
