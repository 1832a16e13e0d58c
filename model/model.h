// The open model: the files of its family and the view and selection state that the painter and
// the panels share.
#pragma once

#include "filerecord.h"

#include <cstdint>
#include <vector>

// What is loaded.
enum ModelType : int32_t { kNothingLoaded = 0, kMoxLoaded = 1, kMoyLoaded = 2, k3dsLoaded = 3 };

class model {
public:
    int16_t m_currmox = 0;
    float m_zoom = 0.0f;
    float m_xpos = 0.0f;
    float m_ypos = 0.0f;
    float m_xrot = 0.0f;
    float m_yrot = 0.0f;
    float m_bank = 0.0f;
    int16_t m_currelem = -1;
    int16_t m_currnode = 0;
    int32_t m_pilot = 0;
    int32_t m_lg = 1;
    int32_t m_wing = 0;
    bool RenderType = false;
    int32_t M_Type = kNothingLoaded;

    // Empty until a family or a project is loaded, then kFileSlots records.
    std::vector<FileRecord> Files;
};
