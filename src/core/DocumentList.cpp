#include "core/DocumentList.h"

namespace tessarine {

bool DocumentList::AnyDocumentsLeft() const {
  for (std::size_t i = 1; i < states_.size(); ++i)
    if (!states_[i].Deleted) return true;
  return false;
}

int DocumentList::FindFreeIndex() {
  for (std::size_t i = 1; i < states_.size(); ++i) {
    if (states_[i].Deleted) {
      states_[i].Deleted = false;
      return static_cast<int>(i);
    }
  }
  forms_.emplace_back();
  states_.emplace_back();
  return UpperBound();
}

int DocumentList::SlotOf(const DocumentWindow* window) const {
  if (!window) return 0;
  for (std::size_t i = 1; i < forms_.size(); ++i)
    if (forms_[i].form == window && !states_[i].Deleted) return static_cast<int>(i);
  return 0;
}

bool DocumentList::IsAlive(const DocumentWindow* window, std::uint64_t serial) const {
  const int slot = SlotOf(window);
  return slot != 0 && forms_[static_cast<std::size_t>(slot)].serial == serial;
}

void DocumentList::Attach(int slot, DocumentWindow* window) {
  DocumentSlot& s = Form(slot);
  s.form = window;
  s.InQuote = false;
  s.serial = nextSerial_++;
}

void DocumentList::Detach(int slot) {
  DocumentSlot& s = Form(slot);
  s.form = nullptr;
  s.serial = 0;
}

}  // namespace tessarine
