#pragma once
// The per-user store of text values under the application name "Tessarine", addressed by
// section and key. Every read carries its own default.

#include <map>
#include <string>
#include <utility>

namespace tessarine {

class SettingsStore {
 public:
  virtual ~SettingsStore() = default;
  virtual std::string GetSetting(const std::string& section, const std::string& key,
                                 const std::string& defaultValue) const = 0;
  virtual void SaveSetting(const std::string& section, const std::string& key,
                           const std::string& value) = 0;
  virtual void DeleteSetting(const std::string& section, const std::string& key) = 0;
};

// Headless store, kept in memory.
class MemorySettingsStore : public SettingsStore {
 public:
  std::string GetSetting(const std::string& section, const std::string& key,
                         const std::string& defaultValue) const override;
  void SaveSetting(const std::string& section, const std::string& key,
                   const std::string& value) override;
  void DeleteSetting(const std::string& section, const std::string& key) override;
  bool Has(const std::string& section, const std::string& key) const;

 private:
  std::map<std::pair<std::string, std::string>, std::string> values_;
};

}  // namespace tessarine
