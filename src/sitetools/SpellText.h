#pragma once
// Which words of a page are given to the spell engine: the text between tags. Tags with
// their names, attributes and values, comments, entities, and the contents of SCRIPT and
// STYLE blocks are never offered as misspellings.

#include <cstdint>
#include <string>
#include <string_view>

namespace tessarine {

struct WordSpan {
  std::size_t start = 0;
  std::size_t length = 0;
};

// Walks the words of `text` from `from`. The text is taken as starting at a tag
// boundary: a stretch that opens inside a tag treats its head as text.
class WordWalker {
 public:
  explicit WordWalker(std::string_view text, std::size_t from = 0) : text_(text), at_(from) {}
  // The next word, or false at the end.
  bool Next(WordSpan& word);
  // After a replacement: the new text, and where the walk goes on in it.
  void Adjust(std::string_view newText, std::size_t resumeAt) {
    text_ = newText;
    at_ = resumeAt;
  }

 private:
  void SkipMarkup();
  std::string_view text_;
  std::size_t at_;
};

// True when the word has a letter (numbers are not offered).
bool HasLetter(std::string_view word);

}  // namespace tessarine
