#include "platform/jet/data_file.h"

#include "platform/jet/sql_functions.h"
#include "platform/jet/sql_name.h"

#include <cerrno>
#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace jet {

namespace fs = std::filesystem;

namespace {

/// "HBRG" in the header of every data file.
constexpr std::int64_t houseMark = 0x48425247;

constexpr std::string_view storageMagic{"SQLite format 3\0", 16};

void configure(sqlite3* storage, const services::Clock& clock) {
    sqlite3_extended_result_codes(storage, 1);
    sqlite3_db_config(storage, SQLITE_DBCONFIG_TRUSTED_SCHEMA, 0, nullptr);
    sqlite3_db_config(storage, SQLITE_DBCONFIG_DEFENSIVE, 1, nullptr);
    // Without it a changed parameter would mean a new plan, and a new plan is taken as the sign of a changed schema.
    sqlite3_db_config(storage, SQLITE_DBCONFIG_ENABLE_QPSG, 1, nullptr);
    sqlite3_db_config(storage, SQLITE_DBCONFIG_DQS_DML, 0, nullptr);
    sqlite3_db_config(storage, SQLITE_DBCONFIG_DQS_DDL, 0, nullptr);
    registerFunctions(storage, clock);
    run(storage, "PRAGMA temp_store=MEMORY");
}

std::string modeText(FileMode mode) {
    switch (mode) {
    case FileMode::ReadWrite:
        return "rw";
    case FileMode::ReadOnly:
        return "ro";
    case FileMode::Create:
        return "rwc";
    }
    return "ro";
}

bool plainInUri(char c) {
    const bool letter = (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z');
    return letter || (c >= '0' && c <= '9') || c == '/' || c == '.' || c == '-' || c == '_' || c == '~';
}

std::string firstBytes(const std::string& path, std::size_t count) {
    std::ifstream file(path, std::ios::binary);
    std::string bytes(count, '\0');
    file.read(bytes.data(), static_cast<std::streamsize>(count));
    bytes.resize(static_cast<std::size_t>(file.gcount()));
    return bytes;
}

bool isJetHeader(std::string_view bytes) {
    constexpr std::size_t nameOffset = 4;
    if (bytes.size() < nameOffset) return false;
    const std::string_view name = bytes.substr(nameOffset);
    return name.starts_with("Standard Jet DB") || name.starts_with("Standard ACE DB");
}

void flushToDisk(const std::string& path) {
    const int file = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (file < 0) return;
    ::fsync(file);
    ::close(file);
}

std::string folderOf(const std::string& path) { return fs::path(path).parent_path().string(); }

void requireFolder(const std::string& path) {
    std::error_code problem;
    if (!fs::is_directory(folderOf(path), problem)) raise(ErrorNumber::InvalidPath, path);
}

/// Gives the file its name without replacing one. Shares without hard links get the plain move.
void moveWithoutReplacing(const std::string& from, const std::string& to) {
    if (::link(from.c_str(), to.c_str()) == 0) {
        ::unlink(from.c_str());
        return;
    }
    if (errno == EEXIST) raise(ErrorNumber::FileExists, to);
    requireFreePath(to);
    if (::rename(from.c_str(), to.c_str()) != 0) raise(ErrorNumber::CannotOpen, to);
}

} // namespace

std::string absolutePath(const std::string& path) {
    std::error_code problem;
    const fs::path absolute = fs::absolute(path, problem);
    return problem ? path : absolute.lexically_normal().string();
}

std::string fileUri(const std::string& path, FileMode mode) {
    constexpr std::string_view digits = "0123456789ABCDEF";
    std::string uri = "file:";
    for (const char c : path) {
        if (plainInUri(c)) {
            uri += c;
            continue;
        }
        const auto byte = static_cast<unsigned char>(c);
        uri += '%';
        uri += digits[byte >> 4U];
        uri += digits[byte & 15U];
    }
    return uri + "?mode=" + modeText(mode);
}

void requireReadableFile(const std::string& path) {
    if (path.empty() || path.find('\0') != std::string::npos) raise(ErrorNumber::FileNotFound, "Kein Dateiname.");
    requireFolder(path);
    std::error_code problem;
    const fs::file_status status = fs::status(path, problem);
    if (status.type() == fs::file_type::not_found) raise(ErrorNumber::FileNotFound, path);
    if (status.type() == fs::file_type::directory) raise(ErrorNumber::CannotOpen, path + " ist ein Ordner.");
    if (status.type() != fs::file_type::regular) raise(ErrorNumber::CannotOpen, path + " ist keine Datei.");
    if (::eaccess(path.c_str(), R_OK) != 0) raise(ErrorNumber::CannotOpen, path + ": Keine Leseberechtigung.");
}

void requireFreePath(const std::string& path) {
    requireFolder(path);
    std::error_code problem;
    if (fs::symlink_status(path, problem).type() != fs::file_type::not_found) raise(ErrorNumber::FileExists, path);
}

StorageHandle openStorage(const std::string& path, FileMode mode, const services::Clock& clock) {
    sqlite3* opened = nullptr;
    const int access = mode == FileMode::ReadOnly ? SQLITE_OPEN_READONLY
                       : mode == FileMode::Create ? SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE
                                                  : SQLITE_OPEN_READWRITE;
    const int flags = access | SQLITE_OPEN_URI | SQLITE_OPEN_NOMUTEX;
    const int result = sqlite3_open_v2(fileUri(path, mode).c_str(), &opened, flags, nullptr);
    StorageHandle storage(opened);
    if (result != SQLITE_OK) raise(ErrorNumber::CannotOpen, path);
    configure(storage.get(), clock);
    return storage;
}

void markDataFile(sqlite3* storage) { run(storage, "PRAGMA application_id=" + std::to_string(houseMark)); }

void requireDataFile(sqlite3* storage, std::string_view schema, const std::string& path) {
    const std::string pragma = "PRAGMA " + jet::quoted(schema) + ".";
    // Reads the first page, and with it sees that the file is as long as its header says, to the page.
    const std::int64_t size = queryNumber(storage, pragma + "page_count") * queryNumber(storage, pragma + "page_size");
    if (queryNumber(storage, pragma + "application_id") != houseMark)
        raise(ErrorNumber::UnknownFormat, "Die Datei ist keine Datendatei des Programms.");
    std::error_code problem;
    if (fs::file_size(path, problem) < static_cast<std::uintmax_t>(size)) raise(ErrorNumber::Corrupt);
    if (queryText(storage, pragma + "journal_mode") == "wal") run(storage, pragma + "journal_mode=DELETE");
    run(storage, pragma + "cache_size=-16000");
}

void raiseForeignFile(const std::string& path) {
    const std::string bytes = firstBytes(path, 32);
    if (isJetHeader(bytes))
        raise(ErrorNumber::UnknownFormat,
              path + " ist eine Datendatei der Jet-Engine und muss zuerst importiert werden.");
    if (!bytes.empty() && bytes.starts_with(storageMagic)) raise(ErrorNumber::Corrupt, path);
    raise(ErrorNumber::UnknownFormat, path + " ist keine Datendatei des Programms.");
}

UnfinishedFile::UnfinishedFile(const std::string& target)
    : path_(target + "." + std::to_string(::getpid()) + ".neu"), target_(target) {
    requireFreePath(target);
    std::error_code problem;
    fs::remove(path_, problem);
}

UnfinishedFile::~UnfinishedFile() {
    std::error_code problem;
    for (const char* suffix : {"", "-journal"})
        fs::remove(path_ + suffix, problem);
}

void UnfinishedFile::publish() {
    flushToDisk(path_);
    moveWithoutReplacing(path_, target_);
    flushToDisk(folderOf(target_));
}

} // namespace jet
