// A model family put together as the editor paints it, for the exports: each file at its hardpoint
// of the main file, each movable part at its pivot, the polygons that show in the chosen display
// states with their corners in the order the painter gives them, and the hardpoints.
#pragma once

#include "displaystates.h"
#include "model.h"
#include "vec3.h"

#include <string>
#include <vector>

struct ScenePolygon {
    // Corners relative to the body's origin, in painting order (stored order reversed), so that
    // they run counter-clockwise seen from the front.
    std::vector<Vec3> corners;
    // Texture coordinates per corner, 0 to 1 across the texture, v counted from its top row.
    std::vector<std::array<double, 2>> map;
    bool textured = false;
};

struct SceneHardpoint {
    std::string name;
    Vec3 at; // relative to the body's origin
};

// The fixed body of a file or one of its movable parts.
struct SceneBody {
    std::string name;
    Vec3 origin; // relative to the file's origin: the part's pivot, or 0 for the fixed body
    std::vector<ScenePolygon> polygons;
    std::vector<SceneHardpoint> hardpoints;
};

struct SceneFile {
    std::string name;
    Vec3 origin; // the file's hardpoint in the main file
    std::vector<SceneBody> bodies;
    std::string texturePath; // where the file's texture is looked for
};

// Every loaded file of `family` in slot order, polygons shown in `states`. Polygons or
// hardpoints with a corner that cannot be placed are left out.
std::vector<SceneFile> AssembleScene(const model& family, const DisplayStates& states);
