#include "moxbuilder.h"

#include "moxwriter.h"

#include <algorithm>
#include <fstream>
#include <iterator>
#include <numeric>
#include <stdexcept>

namespace {

constexpr uint8_t kGapByte = 0xEE;

void PutInt16(std::vector<uint8_t>& out, std::initializer_list<int> values) {
    for (const int value : values) {
        out.push_back(static_cast<uint8_t>(value & 0xFF));
        out.push_back(static_cast<uint8_t>((value >> 8) & 0xFF));
    }
}

} // namespace

StreamBytes& StreamBytes::ColouredPoly(const std::vector<uint8_t>& nodes, uint8_t colour) {
    Raw({3, static_cast<uint8_t>(nodes.size())});
    Raw(nodes);
    return Raw({colour});
}

StreamBytes& StreamBytes::GouraudPoly(const std::vector<std::array<uint8_t, 2>>& corners) {
    Raw({4, static_cast<uint8_t>(corners.size())});
    for (const auto& corner : corners)
        Raw({corner[0], corner[1]});
    return *this;
}

StreamBytes& StreamBytes::MappedPoly(uint8_t type, const std::vector<Corner>& corners, uint8_t att1,
                                     uint8_t att2) {
    Raw({type, static_cast<uint8_t>(corners.size())});
    for (const Corner& corner : corners)
        Raw({corner[0], corner[1], corner[2]});
    return Raw({att1, att2});
}

StreamBytes& StreamBytes::Raw(const std::vector<uint8_t>& more) {
    bytes.insert(bytes.end(), more.begin(), more.end());
    return *this;
}

void MoxBuilder::SetTexture(const std::string& name) {
    texture.fill(0);
    std::copy_n(name.begin(), std::min(name.size(), texture.size()), texture.begin());
}

std::vector<uint8_t> MoxBuilder::Build() const {
    const int elements = numElements.value_or(static_cast<int16_t>(streams.size()));
    std::vector<uint8_t> out;
    PutInt16(out, {radius});
    out.insert(out.end(), texture.begin(), texture.end());
    PutInt16(out, {numParts.value_or(static_cast<int16_t>(parts.size() + 1)),
                   static_cast<int16_t>(nodes.size()), elements});
    for (const Part& part : parts) {
        out.insert(out.end(), {part.Code, part.Num});
        PutInt16(out, {part.Y, part.Z, part.X});
    }
    for (int i = 0; i < elements; ++i) {
        const NRMRecord plane = i < static_cast<int>(planes.size()) ? planes[i] : NRMRecord{};
        // D is 32 bits: its low word, then its high word.
        PutInt16(out, {plane.Y, plane.Z, plane.X, plane.D & 0xFFFF, plane.D >> 16, plane.F});
    }
    out.insert(out.end(), root.begin(), root.end());
    for (int i = 0; i < elements; ++i) {
        const ChildPair pair =
            i < static_cast<int>(children.size()) ? children[i] : ChildPair{kNoElement, kNoElement};
        out.insert(out.end(), pair.begin(), pair.end());
    }
    for (const Node& node : nodes) {
        PutInt16(out, {node.Y, node.Z, node.X, node.B});
    }

    const size_t table = out.size();
    out.resize(table + 2 * static_cast<size_t>(std::max(elements, 0)));
    std::vector<int> order = streamOrder;
    if (order.empty()) {
        order.resize(streams.size());
        std::iota(order.begin(), order.end(), 0);
    }
    std::map<int, size_t> placed;
    for (const int element : order) {
        out.insert(out.end(), gapBefore, kGapByte);
        placed[element] = out.size();
        const auto& stream = streams.at(static_cast<size_t>(element));
        out.insert(out.end(), stream.begin(), stream.end());
    }
    out.insert(out.end(), trailer.begin(), trailer.end());
    for (int i = 0; i < elements; ++i) {
        int offset = placed.count(i) != 0 ? static_cast<int>(placed[i]) : 0;
        if (offsetOverrides.count(i) != 0)
            offset = offsetOverrides.at(i);
        out[table + 2 * static_cast<size_t>(i)] = static_cast<uint8_t>(offset & 0xFF);
        out[table + 2 * static_cast<size_t>(i) + 1] = static_cast<uint8_t>((offset >> 8) & 0xFF);
    }
    return out;
}

std::vector<uint8_t> SavedBytes(const FileRecord& record) {
    std::vector<uint8_t> bytes;
    std::string problem;
    if (!BuildMoxBytes(record, bytes, problem))
        throw std::runtime_error("the save refuses the record: " + problem);
    return bytes;
}

void WriteSmallModel(const std::string& path, int16_t radius) {
    MoxBuilder model;
    model.radius = radius;
    model.nodes = {Node{3, 4, 5, 0}};
    model.root = {0, kNoElement};
    model.streams = {StreamBytes().Hardpoint(27, 0).End().bytes};
    WriteTestFile(path, model.Build());
}

void WriteTestFile(const std::string& path, const std::vector<uint8_t>& bytes) {
    std::ofstream out(path, std::ios::binary | std::ios::trunc);
    out.write(reinterpret_cast<const char*>(bytes.data()),
              static_cast<std::streamsize>(bytes.size()));
    if (!out)
        throw std::runtime_error("cannot write test file " + path);
}

std::vector<uint8_t> ReadFileBytes(const std::string& path) {
    std::ifstream in(path, std::ios::binary);
    return std::vector<uint8_t>(std::istreambuf_iterator<char>(in),
                                std::istreambuf_iterator<char>());
}
