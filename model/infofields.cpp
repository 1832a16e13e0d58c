#include "infofields.h"

#include <limits>

namespace {

constexpr int32_t kCoordinate = 32767;
constexpr int32_t kPlaneUnit = 16384;
constexpr int32_t kPlaneDistance = 2147483647;
constexpr int32_t kPlaneFlag = 32768;
constexpr int32_t kByteMax = 255;
constexpr int32_t kLastCode = 2;
constexpr int32_t kLastNum = 7;
constexpr int32_t kLastFlag = 17;

using W = FieldWidth;
using T = FieldTarget;

const std::vector<InfoField> kFields = {
    {kFieldRadius, "Radius", W::Signed16, T::Head, false, 0, 0, "txt_1_radius", nullptr, nullptr,
     nullptr},
    {kFieldTexture, "Texture", W::Text14, T::Head, false, 0, 0, "txt_1_texture", nullptr, nullptr,
     nullptr},
    {kFieldPartCode, "Part Code", W::Byte, T::Part, true, 0, kLastCode, "cbo_2_code", nullptr,
     nullptr, nullptr},
    {kFieldPartNum, "Part Num", W::Byte, T::Part, true, 0, kLastNum, "cbo_2_num", nullptr, nullptr,
     nullptr},
    {kFieldPartX, "Part X", W::Signed16, T::Part, true, -kCoordinate, kCoordinate, "txt_2_x",
     "upd_2_x", nullptr, nullptr},
    {kFieldPartY, "Part Y", W::Signed16, T::Part, true, -kCoordinate, kCoordinate, "txt_2_y",
     "upd_2_y", nullptr, nullptr},
    {kFieldPartZ, "Part Z", W::Signed16, T::Part, true, -kCoordinate, kCoordinate, "txt_2_z",
     "upd_2_z", nullptr, nullptr},
    {kFieldNrmX, "NRM X", W::Signed16, T::Element, true, -kPlaneUnit, kPlaneUnit, "txt_3_nrm_x",
     "upd_3_nrm_x", nullptr, nullptr},
    {kFieldNrmY, "NRM Y", W::Signed16, T::Element, true, -kPlaneUnit, kPlaneUnit, "txt_3_nrm_y",
     "upd_3_nrm_y", nullptr, nullptr},
    {kFieldNrmZ, "NRM Z", W::Signed16, T::Element, true, -kPlaneUnit, kPlaneUnit, "txt_3_nrm_z",
     "upd_3_nrm_z", nullptr, nullptr},
    {kFieldNrmD, "NRM D", W::Signed32, T::Element, true, -kPlaneDistance, kPlaneDistance,
     "txt_3_nrm_d", "upd_3_nrm_d", nullptr, nullptr},
    {kFieldNrmF, "NRM F", W::Signed16, T::Element, true, -kPlaneFlag, kPlaneFlag, "txt_3_nrm_b",
     "upd_3_nrm_b", nullptr, nullptr},
    {kFieldNodeX, "Node X", W::Signed16, T::Node, true, -kCoordinate, kCoordinate, "txt_4_x",
     "upd_4_x", "txt_3_x", nullptr},
    {kFieldNodeY, "Node Y", W::Signed16, T::Node, true, -kCoordinate, kCoordinate, "txt_4_y",
     "upd_4_y", "txt_3_y", nullptr},
    {kFieldNodeZ, "Node Z", W::Signed16, T::Node, true, -kCoordinate, kCoordinate, "txt_4_z",
     "upd_4_z", "txt_3_z", nullptr},
    {kFieldNodeB, "Node B", W::Signed16, T::Node, true, 0, kByteMax, "txt_4_b", "upd_4_b", nullptr,
     nullptr},
    {kFieldAction, "Piggyback COD", W::Byte, T::Piggyback, false, 0, 0, "cbo_3_action", nullptr,
     nullptr, nullptr},
    {kFieldFlag, "Piggyback Flag", W::Byte, T::Piggyback, true, 0, kLastFlag, "txt_3_flag",
     "upd_3_flag", nullptr, nullptr},
    // The spin's top follows NumNodes - 1 at run time.
    {kFieldNodeList, "NodeList entry", W::Byte, T::Corner, true, 0, kByteMax, nullptr, nullptr,
     "txt_3_node", "upd_3_node"},
    {kFieldXMap, "XMap entry", W::Byte, T::Corner, true, 0, kByteMax, nullptr, nullptr,
     "txt_3_xmap", nullptr},
    {kFieldYMap, "YMap entry", W::Byte, T::Corner, true, 0, kByteMax, nullptr, nullptr,
     "txt_3_ymap", nullptr},
    {kFieldAtt1, "Att1", W::Byte, T::Piggyback, true, 0, kByteMax, "txt_3_att1", "upd_3_att1",
     nullptr, nullptr},
    {kFieldAtt2, "Att2", W::Byte, T::Piggyback, true, 0, kByteMax, "txt_3_att2", "upd_3_att2",
     nullptr, nullptr},
};

} // namespace

const std::vector<InfoField>& InfoFields() {
    return kFields;
}

const InfoField* FindInfoField(int32_t field) {
    for (const InfoField& row : kFields) {
        if (row.field == field)
            return &row;
    }
    return nullptr;
}

int64_t WidthMin(FieldWidth width) {
    switch (width) {
    case FieldWidth::Signed16:
        return std::numeric_limits<int16_t>::min();
    case FieldWidth::Signed32:
        return std::numeric_limits<int32_t>::min();
    case FieldWidth::Byte:
    case FieldWidth::Text14:
        break;
    }
    return 0;
}

int64_t WidthMax(FieldWidth width) {
    switch (width) {
    case FieldWidth::Signed16:
        return std::numeric_limits<int16_t>::max();
    case FieldWidth::Signed32:
        return std::numeric_limits<int32_t>::max();
    case FieldWidth::Byte:
        return std::numeric_limits<uint8_t>::max();
    case FieldWidth::Text14:
        break;
    }
    return 0;
}
