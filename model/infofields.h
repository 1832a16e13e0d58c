// The numbered fields of a file record that the property panels write through model.UpdateInfo:
// for each, the record field and its width, the range a commit applies and the controls that show
// it. Panels and tests read their numbers, ranges and control names from this one table.
#pragma once

#include <cstdint>
#include <vector>

enum InfoFieldNumber : int32_t {
    kFieldRadius = 0,
    kFieldTexture = 1,
    kFieldPartCode = 5,
    kFieldPartNum = 6,
    kFieldPartX = 7,
    kFieldPartY = 8,
    kFieldPartZ = 9,
    kFieldNrmX = 10,
    kFieldNrmY = 11,
    kFieldNrmZ = 12,
    kFieldNrmD = 13,
    kFieldNrmF = 14,
    kFieldNodeX = 15,
    kFieldNodeY = 16,
    kFieldNodeZ = 17,
    kFieldNodeB = 18,
    kFieldAction = 19,
    kFieldFlag = 20,
    kFieldNodeList = 23,
    kFieldXMap = 24,
    kFieldYMap = 25,
    kFieldAtt1 = 26,
    kFieldAtt2 = 27
};

// How the record stores a field.
enum class FieldWidth { Signed16, Signed32, Byte, Text14 };

// What `i` of UpdateInfo names for a field, and whether `j` names a corner of it.
enum class FieldTarget {
    Head,      // the file's head; i unused
    Part,      // part i
    Element,   // the splitting plane of element i
    Node,      // node i
    Piggyback, // the piggyback whose Number is i
    Corner     // corner j of the piggyback whose Number is i
};

struct InfoField {
    int32_t field;
    const char* recordField;
    FieldWidth width;
    FieldTarget target;
    // The range a commit snaps to; where a spin is named its bounds are read from it at commit
    // and these are its bounds as built. A field without a range takes any value of its width.
    bool ranged;
    int32_t min;
    int32_t max;
    // The control that shows the field and its spin, or nullptr.
    const char* control;
    const char* spin;
    // The same field in the rows of the Elements panel: "txt_3_x" stands for txt_3_x(0),
    // txt_3_x(1) and so on.
    const char* rowControl;
    const char* rowSpin;
};

// Every field, in the order of its number.
const std::vector<InfoField>& InfoFields();
// The row of `field`, or nullptr for a number that names no field.
const InfoField* FindInfoField(int32_t field);

// The smallest and largest whole number a field of `width` holds (0 and 0 for text).
int64_t WidthMin(FieldWidth width);
int64_t WidthMax(FieldWidth width);

// What model.UpdateInfo did with a value.
enum class InfoWrite {
    Written, // stored as given
    Snapped, // beyond the width of the record field: its nearest bound was stored
    Refused  // nothing stored: no file, no such item, no number, or a node beyond a byte
};
