#include "platform/BufferEdit.h"
#include "support/EditConformance.h"

namespace tessarine {
namespace {

struct BufferEditFactory {
  using Control = BufferEdit;
  static std::unique_ptr<BufferEdit> Make() { return std::make_unique<BufferEdit>(); }
  static void Type(BufferEdit& e, std::string_view text) { e.Type(text); }
};

INSTANTIATE_TYPED_TEST_SUITE_P(BufferEdit, EditConformance, BufferEditFactory);

}  // namespace
}  // namespace tessarine
