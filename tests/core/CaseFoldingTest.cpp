// Upper-casing and searching without regard to case, eight bytes at a step, against the
// plain byte-by-byte definitions on random bytes, every alignment and length included.

#include <gtest/gtest.h>

#include <random>
#include <string>

#include "core/TextServices.h"

namespace tessarine {
namespace {

std::string UpperByteByByte(const std::string& s) {
  std::string out = s;
  for (char& c : out)
    if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
  return out;
}

TEST(CaseFolding, UpperCaseAndSearchAgreeWithTheByteByByteDefinitions) {
  // Letters, their neighbours in the table, and bytes past ASCII whose low bits look like them.
  const std::string alphabet = std::string("aAzZ`{@[mM <>") + "\xe1\xc1\xfa\xda\x80\xff";
  std::mt19937 random(11);
  auto text = [&](std::size_t length) {
    std::string s;
    for (std::size_t i = 0; i < length; ++i) s += alphabet[random() % alphabet.size()];
    return s;
  };
  for (int round = 0; round < 20000; ++round) {
    const std::string hay = text(random() % 40);
    ASSERT_EQ(UCase(hay), UpperByteByByte(hay));
    const std::string needle = text(random() % 4);
    const std::size_t from = random() % (hay.size() + 2);
    const std::size_t expected = from > hay.size()
                                     ? std::string::npos
                                     : UpperByteByByte(hay).find(UpperByteByByte(needle), from);
    ASSERT_EQ(FindNoCase(hay, needle, from), expected)
        << "[" << hay << "] [" << needle << "] from " << from;
    ASSERT_EQ(EqualsNoCase(hay, needle), UpperByteByByte(hay) == UpperByteByByte(needle));
  }
  EXPECT_EQ(FindNoCase(std::string_view(), "<STYLE"), std::string::npos);
}

}  // namespace
}  // namespace tessarine
