#pragma once

#include <string>
#include <string_view>

namespace store {

/// All data files carry it. It is never shown.
inline constexpr std::string_view kPassword = "4x926h31";

/// Postal codes and ready-made holidays; the same file for all instances.
inline constexpr std::string_view kHolidayFile = "Feiertag.mdb";

/// File names of one installation, without folders.
struct FileNames {
    std::string Zentral;  ///< shared data: stays, addresses and what hangs on them
    std::string Herbergo; ///< source data: rooms, settings, lists
    std::string Beispiel; ///< sample data and the records of one workstation
    std::string Lokal;    ///< the links to the first two; the file that a run opens
};

/// Instance 0 is the main program; 1 and 2 put their number in the place of the last letter ("Zentra1.mdb").
[[nodiscard]] FileNames fileNames(int instance = 0);

/// Folder and name with the platform's separator between them.
[[nodiscard]] std::string joinPath(std::string_view folder, std::string_view name);

/// What opens a data file: ";PWD=...".
[[nodiscard]] std::string openConnect();
/// What a link to a table of `file` carries: ";DATABASE=file;PWD=...".
[[nodiscard]] std::string linkConnect(std::string_view file);
/// The name, without folder, of the file that a link leads to. Both separators count, whatever the platform: link files
/// travel. Empty when the text names no file.
[[nodiscard]] std::string linkedFileName(std::string_view connect);

} // namespace store
