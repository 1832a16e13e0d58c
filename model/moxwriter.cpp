#include "moxwriter.h"

#include "arrayentry.h"
#include "elementkind.h"
#include "filereplace.h"
#include "modelhost.h"

#include <algorithm>

namespace {

constexpr const char* kSaveError = "Error in Save...";
// What an element that the record lacks is written as: the stream FF.
const ElementList kNoEntries;

void WriteEntry(MoxOutput& file, const Piggyback& item, int32_t& n) {
    if (item.COD != 0) {
        file.PutByte(item.COD);
        file.PutByte(item.Flag);
        n += 2;
    }
    file.PutByte(item.Type);
    ++n;
    const auto put = [&](uint8_t value) {
        file.PutByte(value);
        ++n;
    };
    if (item.Type == kTypeColouredLine) {
        put(EntryOr(item.NodeList, 0));
        put(EntryOr(item.NodeList, 1));
        put(item.Att1);
        return;
    }
    if (item.Type == kTypeHardpoint) {
        put(item.Att1);
        put(EntryOr(item.NodeList, 0));
        return;
    }
    const KindLayout layout = LayoutOf(item.Type);
    put(item.CRN);
    for (int k = 0; k < item.CRN; ++k) {
        put(EntryOr(item.NodeList, k));
        if (layout.hasXMap)
            put(EntryOr(item.XMap, k));
        if (layout.hasYMap)
            put(EntryOr(item.YMap, k));
    }
    if (layout.hasAtt1)
        put(item.Att1);
    if (layout.hasAtt2)
        put(item.Att2);
}

void WriteTables(MoxOutput& file, const FileRecord& record) {
    file.PutInt16(record.Radius);
    for (const uint8_t c : record.Texture)
        file.PutByte(c);
    file.PutInt16(record.NumParts);
    file.PutInt16(record.NumNodes);
    file.PutInt16(record.NumElements);
    for (int p = 0; p < record.NumParts - 1; ++p) {
        const Part part = EntryOr(record.Parts, p);
        file.PutByte(part.Code);
        file.PutByte(part.Num);
        file.PutInt16(part.Y);
        file.PutInt16(part.Z);
        file.PutInt16(part.X);
    }
    for (int i = 0; i < record.NumElements; ++i) {
        const NRMRecord plane = EntryOr(record.NRM, i);
        file.PutInt16(plane.Y);
        file.PutInt16(plane.Z);
        file.PutInt16(plane.X);
        file.PutInt32(plane.D);
        file.PutInt16(plane.F);
    }
    file.PutByte(record.Root[0]);
    file.PutByte(record.Root[1]);
    for (int i = 0; i < record.NumElements; ++i) {
        const ChildPair children = EntryOr(record.PART, i);
        file.PutByte(children[0]);
        file.PutByte(children[1]);
    }
    for (int n = 0; n < record.NumNodes; ++n) {
        const Node node = EntryOr(record.Nodes, n);
        file.PutInt16(node.Y);
        file.PutInt16(node.Z);
        file.PutInt16(node.X);
        file.PutInt16(node.B);
    }
}

// Where the first stream starts: behind the tables and the offsets.
int64_t FirstStreamStart(const FileRecord& record) {
    constexpr int64_t kHeaderBytes = 2 + kTextureNameLength + 3 * 2;
    constexpr int64_t kPartBytes = 8;
    constexpr int64_t kElementBytes = 14 + 2 + 2; // plane, children, offset
    constexpr int64_t kNodeBytes = 8;
    constexpr int64_t kRootBytes = 2;
    return kHeaderBytes + kPartBytes * std::max(record.NumParts - 1, 0) + kRootBytes +
           kElementBytes * std::max<int64_t>(record.NumElements, 0) +
           kNodeBytes * std::max<int64_t>(record.NumNodes, 0);
}

std::string StreamsTooFar(int element) {
    return "the streams of element " + std::to_string(element) + " would start beyond byte " +
           std::to_string(kMaxStreamOffset);
}

} // namespace

int32_t SAVE_ELEMENT_MOX(MoxOutput& file, const ElementList& list) {
    int32_t n = 0;
    const int count = std::min<int>(list.Count, static_cast<int>(list.Items.size()));
    for (int j = 0; j < count; ++j) {
        if (list.Items[j].Type != kTypeNull)
            WriteEntry(file, list.Items[j], n);
    }
    file.PutInt16(kTypeNull);
    return n + 1;
}

bool BuildMoxBytes(const FileRecord& record, std::vector<uint8_t>& bytes, std::string& problem) {
    if (record.NumElements > 0 && FirstStreamStart(record) > kMaxStreamOffset) {
        problem = StreamsTooFar(0);
        return false;
    }
    MoxOutput file;
    WriteTables(file, record);
    size_t table = file.Position();
    for (int i = 0; i < record.NumElements; ++i)
        file.PutInt16(0);
    size_t stream = file.Position();
    for (int i = 0; i < record.NumElements; ++i) {
        if (stream > static_cast<size_t>(kMaxStreamOffset)) {
            problem = StreamsTooFar(i);
            return false;
        }
        file.Seek(table);
        file.PutInt16(static_cast<int16_t>(stream));
        file.Seek(stream);
        const ElementList& list =
            static_cast<size_t>(i) < record.Elements.size() ? record.Elements[i] : kNoEntries;
        stream += static_cast<size_t>(SAVE_ELEMENT_MOX(file, list));
        table += 2;
    }
    bytes = file.Bytes();
    return true;
}

bool SAVE_MOX(const FileRecord& record, const std::string& Filename) {
    if (Filename.empty())
        return false;
    std::vector<uint8_t> bytes;
    std::string problem;
    if (!BuildMoxBytes(record, bytes, problem) || !ReplaceFileContents(Filename, bytes, problem)) {
        ShowMessage(std::string(kSaveError) + " " + problem);
        return false;
    }
    return true;
}
