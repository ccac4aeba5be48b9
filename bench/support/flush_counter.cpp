#include "support/flush_counter.h"

namespace bench {

namespace {

/// The file that SQLite sees; the real one lies right behind it in the same block.
struct CountedFile {
    sqlite3_file base;
    FlushCounter* counter;
};

sqlite3_file* realFile(sqlite3_file* file) {
    return reinterpret_cast<sqlite3_file*>(reinterpret_cast<CountedFile*>(file) + 1);
}

int closeFile(sqlite3_file* file) { return realFile(file)->pMethods->xClose(realFile(file)); }
int readFile(sqlite3_file* file, void* data, int size, sqlite3_int64 at) {
    return realFile(file)->pMethods->xRead(realFile(file), data, size, at);
}
int writeFile(sqlite3_file* file, const void* data, int size, sqlite3_int64 at) {
    return realFile(file)->pMethods->xWrite(realFile(file), data, size, at);
}
int truncateFile(sqlite3_file* file, sqlite3_int64 size) {
    return realFile(file)->pMethods->xTruncate(realFile(file), size);
}
int flushFile(sqlite3_file* file, int flags) {
    reinterpret_cast<CountedFile*>(file)->counter->add();
    return realFile(file)->pMethods->xSync(realFile(file), flags);
}
int fileSize(sqlite3_file* file, sqlite3_int64* size) {
    return realFile(file)->pMethods->xFileSize(realFile(file), size);
}
int lockFile(sqlite3_file* file, int lock) { return realFile(file)->pMethods->xLock(realFile(file), lock); }
int unlockFile(sqlite3_file* file, int lock) { return realFile(file)->pMethods->xUnlock(realFile(file), lock); }
int isReserved(sqlite3_file* file, int* result) {
    return realFile(file)->pMethods->xCheckReservedLock(realFile(file), result);
}
int controlFile(sqlite3_file* file, int operation, void* argument) {
    return realFile(file)->pMethods->xFileControl(realFile(file), operation, argument);
}
int sectorSize(sqlite3_file* file) { return realFile(file)->pMethods->xSectorSize(realFile(file)); }
int deviceCharacteristics(sqlite3_file* file) {
    return realFile(file)->pMethods->xDeviceCharacteristics(realFile(file));
}

constexpr sqlite3_io_methods countedMethods = {
    .iVersion = 1,
    .xClose = closeFile,
    .xRead = readFile,
    .xWrite = writeFile,
    .xTruncate = truncateFile,
    .xSync = flushFile,
    .xFileSize = fileSize,
    .xLock = lockFile,
    .xUnlock = unlockFile,
    .xCheckReservedLock = isReserved,
    .xFileControl = controlFile,
    .xSectorSize = sectorSize,
    .xDeviceCharacteristics = deviceCharacteristics,
    .xShmMap = nullptr,
    .xShmLock = nullptr,
    .xShmBarrier = nullptr,
    .xShmUnmap = nullptr,
    .xFetch = nullptr,
    .xUnfetch = nullptr,
};

sqlite3_vfs* realVfs() { return sqlite3_vfs_find("unix"); }

int openFile(sqlite3_vfs* vfs, const char* name, sqlite3_file* file, int flags, int* outFlags) {
    reinterpret_cast<CountedFile*>(file)->counter = static_cast<FlushCounter*>(vfs->pAppData);
    sqlite3_file* real = realFile(file);
    const int result = realVfs()->xOpen(realVfs(), name, real, flags, outFlags);
    file->pMethods = real->pMethods != nullptr ? &countedMethods : nullptr;
    return result;
}

// The flush of a folder after a journal is deleted is not an xSync of a file; it is the same on both sides.
int deleteFile(sqlite3_vfs* /*vfs*/, const char* name, int syncFolder) {
    return realVfs()->xDelete(realVfs(), name, syncFolder);
}
int accessFile(sqlite3_vfs* /*vfs*/, const char* name, int flags, int* result) {
    return realVfs()->xAccess(realVfs(), name, flags, result);
}
int fullPathname(sqlite3_vfs* /*vfs*/, const char* name, int size, char* result) {
    return realVfs()->xFullPathname(realVfs(), name, size, result);
}

} // namespace

FlushCounter::FlushCounter() : vfs_(*realVfs()) {
    vfs_.zName = "counted";
    vfs_.pNext = nullptr;
    vfs_.pAppData = this;
    vfs_.szOsFile = static_cast<int>(sizeof(CountedFile)) + realVfs()->szOsFile;
    vfs_.xOpen = openFile;
    vfs_.xDelete = deleteFile;
    vfs_.xAccess = accessFile;
    vfs_.xFullPathname = fullPathname;
    sqlite3_vfs_register(&vfs_, 1);
}

FlushCounter::~FlushCounter() { sqlite3_vfs_unregister(&vfs_); }

} // namespace bench
