#pragma once

#include "platform/jet/storage.h"
#include "platform/services/clock.h"

#include <string>
#include <string_view>

/// Data files as files: what may be opened and how.
namespace jet {

enum class FileMode { ReadWrite, ReadOnly, Create };

/// Absolute, without "." and ".."; symbolic links stay.
[[nodiscard]] std::string absolutePath(const std::string& path);
/// The file for the storage's open and ATTACH. Never creates one but with FileMode::Create.
[[nodiscard]] std::string fileUri(const std::string& path, FileMode mode);

/// Raises 3044 (no such folder), 3024 (no such file), 3051 (a directory, no permission). Looks without opening.
void requireReadableFile(const std::string& path);
/// Raises 3044 when the folder is missing, 3204 when something is there already.
void requireFreePath(const std::string& path);

/// Opens the storage on a file with the settings of the house; says nothing yet about what is in it. The clock must
/// outlive it.
[[nodiscard]] StorageHandle openStorage(const std::string& path, FileMode mode, const services::Clock& clock);

/// The house's own mark in the file's header.
void markDataFile(sqlite3* storage);
/// Reads the header of an open file: raises 3343 when the house's mark is missing, 3049 when the file is damaged.
/// UnknownFormat from the storage means that the file is something else: see raiseForeignFile.
void requireDataFile(sqlite3* storage, std::string_view schema, const std::string& path);
/// Names what a file is that the storage did not know: a real Jet file (3343), a stump of a data file (3049), anything
/// else (3343). Opens the file: only after the storage has closed it, since closing a file by hand drops the process's
/// locks on it.
[[noreturn]] void raiseForeignFile(const std::string& path);

/// A file in the making beside its place: removed unless published.
class UnfinishedFile {
public:
    explicit UnfinishedFile(const std::string& target);
    UnfinishedFile(const UnfinishedFile&) = delete;
    UnfinishedFile& operator=(const UnfinishedFile&) = delete;
    ~UnfinishedFile();

    [[nodiscard]] const std::string& path() const { return path_; }
    /// Flushes it and gives it its name. Nobody may have it open. 3204 when something has come to lie there.
    void publish();

private:
    std::string path_;
    std::string target_;
};

} // namespace jet
