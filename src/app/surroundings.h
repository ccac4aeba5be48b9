#pragma once

#include "plan/surroundings.h"
#include "start/global_state.h"

#include <functional>

namespace app {

/// What the plan window reaches. `close` closes the plan window: the program then ends, or loads the plan anew where
/// the state says so. The state must outlive the window.
[[nodiscard]] plan::Umgebung surroundings(start::GlobalState& g, std::function<void()> close);

} // namespace app
