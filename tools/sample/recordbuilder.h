// Assembles one model file in memory from faces given in the file's frame. It shares nodes,
// stores the nodes of a movable part relative to its pivot, turns every face so that its front
// looks outward, gathers the coplanar faces of one body into one element carrying that plane,
// and grows the tree of splitting planes over the elements.
#pragma once

#include "elementkind.h"
#include "filerecord.h"
#include "vec3.h"

#include <cstdint>
#include <string>
#include <vector>

struct FaceCorner {
    Vec3 at;          // in the file's frame, the pivot of a movable part included
    uint8_t xmap = 0; // texture column, or the corner's colour in a Gouraud Poly
    uint8_t ymap = 0; // texture row
};

// What a piggyback carries besides its corners.
struct FaceStyle {
    uint8_t type = kTypeTexturedPoly;
    uint8_t cod = 0;
    uint8_t flag = 0;
    uint8_t att1 = 0;
    uint8_t att2 = 0;
};

struct Face {
    FaceStyle style;
    int body = 0; // 0 the fixed body, b > 0 the movable part b
    std::vector<FaceCorner> corners;
};

class RecordBuilder {
public:
    explicit RecordBuilder(const std::string& textureName);

    // A movable part turning about `pivot`; returns its body number.
    int AddPart(uint8_t code, uint8_t num, Vec3 pivot);
    // A polygon, turned so that its front side looks toward `outward`.
    void AddFace(Face face, Vec3 outward);
    void AddLine(Vec3 from, Vec3 to, uint8_t colour);
    void AddHardpoint(Vec3 at, uint8_t code);

    // The finished record; false, with `problem` telling why, when the file format cannot hold
    // what was added.
    bool Build(FileRecord& record, std::string& problem) const;

private:
    struct Item {
        FaceStyle style;
        int body = 0;
        std::vector<FaceCorner> corners;
    };
    struct Group {
        int body = 0;
        Vec3 normal;
        double constant = 0;
        std::vector<Item> items;
    };

    int GroupFor(int body, Vec3 normal, double constant);
    int NearestGroup(const std::vector<FaceCorner>& corners) const;

    TextureName texture_{};
    std::vector<Part> parts_;
    std::vector<Group> groups_;
    std::vector<Item> loose_; // lines and hardpoints, placed in the nearest element at the end
};
