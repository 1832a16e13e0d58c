#include "elementkindview.h"

#include "elementkind.h"
#include "filerecord.h"

namespace {

constexpr const char* kColourCaption = "Colour:";
constexpr const char* kCodeCaption = "Code:";
constexpr const char* kAttribCaption = "Attrib 1:";
constexpr const char* kXMapHead = "X Map";
constexpr const char* kCornerColourHead = "Colour";
constexpr int kNullTypeIndex = 6;

} // namespace

KindView ViewOfKind(uint8_t type) {
    KindView view;
    switch (type) {
    case kTypeColouredLine:
    case kTypeHardpoint:
        view.rows = KindRows::Fixed;
        view.fixedRows = type == kTypeColouredLine ? 2 : 1;
        view.att1Caption = type == kTypeColouredLine ? kColourCaption : kCodeCaption;
        view.xmapCaption = kXMapHead;
        view.att1Field = true;
        break;
    case kTypeColouredPoly:
        view.att1Caption = kColourCaption;
        view.xmapCaption = kXMapHead;
        view.att1Field = true;
        view.cornerButtons = true;
        break;
    case kTypeGouraudPoly:
        // The corner colours stand in the X map column.
        view.xmapColumn = true;
        view.att1Caption = kAttribCaption;
        view.xmapCaption = kCornerColourHead;
        view.cornerButtons = true;
        break;
    case kTypeNull:
        view.rows = KindRows::Fixed;
        view.cornerButtons = true;
        break;
    default:
        view.xmapColumn = true;
        view.ymapColumn = true;
        view.att1Caption = kAttribCaption;
        view.xmapCaption = kXMapHead;
        view.att1Field = true;
        view.att2Field = true;
        view.cornerButtons = true;
        break;
    }
    if (type == kTypeNull)
        view.typeIndex = kNullTypeIndex;
    else if (type >= kTypeColouredLine && type <= kTypeTransparentPoly)
        view.typeIndex = type - 1;
    return view;
}
