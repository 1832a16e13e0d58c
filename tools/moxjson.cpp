#include "moxjson.h"

#include "elementkind.h"
#include "latin1text.h"

#include <algorithm>
#include <cstdint>
#include <limits>

namespace {

// Entry k of an array, or 0 where a record holds fewer entries than its counts say.
template <typename T> T EntryOr(const std::vector<T>& entries, int k) {
    return k >= 0 && static_cast<size_t>(k) < entries.size() ? entries[static_cast<size_t>(k)]
                                                             : T{};
}

// How many node numbers an entry lists: CRN, or the corner count its kind fixes.
int CornerCount(uint8_t type, int crn) {
    const KindLayout layout = LayoutOf(type);
    return layout.storesCRN ? crn : layout.fixedCorners;
}

Json NodeJson(const Node& node) {
    return Json{{"x", node.X}, {"y", node.Y}, {"z", node.Z}, {"b", node.B}};
}

Json CornerValues(const std::vector<uint8_t>& values, int corners) {
    Json list = Json::array();
    for (int k = 0; k < corners; ++k)
        list.push_back(EntryOr(values, k));
    return list;
}

Json PiggybackJson(const Piggyback& item) {
    Json json{{"number", item.Number}, {"cod", item.COD}, {"flag", item.Flag}, {"type", item.Type}};
    if (item.Type == kTypeNull) {
        json["crn"] = 0;
        json["nodes"] = Json::array();
        return json;
    }
    const KindLayout layout = LayoutOf(item.Type);
    const int corners = CornerCount(item.Type, item.CRN);
    json["crn"] = item.CRN;
    json["nodes"] = CornerValues(item.NodeList, corners);
    if (layout.hasXMap)
        json["xmap"] = CornerValues(item.XMap, corners);
    if (layout.hasYMap)
        json["ymap"] = CornerValues(item.YMap, corners);
    if (layout.hasAtt1)
        json["att1"] = item.Att1;
    if (layout.hasAtt2)
        json["att2"] = item.Att2;
    return json;
}

// A bad value of the JSON form: where it is and what is wrong with it. Thrown only inside this
// module and caught by MoxFromJson.
struct BadValue {
    std::string text;
};

[[noreturn]] void Refuse(const std::string& path, const std::string& what) {
    throw BadValue{path + ": " + what};
}

std::string Join(const std::string& path, const std::string& key) {
    return path.empty() ? key : path + "." + key;
}

std::string At(const std::string& path, size_t index) {
    return path + "[" + std::to_string(index) + "]";
}

const Json& Member(const Json& object, const std::string& path, const std::string& key) {
    if (!object.is_object())
        Refuse(path.empty() ? "(top)" : path, "not an object");
    const auto it = object.find(key);
    if (it == object.end())
        Refuse(Join(path, key), "missing");
    return *it;
}

int64_t Integer(const Json& value, const std::string& path, int64_t low, int64_t high) {
    if (!value.is_number_integer())
        Refuse(path, "not an integer");
    if (value.is_number_unsigned() &&
        value.get<uint64_t>() > static_cast<uint64_t>(std::numeric_limits<int64_t>::max()))
        Refuse(path, value.dump() + " is out of range " + std::to_string(low) + " to " +
                         std::to_string(high));
    const int64_t number = value.get<int64_t>();
    if (number < low || number > high)
        Refuse(path, std::to_string(number) + " is out of range " + std::to_string(low) + " to " +
                         std::to_string(high));
    return number;
}

template <typename T> T Field(const Json& object, const std::string& path, const std::string& key) {
    return static_cast<T>(Integer(Member(object, path, key), Join(path, key),
                                  std::numeric_limits<T>::min(), std::numeric_limits<T>::max()));
}

template <typename T> T Item(const Json& list, const std::string& path, size_t index) {
    return static_cast<T>(Integer(list[index], At(path, index), std::numeric_limits<T>::min(),
                                  std::numeric_limits<T>::max()));
}

// The list under `key`, which must hold `expected` entries; `because` names the count.
const Json& List(const Json& object, const std::string& path, const std::string& key,
                 int64_t expected, const std::string& because) {
    const Json& list = Member(object, path, key);
    if (!list.is_array())
        Refuse(Join(path, key), "not a list");
    if (expected >= 0 && static_cast<int64_t>(list.size()) != expected)
        Refuse(Join(path, key), std::to_string(list.size()) + " entries, " + because);
    return list;
}

std::vector<uint8_t> ByteList(const Json& object, const std::string& path, const std::string& key,
                              int corners, const std::string& because) {
    const Json& list = List(object, path, key, corners, because);
    std::vector<uint8_t> values(static_cast<size_t>(corners) + 1, 0);
    for (size_t k = 0; k < list.size(); ++k)
        values[k] = Item<uint8_t>(list, Join(path, key), k);
    return values;
}

Node NodeFrom(const Json& json, const std::string& path) {
    return Node{Field<int16_t>(json, path, "y"), Field<int16_t>(json, path, "z"),
                Field<int16_t>(json, path, "x"), Field<int16_t>(json, path, "b")};
}

Piggyback PiggybackFrom(const Json& json, const std::string& path) {
    Piggyback item;
    item.COD = Field<uint8_t>(json, path, "cod");
    if (item.COD != 0 && (item.COD < kFirstDisplayCode || item.COD > kLastDisplayCode))
        Refuse(Join(path, "cod"), std::to_string(item.COD) + " is not 0 nor 7 to 254");
    item.Flag = Field<uint8_t>(json, path, "flag");
    item.Type = Field<uint8_t>(json, path, "type");
    // Without a display code in front, such a Type byte would open a display prefix.
    if (item.COD == 0 && item.Type >= kFirstDisplayCode && item.Type <= kLastDisplayCode)
        Refuse(Join(path, "type"), std::to_string(item.Type) + " needs a display code (cod)");
    item.CRN = Field<uint8_t>(json, path, "crn");

    const KindLayout layout = LayoutOf(item.Type);
    const int corners = CornerCount(item.Type, item.CRN);
    const std::string because =
        layout.storesCRN ? "crn is " + std::to_string(item.CRN)
                         : "type " + std::to_string(item.Type) + " has " + std::to_string(corners);
    if (item.Type == kTypeNull) {
        List(json, path, "nodes", 0, because);
        return item;
    }
    item.NodeList = ByteList(json, path, "nodes", corners, because);
    if (layout.hasXMap)
        item.XMap = ByteList(json, path, "xmap", corners, because);
    if (layout.hasYMap)
        item.YMap = ByteList(json, path, "ymap", corners, because);
    if (layout.hasAtt1)
        item.Att1 = Field<uint8_t>(json, path, "att1");
    if (layout.hasAtt2)
        item.Att2 = Field<uint8_t>(json, path, "att2");
    return item;
}

void TextureFrom(const Json& json, FileRecord& record) {
    const Json& value = Member(json, "", "texture");
    if (!value.is_string())
        Refuse("texture", "not a string");
    std::string latin1;
    if (!Utf8ToLatin1(value.get<std::string>(), latin1))
        Refuse("texture", "holds a character above U+00FF");
    if (latin1.size() != record.Texture.size())
        Refuse("texture", std::to_string(latin1.size()) + " characters, must be " +
                              std::to_string(record.Texture.size()));
    std::copy(latin1.begin(), latin1.end(), record.Texture.begin());
}

void ElementsFrom(const Json& json, FileRecord& record, size_t elements) {
    const Json& lists = List(json, "", "elements", static_cast<int64_t>(elements),
                             "num_elements is " + std::to_string(record.NumElements));
    for (size_t i = 0; i < elements; ++i) {
        const std::string path = At("elements", i);
        const Json& items = lists[i];
        if (!items.is_array())
            Refuse(path, "not a list");
        if (items.size() > static_cast<size_t>(std::numeric_limits<int16_t>::max()))
            Refuse(path, std::to_string(items.size()) + " entries, at most 32767");
        ElementList& list = record.Elements[i];
        list.Count = static_cast<int16_t>(items.size());
        list.Items.resize(items.size() + 1);
        for (size_t j = 0; j < items.size(); ++j) {
            list.Items[j] = PiggybackFrom(items[j], At(path, j));
            const size_t number = i * 100 + j;
            if (number <= static_cast<size_t>(std::numeric_limits<int16_t>::max()))
                list.Items[j].Number = static_cast<int16_t>(number);
        }
    }
}

void RecordFrom(const Json& json, FileRecord& record) {
    const Json& format = Member(json, "", "format");
    if (!format.is_string() || format.get<std::string>() != kMoxJsonFormat)
        Refuse("format", std::string("must be \"") + kMoxJsonFormat + "\"");
    record.Radius = Field<int16_t>(json, "", "radius");
    TextureFrom(json, record);
    record.NumParts = Field<int16_t>(json, "", "num_parts");
    record.NumNodes = Field<int16_t>(json, "", "num_nodes");
    record.NumElements = Field<int16_t>(json, "", "num_elements");
    const size_t partRecords = static_cast<size_t>(std::max(record.NumParts - 1, 0));
    const size_t nodes = static_cast<size_t>(std::max<int>(record.NumNodes, 0));
    const size_t elements = static_cast<size_t>(std::max<int>(record.NumElements, 0));
    record.Parts.resize(static_cast<size_t>(std::max<int>(record.NumParts, 0)));
    record.NRM.resize(elements + 1);
    record.PART.resize(elements + 1);
    record.Nodes.resize(nodes + 1);
    record.Offsets.resize(elements + 1);
    record.Elements.resize(elements + 1);

    const Json& parts = List(json, "", "parts", static_cast<int64_t>(partRecords),
                             "num_parts - 1 is " + std::to_string(partRecords));
    for (size_t p = 0; p < partRecords; ++p) {
        const std::string path = At("parts", p);
        record.Parts[p] =
            Part{Field<uint8_t>(parts[p], path, "code"), Field<uint8_t>(parts[p], path, "num"),
                 Field<int16_t>(parts[p], path, "y"), Field<int16_t>(parts[p], path, "z"),
                 Field<int16_t>(parts[p], path, "x")};
    }
    const std::string elementCount = "num_elements is " + std::to_string(record.NumElements);
    const Json& planes = List(json, "", "planes", static_cast<int64_t>(elements), elementCount);
    for (size_t i = 0; i < elements; ++i) {
        const std::string path = At("planes", i);
        record.NRM[i] =
            NRMRecord{Field<int16_t>(planes[i], path, "y"), Field<int16_t>(planes[i], path, "z"),
                      Field<int16_t>(planes[i], path, "x"), Field<int32_t>(planes[i], path, "d"),
                      Field<int16_t>(planes[i], path, "f")};
    }
    const Json& root = List(json, "", "root", 2, "a root is a pair");
    record.Root = {Item<uint8_t>(root, "root", 0), Item<uint8_t>(root, "root", 1)};
    const Json& children = List(json, "", "children", static_cast<int64_t>(elements), elementCount);
    for (size_t i = 0; i < elements; ++i) {
        const std::string path = At("children", i);
        if (!children[i].is_array() || children[i].size() != 2)
            Refuse(path, "not a pair");
        record.PART[i] = {Item<uint8_t>(children[i], path, 0), Item<uint8_t>(children[i], path, 1)};
    }
    const Json& nodeList = List(json, "", "nodes", static_cast<int64_t>(nodes),
                                "num_nodes is " + std::to_string(record.NumNodes));
    for (size_t n = 0; n < nodes; ++n)
        record.Nodes[n] = NodeFrom(nodeList[n], At("nodes", n));
    ElementsFrom(json, record, elements);
}

} // namespace

Json MoxToJson(const FileRecord& record, const std::vector<std::string>& messages) {
    Json json;
    json["format"] = kMoxJsonFormat;
    json["radius"] = record.Radius;
    json["texture"] = Latin1ToUtf8(std::string(record.Texture.begin(), record.Texture.end()));
    json["num_parts"] = record.NumParts;
    json["num_nodes"] = record.NumNodes;
    json["num_elements"] = record.NumElements;

    Json parts = Json::array();
    for (int p = 0; p < record.NumParts - 1; ++p) {
        const Part part = EntryOr(record.Parts, p);
        parts.push_back(Json{
            {"code", part.Code}, {"num", part.Num}, {"x", part.X}, {"y", part.Y}, {"z", part.Z}});
    }
    json["parts"] = parts;
    Json planes = Json::array();
    Json children = Json::array();
    Json offsets = Json::array();
    Json elements = Json::array();
    for (int i = 0; i < record.NumElements; ++i) {
        const NRMRecord plane = EntryOr(record.NRM, i);
        planes.push_back(
            Json{{"x", plane.X}, {"y", plane.Y}, {"z", plane.Z}, {"d", plane.D}, {"f", plane.F}});
        const ChildPair pair = EntryOr(record.PART, i);
        children.push_back(Json::array({pair[0], pair[1]}));
        offsets.push_back(EntryOr(record.Offsets, i));
        Json items = Json::array();
        if (static_cast<size_t>(i) < record.Elements.size()) {
            const ElementList& list = record.Elements[static_cast<size_t>(i)];
            const int count = std::min<int>(list.Count, static_cast<int>(list.Items.size()));
            for (int j = 0; j < count; ++j)
                items.push_back(PiggybackJson(list.Items[static_cast<size_t>(j)]));
        }
        elements.push_back(items);
    }
    json["planes"] = planes;
    json["root"] = Json::array({record.Root[0], record.Root[1]});
    json["children"] = children;
    Json nodes = Json::array();
    for (int n = 0; n < record.NumNodes; ++n)
        nodes.push_back(NodeJson(EntryOr(record.Nodes, n)));
    json["nodes"] = nodes;
    json["offsets"] = offsets;
    json["elements"] = elements;
    Json hardpoints = Json::array();
    for (const Node& slot : record.HP)
        hardpoints.push_back(NodeJson(slot));
    json["hardpoints"] = hardpoints;
    json["messages"] = messages;
    return json;
}

bool MoxFromJson(const Json& json, FileRecord& record, std::string& error) {
    FileRecord built;
    try {
        RecordFrom(json, built);
    } catch (const BadValue& bad) {
        error = bad.text;
        return false;
    }
    record = std::move(built);
    return true;
}
