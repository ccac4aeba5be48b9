#include "store/database_files.h"

#include "platform/basic/text.h"

#include <algorithm>
#include <filesystem>

namespace store {

namespace {

std::string instanceName(std::string_view stem, int instance) {
    std::string name(stem);
    if (instance > 0) {
        name.pop_back();
        name += std::to_string(instance);
    }
    return name + ".mdb";
}

} // namespace

FileNames fileNames(int instance) {
    return {instanceName("Zentral", instance), instanceName("Herbergo", instance), instanceName("Beispiel", instance),
            instanceName("Lokal", instance)};
}

std::string joinPath(std::string_view folder, std::string_view name) {
    return (std::filesystem::path(folder) / std::filesystem::path(name)).string();
}

std::string openConnect() { return ";PWD=" + std::string(kPassword); }

std::string linkConnect(std::string_view file) { return ";DATABASE=" + std::string(file) + openConnect(); }

std::string linkedFileName(std::string_view connect) {
    constexpr std::string_view kKey = "DATABASE=";
    for (const std::string& part : basic::Split(connect, ";"))
        if (basic::equalText(part.substr(0, kKey.size()), kKey))
            return part.substr(std::max(part.find_last_of("/\\") + 1, kKey.size()));
    return {};
}

} // namespace store
