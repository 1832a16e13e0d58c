// Whole-file reads and writes for the image code: a file read at once into memory, and a file
// written so that a failed write never destroys what was there before.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Files above this size are not read: no picture this program handles comes near it.
constexpr std::uintmax_t kMaxReadableFileBytes = std::uintmax_t{1} << 30;

// Reads the whole file into `bytes`. Returns false when it cannot be opened or read, or is larger
// than kMaxReadableFileBytes.
bool ReadFileBytes(const std::string& path, std::vector<uint8_t>& bytes);

// Replaces `path` with `bytes` through the one save path (filereplace.h). Returns false, leaving
// any old file as it was, when that fails.
bool WriteFileBytes(const std::string& path, const std::vector<uint8_t>& bytes);
