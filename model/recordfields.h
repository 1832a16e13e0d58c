// The fields of each entry of a file record as one tuple, so that two entries can be compared
// whole, field by field, without a comparison operator kept by hand beside the record.
#pragma once

#include "filerecord.h"

#include <tuple>

inline auto Fields(const Part& p) {
    return std::tie(p.Code, p.Num, p.Y, p.Z, p.X);
}
inline auto Fields(const NRMRecord& n) {
    return std::tie(n.Y, n.Z, n.X, n.D, n.F);
}
inline auto Fields(const ChildPair& c) {
    return std::tie(c);
}
inline auto Fields(const Node& n) {
    return std::tie(n.Y, n.Z, n.X, n.B);
}
inline auto Fields(const Piggyback& p) {
    return std::tie(p.Number, p.COD, p.Flag, p.Type, p.CRN, p.NodeList, p.XMap, p.YMap, p.Att1,
                    p.Att2, p.NextByte);
}
