#include "recordcompare.h"

#include "recordfields.h"

#include <tuple>

namespace {

using ::Fields;
auto Fields(const ElementList& list) {
    return std::tie(list.Count);
}

// "Nodes[3]" for the first entry of `a` and `b` that differs, or "Nodes.size" for differing sizes.
template <typename T>
std::string FirstDifference(const std::string& name, const std::vector<T>& a,
                            const std::vector<T>& b) {
    if (a.size() != b.size())
        return name + ".size: " + std::to_string(a.size()) + " != " + std::to_string(b.size());
    for (size_t k = 0; k < a.size(); ++k) {
        if (Fields(a[k]) != Fields(b[k]))
            return name + "[" + std::to_string(k) + "]";
    }
    return {};
}

} // namespace

std::string RecordDifference(const FileRecord& a, const FileRecord& b, bool compareOffsets) {
    const auto head = [](const FileRecord& r) {
        return std::tie(r.Radius, r.Texture, r.NumParts, r.NumNodes, r.NumElements, r.Root);
    };
    std::string difference = head(a) == head(b) ? "" : "header";
    for (const auto& next :
         {FirstDifference("Parts", a.Parts, b.Parts), FirstDifference("NRM", a.NRM, b.NRM),
          FirstDifference("PART", a.PART, b.PART), FirstDifference("Nodes", a.Nodes, b.Nodes),
          compareOffsets && a.Offsets != b.Offsets ? std::string("Offsets") : std::string(),
          FirstDifference("Elements", a.Elements, b.Elements)}) {
        if (difference.empty())
            difference = next;
    }
    for (size_t i = 0; difference.empty() && i < a.Elements.size(); ++i)
        difference = FirstDifference("Elements[" + std::to_string(i) + "].Items",
                                     a.Elements[i].Items, b.Elements[i].Items);
    return difference;
}
