#include "platform/HeadlessFrame.h"

#include <algorithm>

namespace tessarine {

void HeadlessDocumentWindow::Activate() {
  frame_.MakeActive(this);
}

bool HeadlessDocumentWindow::RequestClose() {
  if (!QueryUnload()) return false;
  frame_.Remove(this);  // deletes this
  return true;
}

DocumentWindow* HeadlessFrame::CreateDocumentWindow() {
  windows_.push_back(std::make_unique<HeadlessDocumentWindow>(*this));
  active_ = windows_.back().get();
  return active_;
}

std::vector<HeadlessDocumentWindow*> HeadlessFrame::Windows() const {
  std::vector<HeadlessDocumentWindow*> out;
  for (const auto& w : windows_) out.push_back(w.get());
  return out;
}

void HeadlessFrame::ActivateNextDocument(bool previous) {
  if (windows_.empty()) return;
  auto it = std::find_if(windows_.begin(), windows_.end(),
                         [&](const auto& w) { return w.get() == active_; });
  auto index = it == windows_.end() ? 0 : static_cast<size_t>(it - windows_.begin());
  const size_t n = windows_.size();
  index = previous ? (index + n - 1) % n : (index + 1) % n;
  active_ = windows_[index].get();
}

void HeadlessFrame::Remove(HeadlessDocumentWindow* window) {
  auto it = std::find_if(windows_.begin(), windows_.end(),
                         [&](const auto& w) { return w.get() == window; });
  if (it == windows_.end()) return;
  const bool wasActive = active_ == window;
  windows_.erase(it);
  if (wasActive) active_ = windows_.empty() ? nullptr : windows_.back().get();
}

}  // namespace tessarine
