#include "moxwriter.h"

#include "arrayentry.h"
#include "cornerblock.h"
#include "elementkind.h"
#include "filereplace.h"
#include "modelhost.h"

#include <algorithm>

namespace {

constexpr const char* kSaveError = "Error in Save...";
// What an element that the record lacks is written as: the stream FF.
const ElementList kNoEntries;

// The bytes an entry takes in its stream.
size_t EntrySize(const Piggyback& item, const KindLayout& layout) {
    const size_t head = item.COD != 0 ? 3 : 1;
    if (item.Type == kTypeColouredLine)
        return head + 3;
    if (item.Type == kTypeHardpoint)
        return head + 2;
    return head + 1 + item.CRN * BytesPerCorner(layout) + size_t{layout.hasAtt1} +
           size_t{layout.hasAtt2};
}

void WriteEntry(MoxOutput& file, const Piggyback& item, int32_t& n) {
    const KindLayout layout = LayoutOf(item.Type);
    const size_t size = EntrySize(item, layout);
    n += static_cast<int32_t>(size);
    ByteCursor out = file.Claim(size);
    if (item.COD != 0) {
        out.Byte(item.COD);
        out.Byte(item.Flag);
    }
    out.Byte(item.Type);
    if (item.Type == kTypeColouredLine) {
        out.Byte(EntryOr(item.NodeList, 0));
        out.Byte(EntryOr(item.NodeList, 1));
        out.Byte(item.Att1);
        return;
    }
    if (item.Type == kTypeHardpoint) {
        out.Byte(item.Att1);
        out.Byte(EntryOr(item.NodeList, 0));
        return;
    }
    out.Byte(item.CRN);
    JoinCorners(item, item.CRN, layout, out.Skip(item.CRN * BytesPerCorner(layout)));
    if (layout.hasAtt1)
        out.Byte(item.Att1);
    if (layout.hasAtt2)
        out.Byte(item.Att2);
}

// The bytes of the tables in front of the offsets.
int64_t TableSize(const FileRecord& record) {
    constexpr int64_t kHeaderBytes = 2 + kTextureNameLength + 3 * 2;
    constexpr int64_t kPartBytes = 8;
    constexpr int64_t kElementBytes = 12 + 2; // plane, children
    constexpr int64_t kNodeBytes = 8;
    constexpr int64_t kRootBytes = 2;
    return kHeaderBytes + kPartBytes * std::max(record.NumParts - 1, 0) + kRootBytes +
           kElementBytes * std::max<int64_t>(record.NumElements, 0) +
           kNodeBytes * std::max<int64_t>(record.NumNodes, 0);
}

void WriteTables(MoxOutput& file, const FileRecord& record) {
    ByteCursor out = file.Claim(static_cast<size_t>(TableSize(record)));
    out.Int16(record.Radius);
    for (const uint8_t c : record.Texture)
        out.Byte(c);
    out.Int16(record.NumParts);
    out.Int16(record.NumNodes);
    out.Int16(record.NumElements);
    for (int p = 0; p < record.NumParts - 1; ++p) {
        const Part part = EntryOr(record.Parts, p);
        out.Byte(part.Code);
        out.Byte(part.Num);
        out.Int16(part.Y);
        out.Int16(part.Z);
        out.Int16(part.X);
    }
    for (int i = 0; i < record.NumElements; ++i) {
        const NRMRecord plane = EntryOr(record.NRM, i);
        out.Int16(plane.Y);
        out.Int16(plane.Z);
        out.Int16(plane.X);
        out.Int32(plane.D);
        out.Int16(plane.F);
    }
    out.Byte(record.Root[0]);
    out.Byte(record.Root[1]);
    for (int i = 0; i < record.NumElements; ++i) {
        const ChildPair children = EntryOr(record.PART, i);
        out.Byte(children[0]);
        out.Byte(children[1]);
    }
    for (int n = 0; n < record.NumNodes; ++n) {
        const Node node = EntryOr(record.Nodes, n);
        out.Int16(node.Y);
        out.Int16(node.Z);
        out.Int16(node.X);
        out.Int16(node.B);
    }
}

// Where the first stream starts: behind the tables and the offsets.
int64_t FirstStreamStart(const FileRecord& record) {
    return TableSize(record) + 2 * std::max<int64_t>(record.NumElements, 0);
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
    bytes = file.Take();
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
