#include "modelfiles.h"

#include <algorithm>

int ReadRadius(const std::string& path) {
    if (!std::filesystem::exists(path))
        return -1;
    const std::vector<uint8_t> bytes = ReadFileBytes(path);
    return bytes.size() < 2 ? -1 : static_cast<int16_t>(bytes[0] | (bytes[1] << 8));
}

std::string Slots(const model& m) {
    std::string slots;
    for (int16_t slot = 0; slot < static_cast<int16_t>(m.Files.size()); ++slot)
        slots += m.CheckMOX(slot) ? static_cast<char>('0' + m.Files[slot].Radius) : '.';
    return slots;
}

std::vector<std::string> FilesIn(const std::filesystem::path& folder) {
    std::vector<std::string> names;
    for (const auto& entry : std::filesystem::directory_iterator(folder))
        names.push_back(entry.path().filename().string());
    std::sort(names.begin(), names.end());
    return names;
}

std::string Numbers(const std::vector<int>& values) {
    std::string text;
    for (const int value : values)
        text += std::to_string(value) + ",";
    return text;
}

namespace {

std::string Bytes(const std::vector<uint8_t>& bytes) {
    return Numbers(std::vector<int>(bytes.begin(), bytes.end()));
}

} // namespace

std::vector<std::string> Entries(const FileRecord& record) {
    std::vector<std::string> entries;
    for (const ElementList& list : record.Elements) {
        for (int j = 0; j < list.Count; ++j) {
            const Piggyback& entry = list.Items[j];
            entries.push_back(std::to_string(entry.Number) + " " +
                              Numbers({entry.COD, entry.Flag}) + " t" + std::to_string(entry.Type) +
                              " c" + std::to_string(entry.CRN) + " n" + Bytes(entry.NodeList) +
                              " x" + Bytes(entry.XMap) + " y" + Bytes(entry.YMap) + " a" +
                              Numbers({entry.Att1, entry.Att2}));
        }
    }
    return entries;
}
