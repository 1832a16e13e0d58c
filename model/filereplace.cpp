#include "filereplace.h"

#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

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

} // namespace

bool ReplaceFileContents(const std::string& path, const void* data, size_t size,
                         std::string& error) {
    std::string temp = path + ".saving-XXXXXX";
    const int fd = mkstemp(temp.data());
    const auto fail = [&](int fault) {
        error = "cannot write " + path + ": " + std::strerror(fault);
        return false;
    };
    if (fd < 0)
        return fail(errno);

    struct stat old {};
    const mode_t mode = stat(path.c_str(), &old) == 0 ? (old.st_mode & 07777) : NewFileMode();
    const bool written = fchmod(fd, mode) == 0 &&
                         WriteAll(fd, static_cast<const char*>(data), size) && fsync(fd) == 0;
    const int writeFault = errno;
    const bool closed = close(fd) == 0;
    const int closeFault = errno;
    if (!written || !closed) {
        unlink(temp.c_str());
        return fail(!written ? writeFault : closeFault);
    }
    if (rename(temp.c_str(), path.c_str()) != 0) {
        const int renameFault = errno;
        unlink(temp.c_str());
        return fail(renameFault);
    }
    return true;
}

bool ReplaceFileContents(const std::string& path, const std::vector<uint8_t>& bytes,
                         std::string& error) {
    return ReplaceFileContents(path, bytes.data(), bytes.size(), error);
}

bool ReplaceFileContents(const std::string& path, const std::string& text, std::string& error) {
    return ReplaceFileContents(path, text.data(), text.size(), error);
}
