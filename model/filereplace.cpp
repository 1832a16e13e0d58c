#include "filereplace.h"

#include "foldersearch.h"

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <dirent.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

constexpr const char* kTemporaryMark = ".saving-";
constexpr const char* kTemporaryPattern = "XXXXXX";
constexpr int kLinkAttempts = 100;

// The mode a new file gets: readable and writable as the user's file creation mask allows.
mode_t NewFileMode() {
    const mode_t mask = umask(0);
    umask(mask);
    return static_cast<mode_t>(0666 & ~mask);
}

bool WriteAll(int fd, const char* data, size_t size) {
    while (size > 0) {
        const ssize_t written = write(fd, data, size);
        if (written < 0 && errno == EINTR)
            continue;
        if (written <= 0) {
            if (written == 0)
                errno = EIO;
            return false;
        }
        data += written;
        size -= static_cast<size_t>(written);
    }
    return true;
}

// The start of every temporary name a save of `path` uses: "folder/.NAME.saving-". The dot
// hides it from the user's folder listing.
std::string TemporaryStart(const std::string& path) {
    const std::string folder = FolderPart(path);
    return folder + "." + path.substr(folder.size()) + kTemporaryMark;
}

// A save killed between naming its temporary file and renaming it leaves that hidden file
// behind; the next save of the same file removes it.
void RemoveLeftovers(const std::string& path) {
    const std::string start = TemporaryStart(path);
    const std::string folder = FolderPart(path);
    const std::string bareStart = start.substr(folder.size());
    DIR* dir = opendir(folder.empty() ? "." : folder.c_str());
    if (dir == nullptr)
        return;
    while (const dirent* entry = readdir(dir)) {
        if (std::strncmp(entry->d_name, bareStart.c_str(), bareStart.size()) == 0)
            unlink((folder + entry->d_name).c_str());
    }
    closedir(dir);
}

// Fills `fd` with the new contents in the mode the target has or would get.
bool FillTemporary(int fd, const std::string& path, const void* data, size_t size) {
    struct stat old {};
    const mode_t mode = stat(path.c_str(), &old) == 0 ? (old.st_mode & 07777) : NewFileMode();
    return fchmod(fd, mode) == 0 && WriteAll(fd, static_cast<const char*>(data), size) &&
           fsync(fd) == 0;
}

// Closes `fd`; on success renames `temp` over `path`. On any failure removes `temp` and returns
// the fault.
int CloseAndRename(int fd, bool filled, const std::string& temp, const std::string& path) {
    int fault = filled ? 0 : errno;
    if (close(fd) != 0 && fault == 0)
        fault = errno;
    if (fault == 0 && rename(temp.c_str(), path.c_str()) != 0)
        fault = errno;
    if (fault != 0)
        unlink(temp.c_str());
    return fault;
}

// Writes into a file without a name, so that nothing shows in the folder while it is written,
// then gives it a hidden name and renames that over the target. Returns -1 when the file system
// cannot make unnamed files, else the fault (0 on success).
int SaveThroughUnnamedFile(const std::string& path, const void* data, size_t size) {
#ifdef O_TMPFILE
    const std::string folder = FolderPart(path);
    const int fd = open(folder.empty() ? "." : folder.c_str(), O_TMPFILE | O_WRONLY, 0600);
    if (fd < 0)
        return -1;
    if (!FillTemporary(fd, path, data, size)) {
        const int fault = errno;
        close(fd);
        return fault;
    }
    const std::string self = "/proc/self/fd/" + std::to_string(fd);
    const std::string start = TemporaryStart(path) + std::to_string(getpid()) + "-";
    std::string temp;
    int linked = -1;
    for (int attempt = 0; attempt < kLinkAttempts && linked != 0; ++attempt) {
        temp = start + std::to_string(attempt);
        linked = linkat(AT_FDCWD, self.c_str(), AT_FDCWD, temp.c_str(), AT_SYMLINK_FOLLOW);
        if (linked != 0 && errno != EEXIST) {
            close(fd);
            return -1;
        }
    }
    if (linked != 0) {
        close(fd);
        return EEXIST;
    }
    return CloseAndRename(fd, true, temp, path);
#else
    (void)path;
    (void)data;
    (void)size;
    return -1;
#endif
}

// Writes under a hidden temporary name, then renames it over the target.
int SaveThroughHiddenFile(const std::string& path, const void* data, size_t size) {
    std::string temp = TemporaryStart(path) + kTemporaryPattern;
    const int fd = mkstemp(temp.data());
    if (fd < 0)
        return errno;
    const bool filled = FillTemporary(fd, path, data, size);
    return CloseAndRename(fd, filled, temp, path);
}

} // namespace

bool ReplaceFileContents(const std::string& path, const void* data, size_t size,
                         std::string& error) {
    RemoveLeftovers(path);
    int fault = SaveThroughUnnamedFile(path, data, size);
    if (fault < 0)
        fault = SaveThroughHiddenFile(path, data, size);
    if (fault == 0)
        return true;
    error = "cannot write " + path + ": " + std::strerror(fault);
    return false;
}

bool ReplaceFileContents(const std::string& path, const std::vector<uint8_t>& bytes,
                         std::string& error) {
    return ReplaceFileContents(path, bytes.data(), bytes.size(), error);
}

bool ReplaceFileContents(const std::string& path, const std::string& text, std::string& error) {
    return ReplaceFileContents(path, text.data(), text.size(), error);
}
