#include "modelfiles.h"

#include "moxbuilder.h"

#include <filesystem>

void WriteSmallModel(const std::string& path, int16_t radius) {
    MoxBuilder model;
    model.radius = radius;
    model.nodes = {Node{3, 4, 5, 0}};
    model.root = {0, kNoElement};
    model.streams = {StreamBytes().Hardpoint(27, 0).End().bytes};
    WriteTestFile(path, model.Build());
}

int ReadRadius(const std::string& path) {
    if (!std::filesystem::exists(path))
        return -1;
    const std::vector<uint8_t> bytes = ReadFileBytes(path);
    return bytes.size() < 2 ? -1 : static_cast<int16_t>(bytes[0] | (bytes[1] << 8));
}
