#pragma once

#include "addresses/address_list.h"
#include "start/global_state.h"
#include "store/database_files.h"
#include "support/house.h"
#include "support/no_windows.h"

#include <stdexcept>
#include <string>

namespace bench {

/// Nobody is asked while something is measured: whoever asks has found what the measurement did not mean.
class NoDialogs final : public services::Dialogs {
public:
    services::MsgResult MsgBox(const std::string& text, services::MsgStyle /*style*/,
                               const std::string& /*title*/) override {
        throw std::runtime_error(text);
    }
    std::optional<std::string> InputBox(const std::string& prompt, const std::string& /*title*/,
                                        const std::string& /*vorgabe*/) override {
        throw std::runtime_error(prompt);
    }
    std::optional<std::string> chooseFile(const services::FileRequest& /*request*/) override { return {}; }
    std::optional<std::string> chooseFolder(const std::string& /*title*/, const std::string& /*start*/) override {
        return {};
    }
    std::optional<int> chooseColour(int start) override { return start; }
};

struct NoShell final : services::Shell {
    bool open(const std::string& /*target*/) override { return false; }
    bool start(const std::string& /*program*/, const std::vector<std::string>& /*arguments*/) override { return false; }
};

struct OneUser final : services::User {
    [[nodiscard]] std::string NameDesUsers() const override { return "Empfang"; }
};

/// A workstation on a house: what a form needs.
struct Desk {
    explicit Desk(const std::string& folder)
        : g{.dialogs = dialogs,
            .settings = settings,
            .shell = shell,
            .user = user,
            .clock = clock,
            .windows = windows,
            .wsHaupt = workspace,
            .instanz = {0, folder}},
          guests(g.dbHaupt) {
        g.dbHaupt = workspace.OpenDatabase(folder + "/Lokal.mdb", false, false, store::openConnect());
    }

    NoDialogs dialogs;
    NoWindows windows;
    services::MemorySettings settings;
    NoShell shell;
    OneUser user;
    services::FixedClock clock{today()};
    jet::Workspace workspace{clock};
    start::GlobalState g;
    addresses::Adressliste guests;
};

} // namespace bench
