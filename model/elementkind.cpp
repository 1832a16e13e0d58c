#include "elementkind.h"

#include "filerecord.h"

#include <algorithm>
#include <iterator>

KindLayout LayoutOf(uint8_t type) {
    KindLayout layout;
    switch (type) {
    case kTypeColouredLine:
        layout.fixedCorners = 2;
        layout.hasAtt1 = true;
        break;
    case kTypeHardpoint:
        layout.fixedCorners = 1;
        layout.hasAtt1 = true;
        break;
    case kTypeColouredPoly:
        layout.storesCRN = true;
        layout.hasAtt1 = true;
        break;
    case kTypeGouraudPoly:
        layout.storesCRN = true;
        layout.hasXMap = true;
        break;
    case kTypeNull:
        break;
    default:
        layout.storesCRN = true;
        layout.hasXMap = true;
        layout.hasYMap = true;
        layout.hasAtt1 = true;
        layout.hasAtt2 = true;
        break;
    }
    return layout;
}

int HardpointSlot(uint8_t code) {
    const auto* found = std::find(std::begin(kHardpointCodes), std::end(kHardpointCodes), code);
    return found == std::end(kHardpointCodes) ? 0 : 1 + int(found - std::begin(kHardpointCodes));
}
