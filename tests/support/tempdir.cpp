#include "tempdir.h"

#include <random>

TempDir::TempDir() {
    std::random_device random;
    const auto base = std::filesystem::temp_directory_path();
    do {
        path_ = base / ("skylathe-test-" + std::to_string(random()));
    } while (!std::filesystem::create_directory(path_));
}

TempDir::~TempDir() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
}

std::string TempDir::file(const std::string& name) const {
    return (path_ / name).string();
}
