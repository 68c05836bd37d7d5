#pragma once
// The spell engine: a plain class the spelling dialog is given.

#include <set>
#include <string>
#include <vector>

namespace tessarine {

class SpellEngine {
 public:
  virtual ~SpellEngine() = default;
  virtual bool Check(const std::string& word) const = 0;
  virtual std::vector<std::string> Suggest(const std::string& word) const = 0;
  // Adds to the user's own dictionary.
  virtual void AddWord(const std::string& word) = 0;
};

// Headless: a word list; suggestions are the known words one edit away.
class WordListSpellEngine : public SpellEngine {
 public:
  explicit WordListSpellEngine(std::set<std::string> words = {}) : words_(std::move(words)) {}
  bool Check(const std::string& word) const override { return words_.count(word) != 0; }
  std::vector<std::string> Suggest(const std::string& word) const override;
  void AddWord(const std::string& word) override { words_.insert(word); }

 private:
  std::set<std::string> words_;
};

}  // namespace tessarine
