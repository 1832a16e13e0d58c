#include "recordcompare.h"

#include <sstream>

namespace {

class Comparer {
public:
    template <typename T> void Same(const std::string& what, const T& a, const T& b) {
        if (!difference.empty() || a == b)
            return;
        std::ostringstream text;
        text << what << ": " << +a << " != " << +b;
        difference = text.str();
    }

    void SameBytes(const std::string& what, const std::vector<uint8_t>& a,
                   const std::vector<uint8_t>& b) {
        Same(what + ".size", a.size(), b.size());
        for (size_t k = 0; k < a.size() && k < b.size(); ++k)
            Same(what + "[" + std::to_string(k) + "]", a[k], b[k]);
    }

    std::string difference;
};

std::string At(const std::string& name, size_t index) {
    return name + "[" + std::to_string(index) + "]";
}

} // namespace

std::string RecordDifference(const FileRecord& a, const FileRecord& b, bool compareOffsets) {
    Comparer c;
    c.Same("Radius", a.Radius, b.Radius);
    for (size_t k = 0; k < a.Texture.size(); ++k)
        c.Same(At("Texture", k), a.Texture[k], b.Texture[k]);
    c.Same("NumParts", a.NumParts, b.NumParts);
    c.Same("NumNodes", a.NumNodes, b.NumNodes);
    c.Same("NumElements", a.NumElements, b.NumElements);
    c.Same("Parts.size", a.Parts.size(), b.Parts.size());
    for (size_t p = 0; p < a.Parts.size() && p < b.Parts.size(); ++p) {
        const std::string at = At("Parts", p);
        c.Same(at + ".Code", a.Parts[p].Code, b.Parts[p].Code);
        c.Same(at + ".Num", a.Parts[p].Num, b.Parts[p].Num);
        c.Same(at + ".Y", a.Parts[p].Y, b.Parts[p].Y);
        c.Same(at + ".Z", a.Parts[p].Z, b.Parts[p].Z);
        c.Same(at + ".X", a.Parts[p].X, b.Parts[p].X);
    }
    c.Same("NRM.size", a.NRM.size(), b.NRM.size());
    for (size_t i = 0; i < a.NRM.size() && i < b.NRM.size(); ++i) {
        const std::string at = At("NRM", i);
        c.Same(at + ".Y", a.NRM[i].Y, b.NRM[i].Y);
        c.Same(at + ".Z", a.NRM[i].Z, b.NRM[i].Z);
        c.Same(at + ".X", a.NRM[i].X, b.NRM[i].X);
        c.Same(at + ".D", a.NRM[i].D, b.NRM[i].D);
        c.Same(at + ".F", a.NRM[i].F, b.NRM[i].F);
    }
    c.Same("Root[0]", a.Root[0], b.Root[0]);
    c.Same("Root[1]", a.Root[1], b.Root[1]);
    c.Same("PART.size", a.PART.size(), b.PART.size());
    for (size_t i = 0; i < a.PART.size() && i < b.PART.size(); ++i) {
        c.Same(At("PART", i) + "[0]", a.PART[i][0], b.PART[i][0]);
        c.Same(At("PART", i) + "[1]", a.PART[i][1], b.PART[i][1]);
    }
    c.Same("Nodes.size", a.Nodes.size(), b.Nodes.size());
    for (size_t n = 0; n < a.Nodes.size() && n < b.Nodes.size(); ++n) {
        const std::string at = At("Nodes", n);
        c.Same(at + ".Y", a.Nodes[n].Y, b.Nodes[n].Y);
        c.Same(at + ".Z", a.Nodes[n].Z, b.Nodes[n].Z);
        c.Same(at + ".X", a.Nodes[n].X, b.Nodes[n].X);
        c.Same(at + ".B", a.Nodes[n].B, b.Nodes[n].B);
    }
    if (compareOffsets)
        c.Same("Offsets", a.Offsets == b.Offsets, true);
    c.Same("Elements.size", a.Elements.size(), b.Elements.size());
    for (size_t i = 0; i < a.Elements.size() && i < b.Elements.size(); ++i) {
        const ElementList& la = a.Elements[i];
        const ElementList& lb = b.Elements[i];
        c.Same(At("Elements", i) + ".Count", la.Count, lb.Count);
        c.Same(At("Elements", i) + ".Items.size", la.Items.size(), lb.Items.size());
        for (size_t j = 0; j < la.Items.size() && j < lb.Items.size(); ++j) {
            const Piggyback& pa = la.Items[j];
            const Piggyback& pb = lb.Items[j];
            const std::string at = At(At("Elements", i) + ".Items", j);
            c.Same(at + ".Number", pa.Number, pb.Number);
            c.Same(at + ".COD", pa.COD, pb.COD);
            c.Same(at + ".Flag", pa.Flag, pb.Flag);
            c.Same(at + ".Type", pa.Type, pb.Type);
            c.Same(at + ".CRN", pa.CRN, pb.CRN);
            c.SameBytes(at + ".NodeList", pa.NodeList, pb.NodeList);
            c.SameBytes(at + ".XMap", pa.XMap, pb.XMap);
            c.SameBytes(at + ".YMap", pa.YMap, pb.YMap);
            c.Same(at + ".Att1", pa.Att1, pb.Att1);
            c.Same(at + ".Att2", pa.Att2, pb.Att2);
            c.Same(at + ".NextByte", pa.NextByte, pb.NextByte);
        }
    }
    return c.difference;
}
