#include "bytefile.h"

#include <cstdio>
#include <filesystem>
#include <fstream>

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
    bytes.resize(static_cast<std::size_t>(size));
    in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    // A file that shrank while it was read keeps only what was there.
    bytes.resize(static_cast<std::size_t>(in.gcount()));
    return !in.bad();
}

bool WriteFileBytes(const std::string& path, const std::vector<uint8_t>& bytes) {
    const std::string temporary = path + ".tmp";
    {
        std::ofstream out(temporary, std::ios::binary | std::ios::trunc);
        if (!out)
            return false;
        out.write(reinterpret_cast<const char*>(bytes.data()),
                  static_cast<std::streamsize>(bytes.size()));
        out.close();
        if (!out) {
            std::remove(temporary.c_str());
            return false;
        }
    }
    std::error_code error;
    std::filesystem::rename(temporary, path, error);
    if (error) {
        std::remove(temporary.c_str());
        return false;
    }
    return true;
}
