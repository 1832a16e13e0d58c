// Saving that never destroys what was there before and leaves nothing behind when interrupted:
// the new contents go to a file without a name in the target's folder, which gets a hidden name
// and is renamed over the target only once it is completely written. Where the file system has no
// unnamed files, a hidden temporary name (".NAME.saving-XXXXXX") is written instead; whatever an
// interrupted save left under such a name, the next save of the same file removes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

// Writes `size` bytes to `path`, replacing any file of that name. A replaced file keeps its
// permissions. On failure returns false with `error` telling what failed ("cannot write PATH:
// reason"); the temporary file is removed and an old file of that name is left as it was.
bool ReplaceFileContents(const std::string& path, const void* data, size_t size,
                         std::string& error);
bool ReplaceFileContents(const std::string& path, const std::vector<uint8_t>& bytes,
                         std::string& error);
bool ReplaceFileContents(const std::string& path, const std::string& text, std::string& error);
