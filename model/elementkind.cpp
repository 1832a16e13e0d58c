#include "elementkind.h"

#include "filerecord.h"

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
