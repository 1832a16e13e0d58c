// What the Elements panel shows of a piggyback of each element kind: which rows and columns are
// live, the captions of the attribute and map heads, and whether the corner buttons work.
#pragma once

#include <cstdint>

// How many rows a piggyback of a kind fills.
enum class KindRows {
    Fixed,   // a fixed count of rows, at fixed positions of the corner list
    Corners, // as many corners as it has, at most a screenful, from the scroll offset on
};

struct KindView {
    int typeIndex = -1; // row of cbo_3_type; -1 when the kind has none
    KindRows rows = KindRows::Corners;
    int fixedRows = 0;
    bool xmapColumn = false;
    bool ymapColumn = false;
    // Caption of lbl_att1 and of the X Map head; nullptr leaves the caption as it is.
    const char* att1Caption = nullptr;
    const char* xmapCaption = nullptr;
    bool att1Field = false;     // upd_3_att1 shows Att1; otherwise txt_3_att1 is blanked
    bool att2Field = false;     // upd_3_att2 shows Att2; otherwise txt_3_att2 is blanked
    bool cornerButtons = false; // ADD, DELETE, MOVE UP, MOVE DN
};

// The view of element kind `type`. Only kinds 1 to 6 and NULL have a row in cbo_3_type.
KindView ViewOfKind(uint8_t type);
