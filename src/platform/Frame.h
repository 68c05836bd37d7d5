#pragma once
// The main window as the logic sees it: the document frame, its status bar, toolbars and
// the event queue.

#include <cstdint>
#include <string>
#include <vector>

namespace tessarine {

class DocumentWindow;

enum class MousePointer { Default = 0, Hourglass = 11 };
enum class WindowArrangement {
  Cascade = 0,
  TileHorizontal = 1,
  TileVertical = 2,
  ArrangeIcons = 3
};

class Frame {
 public:
  virtual ~Frame() = default;
  // Makes a new document window (not yet shown).
  virtual DocumentWindow* CreateDocumentWindow() = 0;
  virtual DocumentWindow* ActiveDocumentWindow() = 0;
  virtual void ActivateNextDocument(bool previous) = 0;
  virtual void Arrange(WindowArrangement how) = 0;

  virtual void SetStatusText(const std::string& text) = 0;  // panel 1
  virtual std::string StatusText() const = 0;
  virtual void SetLengthPanel(std::int64_t length) = 0;  // "n bytes"
  virtual void SetLinePanel(std::int64_t line) = 0;      // "Line: n", n counted from 1
  virtual void SetMousePointer(MousePointer pointer) = 0;
  virtual void SetToolbarButtonsEnabled(bool enabled) = 0;
  virtual void SetSaveButtonEnabled(bool enabled) = 0;
  // Lets other handlers run: the yield of long loops.
  virtual void ProcessEvents() = 0;
};

}  // namespace tessarine
