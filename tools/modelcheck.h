// The rules of `moxtool check`: what is broken in a model file (errors) and what works but not as
// its author may think (warnings), each finding naming the element, piggyback, node or part.
#pragma once

#include "filerecord.h"

#include <string>
#include <vector>

enum class Severity { Error, Warning };

struct Finding {
    Severity severity = Severity::Error;
    std::string rule;    // a short fixed name, "corner-node"
    std::string subject; // "element", "piggyback", "node", "part", or empty for the whole file
    int index = -1;      // the element, piggyback Number, node or part number
    std::string text;
};

// Normals are fixed point, 16384 long; a normal off by more than this is noted.
constexpr int kNormalLengthTolerance = 16;

// Checks one file as the reader gave it; `messages` are what the read showed the user.
std::vector<Finding> CheckRecord(const FileRecord& record,
                                 const std::vector<std::string>& messages);

// The texture rule: the file's texture must be a readable PCX beside it.
std::vector<Finding> CheckTexture(const FileRecord& record);

// True when the elements `element` names polygons whose plane the stored plane spoils: no normal,
// a normal of the wrong length, corners off the plane or faces turned away from it.
bool PlaneIsWrong(const FileRecord& record, int element);
