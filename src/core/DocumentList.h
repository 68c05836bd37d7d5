#pragma once
// The two parallel document lists. Slots count from 1, grow together and never shrink;
// the lowest free slot is reused.

#include <cstddef>
#include <cstdint>
#include <vector>

namespace tessarine {

class DocumentWindow;

struct DocumentState {
  bool Deleted = false;  // the slot is free
  bool Changed = false;  // the text differs from the file
};

struct DocumentSlot {
  DocumentWindow* form = nullptr;
  bool InQuote = false;
  std::uint64_t serial = 0;  // tells a window from a later one at the same address
};

class DocumentList {
 public:
  int UpperBound() const { return static_cast<int>(states_.size()) - 1; }
  bool AnyDocumentsLeft() const;
  int FindFreeIndex();

  DocumentSlot& Form(int slot) { return forms_.at(static_cast<std::size_t>(slot)); }
  DocumentState& State(int slot) { return states_.at(static_cast<std::size_t>(slot)); }
  const DocumentState& State(int slot) const { return states_.at(static_cast<std::size_t>(slot)); }

  // The window's slot (its Tag), 0 when it has none.
  int SlotOf(const DocumentWindow* window) const;
  // True while `window` still holds the slot it had when `serial` was taken.
  bool IsAlive(const DocumentWindow* window, std::uint64_t serial) const;
  void Attach(int slot, DocumentWindow* window);
  void Detach(int slot);

  int CurrentDocumentIndex = 0;

 private:
  std::vector<DocumentSlot> forms_{1};  // index 0 unused
  std::vector<DocumentState> states_{1};
  std::uint64_t nextSerial_ = 1;
};

}  // namespace tessarine
