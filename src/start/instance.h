#pragma once

#include "store/database_files.h"

#include <string>
#include <string_view>

namespace start {

/// Names of the settings keys of one installation.
struct Schlüssel {
    std::string Zentral;
    std::string Pfad;
    std::string BeispielPfad;
    std::string LokalDB;
    std::string Excel; ///< the backup's target; existing installations have it under this odd name
};

/// Which of the installations side by side on this workstation runs, and where.
struct Instanz {
    int Nummer = 0;     ///< 0 is the main program; 1 and 2 have data of their own
    std::string Ordner; ///< the program folder, without a separator at its end

    [[nodiscard]] bool istHauptprogramm() const { return Nummer == 0; }
    [[nodiscard]] store::FileNames Namen() const { return store::fileNames(Nummer); }
    [[nodiscard]] std::string Datei(std::string_view name) const { return store::joinPath(Ordner, name); }
};

inline constexpr int kHöchsteInstanz = 2;

[[nodiscard]] Schlüssel schlüssel(int nummer);
/// The key of the address choice; the main program has none and ignores it.
[[nodiscard]] std::string instanzSchlüssel(int nummer);

/// The leading digits of a program's file name; 0 without any. May be beyond what is accepted.
[[nodiscard]] int instanznummer(std::string_view dateiname);

/// Full path of the running program as it was called, symbolic links not followed: a link to the program in another
/// folder makes that folder the program folder. A name without a folder is looked for along `suchpfad` (the variable
/// PATH), then in the current folder.
[[nodiscard]] std::string programmpfad(const std::string& aufruf, std::string_view suchpfad);

/// The installation that a program path tells.
[[nodiscard]] Instanz instanzVon(const std::string& programmpfad);

} // namespace start
