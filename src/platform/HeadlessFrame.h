#pragma once
// A frame and document windows without a display, for tests and headless runs.

#include <functional>
#include <memory>
#include <vector>

#include "platform/BufferEdit.h"
#include "platform/DocumentWindow.h"
#include "platform/Frame.h"

namespace tessarine {

class HeadlessFrame;

class HeadlessDocumentWindow : public DocumentWindow {
 public:
  explicit HeadlessDocumentWindow(HeadlessFrame& frame) : frame_(frame) {}
  EditControl& Edit() override { return edit_; }
  BufferEdit& Buffer() { return edit_; }
  std::string Caption() const override { return caption_; }
  void SetCaption(const std::string& caption) override { caption_ = caption; }
  void SetMaximized(bool maximized) override { maximized_ = maximized; }
  bool IsMaximized() const override { return maximized_; }
  void Activate() override;
  bool RequestClose() override;

 private:
  HeadlessFrame& frame_;
  BufferEdit edit_;
  std::string caption_;
  bool maximized_ = false;
};

class HeadlessFrame : public Frame {
 public:
  DocumentWindow* CreateDocumentWindow() override;
  DocumentWindow* ActiveDocumentWindow() override { return active_; }
  void ActivateNextDocument(bool previous) override;
  void Arrange(WindowArrangement how) override { lastArrangement = how; }

  void SetStatusText(const std::string& text) override { statusText_ = text; }
  std::string StatusText() const override { return statusText_; }
  void SetLengthPanel(std::int64_t length) override { lengthPanel = length; }
  void SetLinePanel(std::int64_t line) override { linePanel = line; }
  void SetMousePointer(MousePointer pointer) override { mousePointer = pointer; }
  void SetToolbarButtonsEnabled(bool enabled) override { toolbarButtonsEnabled = enabled; }
  void SetSaveButtonEnabled(bool enabled) override { saveButtonEnabled = enabled; }
  void ProcessEvents() override {
    ++eventYields;
    if (onProcessEvents) onProcessEvents();
  }

  // Windows in the order they were made.
  std::vector<HeadlessDocumentWindow*> Windows() const;
  void MakeActive(HeadlessDocumentWindow* window) { active_ = window; }
  void Remove(HeadlessDocumentWindow* window);

  std::int64_t lengthPanel = 0;
  std::int64_t linePanel = 1;
  MousePointer mousePointer = MousePointer::Default;
  bool toolbarButtonsEnabled = true;
  bool saveButtonEnabled = true;
  WindowArrangement lastArrangement = WindowArrangement::Cascade;
  long eventYields = 0;
  std::function<void()> onProcessEvents;

 private:
  std::vector<std::unique_ptr<HeadlessDocumentWindow>> windows_;
  HeadlessDocumentWindow* active_ = nullptr;
  std::string statusText_ = "Press F1 for Help";
};

}  // namespace tessarine
