#pragma once

#include "start/global_state.h"

#include <functional>
#include <string>

namespace start {

enum class Weg { Plan, Ende };

/// What floors above do in the course of the start; empty where there is nothing yet.
struct Startschritte {
    /// Tidies the folder of the backups, whose key holds this path.
    std::function<void(const std::string& sicherung)> SicherungsordnerAufräumen;
};

/// From the program's name to the point where the plan window is loaded: which installation runs, where its databases
/// are, whether the links to them work. Asks the user where they do not. Plan: the settings keys are all written.
[[nodiscard]] Weg Main(GlobalState& g, const Startschritte& schritte = {});

/// Is this the right file of its kind?
[[nodiscard]] bool istZentral(const GlobalState& g, const std::string& pfad);
[[nodiscard]] bool istQuelle(const GlobalState& g, const std::string& pfad);

} // namespace start
