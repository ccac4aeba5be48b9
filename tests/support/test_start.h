#pragma once

#include "start/global_state.h"
#include "store/new_house.h"
#include "support/scripted_dialogs.h"
#include "support/scripted_windows.h"
#include "support/temp_folder.h"

#include <filesystem>
#include <string>

namespace support {

struct NoShell final : services::Shell {
    [[nodiscard]] bool open(const std::string& /*target*/) override { return false; }
    [[nodiscard]] bool start(const std::string& /*program*/, const std::vector<std::string>& /*arguments*/) override {
        return false;
    }
};

struct OneUser final : services::User {
    [[nodiscard]] std::string NameDesUsers() const override { return "rezeption"; }
};

/// What a run needs besides its files. Its clock stands at 15.06.2026 10:30.
template <typename TestDialogs>
struct TestRun {
    explicit TestRun(std::string programmordner)
        : g{.dialogs = dialogs,
            .settings = settings,
            .shell = shell,
            .user = user,
            .clock = clock,
            .windows = windows,
            .wsHaupt = workspace,
            .instanz = {0, std::move(programmordner)}} {}

    TestDialogs dialogs;
    ScriptedWindows windows;
    services::MemorySettings settings;
    NoShell shell;
    OneUser user;
    services::FixedClock clock{basic::Date::fromYmdHms(2026, 6, 15, 10, 30, 0)};
    jet::Workspace workspace{clock};
    start::GlobalState g;
};

struct OwnFolder {
    TempFolder ordner{TempFolder::Place::Memory};
};

/// A workstation that is about to start: a program folder, settings that no start has written yet, and a user whose
/// answers the test scripts.
struct TestStart : OwnFolder, TestRun<ScriptedDialogs> {
    TestStart() : TestRun(ordner.path().string()) {}

    [[nodiscard]] std::string file(std::string_view name) const { return ordner.file(name); }
    [[nodiscard]] std::string setting(const std::string& key) const {
        return settings.GetSetting("Logiswerk", "Startup", key);
    }
    void set(const std::string& key, const std::string& value) {
        settings.SaveSetting("Logiswerk", "Startup", key, value);
    }
    /// A new house in a folder below the program folder, or in it.
    void house(std::string_view folder = ".") {
        store::NewHouse house;
        house.Ordner = folder == "." ? ordner.path().string() : file(folder);
        house.Jetzt = clock.now();
        house.beispieldatei = false;
        house.postleitzahlen = false;
        store::createHouse(workspace, house);
        std::filesystem::remove(store::joinPath(house.Ordner, "Beispiel.mdb")); // the start makes a filled one
    }
    [[nodiscard]] jet::Database open(const std::string& path) const {
        return workspace.OpenDatabase(path, false, false, store::openConnect());
    }
};

} // namespace support
