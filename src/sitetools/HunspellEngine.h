#pragma once
// The spell engine over Hunspell: a system dictionary and the user's own word list
// (custom.dic, one word a line), which Add appends to.

#include <memory>
#include <string>
#include <vector>

#include "platform/SpellEngine.h"

class Hunspell;

namespace tessarine {

// The folders the system's dictionaries are looked for in.
std::vector<std::string> DictionaryFolders();
// The languages installed there ("en_US", ...), each with its .aff and .dic, sorted.
std::vector<std::string> InstalledDictionaries(const std::vector<std::string>& folders);
// The language to use: `wanted` when installed, else en_US, else the first installed;
// empty when there is none.
std::string ChooseDictionary(const std::vector<std::string>& installed, const std::string& wanted);

class HunspellSpellEngine : public SpellEngine {
 public:
  ~HunspellSpellEngine() override;
  // Nothing, with `error` set to a message for the user, when the dictionary is missing.
  static std::unique_ptr<HunspellSpellEngine> Open(const std::string& language,
                                                   const std::vector<std::string>& folders,
                                                   const std::string& customDictionary,
                                                   std::string& error);

  // Words are the document's bytes: UTF-8, or a single-byte (Windows-1252) text.
  bool Check(const std::string& word) const override;
  std::vector<std::string> Suggest(const std::string& word) const override;
  void AddWord(const std::string& word) override;
  const std::string& Language() const { return language_; }

 private:
  HunspellSpellEngine() = default;
  std::string ToDictionary(const std::string& word) const;
  std::unique_ptr<Hunspell> hunspell_;
  std::string language_;
  std::string customDictionary_;
  bool utf8Dictionary_ = true;
};

}  // namespace tessarine
