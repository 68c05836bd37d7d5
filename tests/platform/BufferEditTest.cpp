#include <gtest/gtest.h>

#include "platform/BufferEdit.h"

namespace tessarine {
namespace {

TEST(BufferEdit, ReplaceSelMovesCaretBehindText) {
  BufferEdit e;
  e.SetText("abc");
  e.Select(1, 1);
  e.ReplaceSel("XY");
  EXPECT_EQ(e.Text(), "aXYc");
  EXPECT_EQ(e.SelStart(), 3);
  EXPECT_EQ(e.SelLength(), 0);
}

}  // namespace
}  // namespace tessarine
