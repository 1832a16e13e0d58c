// Which elements the walk of the tree reaches from Root(0), found without ever looping: a child
// that leads back to an element on the way down is noted as a cycle and not followed again.
#pragma once

#include "filerecord.h"

#include <vector>

// A reference from the tree to an element: `parent` is the element whose child it is, or -1 for
// Root(0); `side` is 0 or 1 for PART(0) and PART(1).
struct ElementLink {
    int parent = -1;
    int side = 0;
    int element = 0;
};

struct ElementReach {
    // Per element 0 to NumElements - 1: how many links of reached elements (Root(0) included)
    // name it. 0 is never reached; above 1 the walk paints it more than once.
    std::vector<int> timesReached;
    // Links to an element that lies on the way down to them.
    std::vector<ElementLink> cycles;
};

// Links to an element number at or beyond NumElements end the walk on that side, as 255 does.
ElementReach ReachFromRoot(const FileRecord& record);
