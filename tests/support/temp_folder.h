#pragma once

#include <cstdlib>
#include <filesystem>
#include <stdexcept>
#include <string>

namespace support {

/// A folder of its own for one test, gone with all that is in it when the test ends.
class TempFolder {
public:
    /// Memory: where nothing waits for a disk, if the machine has such a place with room enough.
    enum class Place { Disk, Memory };

    explicit TempFolder(Place place = Place::Disk) {
        std::string pattern = (folderFor(place) / "herbergo-XXXXXX").string();
        if (mkdtemp(pattern.data()) == nullptr) throw std::runtime_error("no temporary folder");
        path_ = pattern;
    }
    TempFolder(const TempFolder&) = delete;
    TempFolder& operator=(const TempFolder&) = delete;
    ~TempFolder() {
        std::error_code ignored;
        std::filesystem::remove_all(path_, ignored);
    }

    [[nodiscard]] const std::filesystem::path& path() const { return path_; }
    /// Path of a file in it, whether it is there or not.
    [[nodiscard]] std::string file(std::string_view name) const { return (path_ / name).string(); }

private:
    static std::filesystem::path folderFor(Place place) {
        constexpr std::uintmax_t enough = 64U << 20U;
        const std::filesystem::path memory = "/dev/shm";
        std::error_code missing;
        const std::filesystem::space_info space = std::filesystem::space(memory, missing);
        const bool usable = place == Place::Memory && !missing && space.available >= enough;
        return usable ? memory : std::filesystem::temp_directory_path();
    }

    std::filesystem::path path_;
};

} // namespace support
