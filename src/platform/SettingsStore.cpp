#include "platform/SettingsStore.h"

namespace tessarine {

std::string MemorySettingsStore::GetSetting(const std::string& section, const std::string& key,
                                            const std::string& defaultValue) const {
  const auto it = values_.find({section, key});
  return it == values_.end() ? defaultValue : it->second;
}

void MemorySettingsStore::SaveSetting(const std::string& section, const std::string& key,
                                      const std::string& value) {
  values_[{section, key}] = value;
}

void MemorySettingsStore::DeleteSetting(const std::string& section, const std::string& key) {
  values_.erase({section, key});
}

bool MemorySettingsStore::Has(const std::string& section, const std::string& key) const {
  return values_.count({section, key}) != 0;
}

}  // namespace tessarine
