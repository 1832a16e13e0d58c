// Builds the bytes of .mox model files for tests and fuzz seeds: the tables from plain records,
// each element's stream from entries, and full control of the offset table and the layout of the
// streams (order, gaps, trailing bytes), so that damaged and unusual files are easy to make.
#pragma once

#include "filerecord.h"

#include <array>
#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <vector>

// The bytes of one element stream, entry by entry.
class StreamBytes {
public:
    using Corner = std::array<uint8_t, 3>; // node, x map, y map

    StreamBytes& Prefix(uint8_t cod, uint8_t flag) { return Raw({cod, flag}); }
    StreamBytes& Line(uint8_t node0, uint8_t node1, uint8_t colour) {
        return Raw({1, node0, node1, colour});
    }
    StreamBytes& Hardpoint(uint8_t code, uint8_t node) { return Raw({2, code, node}); }
    StreamBytes& ColouredPoly(const std::vector<uint8_t>& nodes, uint8_t colour);
    // Corners of node and colour.
    StreamBytes& GouraudPoly(const std::vector<std::array<uint8_t, 2>>& corners);
    // Kinds 5 and 6, and every Type value that is read like them.
    StreamBytes& MappedPoly(uint8_t type, const std::vector<Corner>& corners, uint8_t att1,
                            uint8_t att2);
    StreamBytes& Raw(const std::vector<uint8_t>& bytes);
    // The closing byte FF.
    StreamBytes& End() { return Raw({kTypeNull}); }

    std::vector<uint8_t> bytes;
};

class MoxBuilder {
public:
    int16_t radius = 0;
    TextureName texture{};
    std::vector<Part> parts;       // the Part records: bodies 1 and up
    std::vector<NRMRecord> planes; // per element; missing ones are written as zeros
    ChildPair root{kNoElement, kNoElement};
    std::vector<ChildPair> children; // per element; missing ones are written 255 255
    std::vector<Node> nodes;
    std::vector<std::vector<uint8_t>> streams; // per element

    // Header counts; by default they follow parts (plus the fixed body), nodes and streams.
    std::optional<int16_t> numParts;
    std::optional<int16_t> numElements;

    // Elements in the order their streams are laid out; empty means element order.
    std::vector<int> streamOrder;
    // Filler bytes (EE) put in front of every stream.
    size_t gapBefore = 0;
    // Offsets written instead of the true ones, by element.
    std::map<int, int16_t> offsetOverrides;
    // Bytes behind the last stream.
    std::vector<uint8_t> trailer;

    void SetTexture(const std::string& name);
    std::vector<uint8_t> Build() const;
};

// The bytes SAVE_MOX writes for `record`; throws when the save refuses the record, which fails
// the calling test.
std::vector<uint8_t> SavedBytes(const FileRecord& record);

// Writes a model of one node and one element holding a hardpoint to `path`, told apart from others
// by its Radius.
void WriteSmallModel(const std::string& path, int16_t radius);

// Writes `bytes` to `path`; throws when it cannot, which fails the calling test.
void WriteTestFile(const std::string& path, const std::vector<uint8_t>& bytes);
std::vector<uint8_t> ReadFileBytes(const std::string& path);
