#pragma once

#include "start/global_state.h"
#include "store/database_files.h"
#include "support/scripted_windows.h"
#include "support/test_start.h"

#include <filesystem>
#include <string>
#include <vector>

namespace support {

/// A user who agrees to everything and remembers what he was told.
class AgreeingDialogs final : public services::Dialogs {
public:
    services::MsgResult MsgBox(const std::string& text, services::MsgStyle style,
                               const std::string& /*title*/) override {
        told.push_back(text);
        return services::resultsOf(style.buttons).front();
    }
    std::optional<std::string> InputBox(const std::string& /*prompt*/, const std::string& /*title*/,
                                        const std::string& vorgabe) override {
        return vorgabe;
    }
    std::optional<std::string> chooseFile(const services::FileRequest& /*request*/) override { return {}; }
    std::optional<std::string> chooseFolder(const std::string& /*title*/, const std::string& /*start*/) override {
        return {};
    }
    std::optional<int> chooseColour(int start) override { return start; }

    std::vector<std::string> told;
};

/// One of several workstations of a house: a program folder and a link file of its own, the house's files elsewhere.
struct Workstation : TestRun<AgreeingDialogs> {
    /// In a folder of its own; `linkFile` is the house's, which no process may have open while it is copied.
    Workstation(const TempFolder& folder, const std::string& linkFile) : TestRun(folder.path().string()) {
        std::filesystem::copy_file(linkFile, folder.file("Lokal.mdb"));
        g.dbHaupt = workspace.OpenDatabase(folder.file("Lokal.mdb"), false, false, store::openConnect());
    }
};

} // namespace support
