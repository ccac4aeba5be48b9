#include "start/instance.h"

#include "platform/basic/convert.h"
#include "platform/basic/text.h"
#include "platform/basic/utf8.h"

#include <unistd.h>

#include <algorithm>
#include <filesystem>

namespace start {

namespace {

namespace fs = std::filesystem;

std::string instanzName(std::string_view stamm, int nummer) {
    std::string name(stamm);
    if (nummer == 0) return name;
    name.pop_back();
    return name + std::to_string(nummer);
}

bool ausführbar(const fs::path& path) {
    std::error_code unreadable;
    return fs::is_regular_file(path, unreadable) && access(path.c_str(), X_OK) == 0;
}

} // namespace

Schlüssel schlüssel(int nummer) {
    // The local file's key changes its first letter too: existing installations have it so.
    return {instanzName("Zentral", nummer), instanzName("Pfad", nummer), instanzName("BeispielPfad", nummer),
            nummer == 0 ? "LokalDB" : "lokalD" + std::to_string(nummer), instanzName("Excel", nummer)};
}

std::string instanzSchlüssel(int nummer) { return "Instanz" + std::to_string(nummer); }

int instanznummer(std::string_view dateiname) {
    const auto ende = std::ranges::find_if_not(dateiname, basic::isDigit);
    const std::string_view ziffern(dateiname.begin(), ende);
    constexpr double vielZuHoch = 1000;
    return static_cast<int>(std::min(basic::Val(ziffern), vielZuHoch));
}

std::string programmpfad(const std::string& aufruf, std::string_view suchpfad) {
    std::error_code unreadable;
    const auto absolut = [&](const fs::path& path) {
        return fs::absolute(path, unreadable).lexically_normal().string();
    };
    if (aufruf.find('/') != std::string::npos) return absolut(aufruf);
    for (const std::string& ordner : basic::Split(suchpfad, ":"))
        if (const fs::path kandidat = fs::path(ordner.empty() ? "." : ordner) / aufruf; ausführbar(kandidat))
            return absolut(kandidat);
    return absolut(aufruf);
}

Instanz instanzVon(const std::string& programmpfad) {
    const fs::path path(programmpfad);
    return {instanznummer(path.stem().string()), path.parent_path().string()};
}

} // namespace start
