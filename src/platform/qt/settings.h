#pragma once

#include "platform/services/settings_store.h"

namespace qt {

/// One INI file for each application below the user's configuration folder (XDG_CONFIG_HOME, else ~/.config). What
/// cannot be written there is kept for the run.
class IniSettings final : public services::SettingsStore {
public:
    [[nodiscard]] std::string GetSetting(const std::string& application, const std::string& section,
                                         const std::string& key) const override;
    void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                     const std::string& value) override;
    void DeleteSetting(const std::string& application, const std::string& section) override;

private:
    services::MemorySettings unsaved_; ///< what the file did not take
};

} // namespace qt
