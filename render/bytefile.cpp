#include "bytefile.h"

#include "filereplace.h"

#include <filesystem>
#include <fstream>
#include <new>

bool ReadFileBytes(const std::string& path, std::vector<uint8_t>& bytes) {
    std::error_code error;
    if (!std::filesystem::is_regular_file(path, error))
        return false;
    const std::uintmax_t size = std::filesystem::file_size(path, error);
    if (error || size > kMaxReadableFileBytes)
        return false;
    std::ifstream in(path, std::ios::binary);
    if (!in)
        return false;
    try {
        bytes.resize(static_cast<std::size_t>(size));
    } catch (const std::bad_alloc&) {
        return false;
    }
    in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    // A file that shrank while it was read keeps only what was there.
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return !in.bad();
}

bool WriteFileBytes(const std::string& path, const std::vector<uint8_t>& bytes) {
    std::string problem;
    return ReplaceFileContents(path, bytes, problem);
}
