// The tree of splitting planes over the elements of a generated file. Each element splits the
// elements below it by its own plane: those whose centre lies in front of it (on its normal's
// side) go to PART(0), the others to PART(1). Painting PART(1), the element, then PART(0) for an
// eye in front is then back to front, which is how the rendering sequence walks the tree.
#pragma once

#include "filerecord.h"
#include "vec3.h"

#include <vector>

// Sets Root and PART of `record` from its NRM planes; `elementPoints[e]` holds the corners of
// element e in the file's frame. Every element is reached from Root exactly once.
void BuildSplitTree(const std::vector<std::vector<Vec3>>& elementPoints, FileRecord& record);
