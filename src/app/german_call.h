#pragma once

#include <CLI/CLI.hpp>

namespace app {

/// German words in the help of a program.
inline void makeGerman(CLI::App& app) {
    app.option_defaults()->group("Optionen");
    app.set_help_flag("--help,-h", "Zeigt diese Hilfe")->group("Optionen");
    const auto formatter = app.get_formatter();
    formatter->label("Usage", "Aufruf");
    formatter->label("OPTIONS", "OPTIONEN");
    formatter->label("Positionals", "Argumente");
    formatter->label("REQUIRED", "(notwendig)");
    formatter->label("TEXT", "");
}

} // namespace app
