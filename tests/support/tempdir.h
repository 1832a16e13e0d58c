// A fresh folder under the system's temporary folder, removed with everything in it at the end.
#pragma once

#include <filesystem>
#include <string>

class TempDir {
public:
    TempDir();
    ~TempDir();
    TempDir(const TempDir&) = delete;
    TempDir& operator=(const TempDir&) = delete;

    const std::filesystem::path& path() const { return path_; }
    // The full path of `name` inside the folder.
    std::string file(const std::string& name) const;

private:
    std::filesystem::path path_;
};
