#include "platform/services/settings_store.h"

namespace services {

std::string MemorySettings::GetSetting(const std::string& application, const std::string& section,
                                       const std::string& key) const {
    const auto found = values_.find({application, section, key});
    return found == values_.end() ? std::string() : found->second;
}

void MemorySettings::SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                                 const std::string& value) {
    values_[{application, section, key}] = value;
}

void MemorySettings::DeleteSetting(const std::string& application, const std::string& section) {
    std::erase_if(values_, [&](const auto& entry) {
        return std::get<0>(entry.first) == application && std::get<1>(entry.first) == section;
    });
}

} // namespace services
