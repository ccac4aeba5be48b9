#pragma once

#include <map>
#include <string>
#include <tuple>

namespace services {

/// The settings of one workstation's user, outside all data files: texts by application, section and key. Case of a
/// name is kept and counts.
class SettingsStore {
public:
    virtual ~SettingsStore() = default;

    /// Empty when there is no such key.
    [[nodiscard]] virtual std::string GetSetting(const std::string& application, const std::string& section,
                                                 const std::string& key) const = 0;
    /// Where the store cannot be written, the value holds for this run.
    virtual void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                             const std::string& value) = 0;
    /// Deletes the whole section; nothing happens when there is none.
    virtual void DeleteSetting(const std::string& application, const std::string& section) = 0;
};

/// Settings that live as long as the object.
class MemorySettings final : public SettingsStore {
public:
    [[nodiscard]] std::string GetSetting(const std::string& application, const std::string& section,
                                         const std::string& key) const override;
    void SaveSetting(const std::string& application, const std::string& section, const std::string& key,
                     const std::string& value) override;
    void DeleteSetting(const std::string& application, const std::string& section) override;

private:
    std::map<std::tuple<std::string, std::string, std::string>, std::string> values_;
};

} // namespace services
