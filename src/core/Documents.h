#pragma once
// The life of document windows: making them, their change and activation events, the
// save prompt on closing, and the Window menu.

#include <string>

namespace tessarine {

class Application;
class DocumentWindow;

// Makes a window in the lowest free slot, captioned "Untitled:n", and activates it.
DocumentWindow* NewDocumentWindow(Application& app);

// The query-unload of a window: the save prompt. True lets the window go; the slot is
// then free.
bool QueryUnload(Application& app, DocumentWindow& window);

// The edit control's change event.
void OnDocumentChanged(Application& app, DocumentWindow& window);
// The window became the active child.
void OnDocumentActivated(Application& app, DocumentWindow& window);

// File, Close on the active document. True when it closed.
bool CloseActiveDocument(Application& app);
// Window, Close All: each window asks for itself; a Cancel keeps that one.
void CloseAllDocuments(Application& app);
// Closes every window for the frame's unload; false when one refused.
bool CloseAllForExit(Application& app);

// mnuWindowArrange and mnuWindowMove, by index.
void mnuWindowArrange(Application& app, int index);
void mnuWindowMove(Application& app, int index);

// Whether the text would be lost on closing: the change flag, or the edit control's word
// that its text differs from what was last loaded or saved (an edit the change handler
// never saw, say while an abandoned colouring pass holds it off).
bool DocumentNeedsSaving(Application& app, int slot);
// The text now matches its file (or the fresh page): the flag goes down, and the control
// takes this text as its save point.
void MarkDocumentUnchanged(Application& app, int slot);

// The save prompt's test: exactly "Untitled" in the first eight characters.
bool CaptionIsUntitledForPrompt(const std::string& caption);

}  // namespace tessarine
