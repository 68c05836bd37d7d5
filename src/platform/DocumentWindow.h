#pragma once
// A document window (one open text) as the logic sees it.

#include <functional>
#include <string>

namespace tessarine {

class EditControl;

class DocumentWindow {
 public:
  virtual ~DocumentWindow() = default;
  virtual EditControl& Edit() = 0;
  virtual std::string Caption() const = 0;
  virtual void SetCaption(const std::string& caption) = 0;
  virtual void SetMaximized(bool maximized) = 0;
  virtual bool IsMaximized() const = 0;
  virtual void Activate() = 0;
  // Asks the window to close; its query-unload handler decides. True when it closed.
  virtual bool RequestClose() = 0;

  // The logic's answer to a close request: true lets the window go.
  void SetQueryUnloadHandler(std::function<bool()> handler) { queryUnload_ = std::move(handler); }

  // The last tag Edit Tag read in this window, without its "<"; kept between commands.
  std::string editTagCurrent;

 protected:
  bool QueryUnload() { return queryUnload_ ? queryUnload_() : true; }

 private:
  std::function<bool()> queryUnload_;
};

}  // namespace tessarine
