#pragma once
// Splits a fuzzer's bytes into small numbers and NUL-separated fields, so one input can
// carry a text, a needle and a few switches.

#include <cstddef>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string_view>

namespace tessarine::fuzz {

class FuzzInput {
 public:
  FuzzInput(const std::uint8_t* data, std::size_t size)
      : rest_(reinterpret_cast<const char*>(data), size) {}

  // The next byte, 0 once the input is used up.
  std::uint8_t Byte() {
    if (rest_.empty()) return 0;
    const auto b = static_cast<std::uint8_t>(rest_.front());
    rest_.remove_prefix(1);
    return b;
  }
  // Four bytes as a signed number, little end first: extreme values come easily.
  std::int32_t Int32() {
    std::uint32_t v = 0;
    for (int i = 0; i < 4; ++i) v |= static_cast<std::uint32_t>(Byte()) << (8 * i);
    return static_cast<std::int32_t>(v);
  }
  // Up to the next NUL (dropped), or the rest.
  std::string_view Field() {
    const std::size_t end = rest_.find('\0');
    const std::string_view field = rest_.substr(0, end);
    rest_.remove_prefix(end == std::string_view::npos ? rest_.size() : end + 1);
    return field;
  }
  std::string_view Rest() {
    const std::string_view all = rest_;
    rest_ = {};
    return all;
  }

 private:
  std::string_view rest_;
};

// A broken promise: libFuzzer keeps the input that led here.
#define FUZZ_CHECK(condition)                                                            \
  do {                                                                                   \
    if (!(condition)) {                                                                  \
      std::fprintf(stderr, "%s:%d: %s does not hold\n", __FILE__, __LINE__, #condition); \
      std::abort();                                                                      \
    }                                                                                    \
  } while (0)

}  // namespace tessarine::fuzz
