// One file of a model family in memory: nodes, movable parts, the tree of splitting planes and
// each element's list of piggybacks, exactly as the .mox file holds them.
#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

// Sentinel for "no element" and "no child" in Root and PART, and the NULL piggyback kind.
constexpr uint8_t kNoElement = 255;
constexpr uint8_t kTypeNull = 255;
// Display codes outside this band are element kinds when they open an entry of a stream.
constexpr uint8_t kFirstDisplayCode = 7;
constexpr uint8_t kLastDisplayCode = 254;
// The reader's limit of piggybacks in one element.
constexpr int kMaxPiggybacks = 255;
// Highest file position an offset can name: offsets are signed 16-bit.
constexpr int kMaxStreamOffset = 32767;
// Number of Files slots; slot 7 is never used by a family.
constexpr int kFileSlots = 8;
constexpr int kLastFamilySlot = 6;
constexpr int kTextureNameLength = 14;

struct Node {
    int16_t Y = 0; // span
    int16_t Z = 0; // height
    int16_t X = 0; // length
    int16_t B = 0; // parent body: 0 fixed, b > 0 the part Parts(b - 1)
};

struct Part {
    uint8_t Code = 0; // rotation axis: 0 heading, 1 pitch, 2 roll
    uint8_t Num = 0;  // number within the axis
    int16_t Y = 0;
    int16_t Z = 0;
    int16_t X = 0;
};

// Splitting plane of an element; the normal is fixed point with 16384 standing for 1.
struct NRMRecord {
    int16_t Y = 0;
    int16_t Z = 0;
    int16_t X = 0;
    int32_t D = 0;
    int16_t F = 0;
};

struct Piggyback {
    int16_t Number = 0; // element * 100 + position in the list
    uint8_t COD = 0;    // display code, 0 none
    uint8_t Flag = 0;
    uint8_t Type = 0;
    uint8_t CRN = 0;
    std::vector<uint8_t> NodeList; // CRN + 1 entries where present, the last spare
    std::vector<uint8_t> YMap;     // kinds 5, 6 and other values
    std::vector<uint8_t> XMap;     // kinds 4 (corner colours), 5, 6 and other values
    uint8_t Att1 = 0;
    uint8_t Att2 = 0;
    uint8_t NextByte = 0; // the byte read behind the entry; 255 marks the last one
};

struct ElementList {
    std::vector<Piggyback> Items; // Count + 1 entries, the last spare
    int16_t Count = 0;
};

using TextureName = std::array<uint8_t, kTextureNameLength>;
using ChildPair = std::array<uint8_t, 2>;

struct FileRecord {
    int16_t Index = 0;
    std::string Filename;
    int16_t Radius = 0;
    TextureName Texture{};
    int16_t NumParts = 0;
    int16_t NumNodes = 0;
    int16_t NumElements = 0;
    std::vector<Part> Parts;           // NumParts entries: NumParts - 1 records and a spare
    std::vector<NRMRecord> NRM;        // NumElements + 1
    ChildPair Root{};                  // Root(0) starts the tree walk, 255 none
    std::vector<ChildPair> PART;       // NumElements + 1: the two children of each element
    std::vector<Node> Nodes;           // NumNodes + 1
    std::vector<int16_t> Offsets;      // NumElements + 1, as read
    std::vector<ElementList> Elements; // NumElements + 1
    float PointStep = 1.0f;
    int32_t TextureID = 0;
    bool Loaded = false;
    std::array<Node, 8> HP{}; // hardpoint positions found at load; HP(0) is the origin
};
