#include "moxreader.h"

#include "cornerblock.h"
#include "elementkind.h"
#include "modelhost.h"
#include "programstate.h"
#include "textureloader.h"
#include "texturepath.h"

#include <algorithm>
#include <array>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <limits>

namespace {

constexpr const char* kTooManyEntries = "Error in MOX file.  Around element number: ";
constexpr const char* kBadTexture = "Cannot load texture. Must be a PCX file!";

// Array sizes follow the counts; a negative count sizes as 0.
size_t SizeFor(int count) {
    return static_cast<size_t>(std::max(count, 0));
}

// An entry without corners keeps empty lists, as the blank entries below do: a lone spare value
// would mean nothing.
void ReadCorners(MoxInput& file, Piggyback& entry, const KindLayout& layout) {
    const size_t corners = entry.CRN;
    entry.NodeList.clear();
    entry.XMap.clear();
    entry.YMap.clear();
    if (corners == 0)
        return;
    std::array<uint8_t, kMaxCornerBytes> block;
    file.ReadBlock(block.data(), corners * BytesPerCorner(layout));
    SplitCorners(block.data(), corners, layout, entry);
}

void ReadTables(MoxInput& file, FileRecord& record) {
    record.Radius = file.ReadInt16();
    for (uint8_t& c : record.Texture)
        c = file.ReadByte();
    record.NumParts = file.ReadInt16();
    record.NumNodes = file.ReadInt16();
    record.NumElements = file.ReadInt16();

    record.Parts.resize(SizeFor(record.NumParts));
    record.NRM.resize(SizeFor(record.NumElements) + 1);
    record.PART.resize(SizeFor(record.NumElements) + 1);
    record.Offsets.resize(SizeFor(record.NumElements) + 1);
    record.Elements.resize(SizeFor(record.NumElements) + 1);
    record.Nodes.resize(SizeFor(record.NumNodes) + 1);

    // The arrays start as zeros, which is all a read beyond the end of the file would give them:
    // the loops stop there, so that a short file with large counts costs no more than its bytes.
    for (int p = 0; p < record.NumParts - 1 && !file.RunOut(); ++p) {
        Part& part = record.Parts[p];
        part.Code = file.ReadByte();
        part.Num = file.ReadByte();
        part.Y = file.ReadInt16();
        part.Z = file.ReadInt16();
        part.X = file.ReadInt16();
    }
    for (int i = 0; i < record.NumElements && !file.RunOut(); ++i) {
        NRMRecord& plane = record.NRM[i];
        plane.Y = file.ReadInt16();
        plane.Z = file.ReadInt16();
        plane.X = file.ReadInt16();
        plane.D = file.ReadInt32();
        plane.F = file.ReadInt16();
    }
    record.Root[0] = file.ReadByte();
    record.Root[1] = file.ReadByte();
    for (int i = 0; i < record.NumElements && !file.RunOut(); ++i) {
        record.PART[i][0] = file.ReadByte();
        record.PART[i][1] = file.ReadByte();
    }
    for (int n = 0; n < record.NumNodes && !file.RunOut(); ++n) {
        Node& node = record.Nodes[n];
        node.Y = file.ReadInt16();
        node.Z = file.ReadInt16();
        node.X = file.ReadInt16();
        node.B = file.ReadInt16();
    }
    for (int i = 0; i < record.NumElements && !file.RunOut(); ++i)
        record.Offsets[i] = file.ReadInt16();
}

// A hardpoint entry copies the node at its first corner into the HP slot of its code; a node
// outside Nodes leaves the slot as it was.
void NoteHardpoint(FileRecord& record, const Piggyback& entry) {
    const int slot = HardpointSlot(entry.Att1);
    const size_t node = entry.NodeList[0];
    if (slot > 0 && node < record.Nodes.size())
        record.HP[slot] = record.Nodes[node];
}

void SetNumber(Piggyback& entry, int element, int position) {
    // A Number beyond 16 bits cannot be given; the entry keeps 0 then.
    const int number = element * 100 + position;
    if (number <= std::numeric_limits<int16_t>::max())
        entry.Number = static_cast<int16_t>(number);
}

// Where every read gives zero - the file is closed, or the stream lies beyond the end of the
// file - every entry still to come is the one reading zeros gives: kind 0, no corners, never the
// last. Such entries are made at once rather than read one by one; their corner lists would hold
// only the spare entry, which means nothing, so they stay empty. This keeps the many thousands of
// them a damaged file can give cheap, and the entries write back to the same bytes.
void AppendBlanks(ElementList& list, int element, int64_t count) {
    const int first = std::max<int>(list.Count, 0);
    const int last = first + static_cast<int>(count);
    list.Items.resize(static_cast<size_t>(last) + 1);
    for (int j = first; j < last; ++j)
        SetNumber(list.Items[j], element, j);
    list.Count = static_cast<int16_t>(last);
}

// The stream of `element` ran past the file or a limit: the user is told, and nothing more of the
// file is read.
void CutOff(MoxInput& file, int element) {
    ShowMessage(kTooManyEntries + std::to_string(element));
    file.Close();
}

// Reads the stream of element `element` into its list, `read` being room to gather its entries
// in, so that the list is given its room once. True when the stream ended by itself, with no
// limit reached: the list then holds all the stream has.
bool ReadStream(MoxInput& file, FileRecord& record, int element, int64_t& entriesHeld,
                std::vector<Piggyback>& read) {
    file.Seek(record.Offsets[element]);
    read.clear();
    int64_t blanks = 0;
    bool whole = false;
    for (bool ended = false; !ended;) {
        if (file.RunOut()) {
            // The list grows with blank entries until one of the limits below stops it.
            blanks = std::min<int64_t>(kMaxPiggybacks + 1 - static_cast<int64_t>(read.size()),
                                       kMaxEntriesPerRecord - entriesHeld);
            entriesHeld += blanks;
            CutOff(file, element);
            break;
        }
        Piggyback& entry = read.emplace_back();
        READ_ELEMENT_MOX(file, entry);
        ++entriesHeld;
        SetNumber(entry, element, static_cast<int>(read.size()) - 1);
        if (entry.Type == kTypeHardpoint)
            NoteHardpoint(record, entry);
        ended = whole = entry.NextByte == kTypeNull;
        // The byte read as NextByte opens the next entry.
        file.StepBack();
        if (static_cast<int>(read.size()) > kMaxPiggybacks || entriesHeld >= kMaxEntriesPerRecord) {
            CutOff(file, element);
            ended = true;
            whole = false;
        }
    }
    ElementList& list = record.Elements[element];
    list.Items.reserve(read.size() + static_cast<size_t>(blanks) + 1);
    list.Items.assign(std::make_move_iterator(read.begin()), std::make_move_iterator(read.end()));
    list.Count = static_cast<int16_t>(read.size());
    AppendBlanks(list, element, blanks);
    return whole;
}

// Element `element` starts where the one before it did, whose stream was read whole: reading it
// again would give the same entries, and note the same hardpoints again, so the entries are copied
// and only their numbers are their own.
void CopyPreviousList(FileRecord& record, int element) {
    ElementList& list = record.Elements[element];
    list = record.Elements[element - 1];
    for (int j = 0; j < list.Count; ++j) {
        list.Items[j].Number = 0;
        SetNumber(list.Items[j], element, j);
    }
}

void ReadElements(MoxInput& file, FileRecord& record) {
    int64_t entriesHeld = 0;
    std::vector<Piggyback> read;
    bool previousWhole = false;
    for (int i = 0; i < record.NumElements; ++i) {
        if (file.IsClosed()) {
            // Reading on would give a full list of blank entries, all alike: one stands for them.
            AppendBlanks(record.Elements[i], i, 1);
            ShowMessage(kTooManyEntries + std::to_string(i));
        } else if (previousWhole && record.Offsets[i] == record.Offsets[i - 1] &&
                   entriesHeld + record.Elements[i - 1].Count < kMaxEntriesPerRecord) {
            CopyPreviousList(record, i);
            entriesHeld += record.Elements[i].Count;
        } else {
            previousWhole = ReadStream(file, record, i, entriesHeld, read);
        }
    }
}

std::vector<uint8_t> ReadFileStart(const std::string& filename) {
    std::vector<uint8_t> bytes;
    std::ifstream in(filename, std::ios::binary | std::ios::ate);
    const std::streamoff size = in ? static_cast<std::streamoff>(in.tellg()) : 0;
    if (size <= 0)
        return bytes;
    bytes.resize(std::min(static_cast<size_t>(size), kMaxUsefulFileBytes));
    in.seekg(0);
    in.read(reinterpret_cast<char*>(bytes.data()), static_cast<std::streamsize>(bytes.size()));
    bytes.resize(static_cast<size_t>(std::max<std::streamsize>(in.gcount(), 0)));
    return bytes;
}

} // namespace

void READ_ELEMENT_MOX(MoxInput& file, Piggyback& entry) {
    entry.Type = file.ReadByte();
    entry.COD = 0;
    entry.Flag = 0;
    if (entry.Type >= kFirstDisplayCode && entry.Type <= kLastDisplayCode) {
        entry.COD = entry.Type;
        entry.Flag = file.ReadByte();
        entry.Type = file.ReadByte();
    }
    if (entry.Type == kTypeNull) {
        entry.NextByte = kTypeNull;
        return;
    }
    const KindLayout layout = LayoutOf(entry.Type);
    if (layout.storesCRN) {
        entry.CRN = file.ReadByte();
        ReadCorners(file, entry, layout);
    } else if (entry.Type == kTypeColouredLine) {
        entry.NodeList.assign(3, 0);
        entry.NodeList[0] = file.ReadByte();
        entry.NodeList[1] = file.ReadByte();
        entry.CRN = 2;
    } else { // kTypeHardpoint: the code comes before the one node
        entry.NodeList.assign(2, 0);
        entry.Att1 = file.ReadByte();
        entry.NodeList[0] = file.ReadByte();
        entry.CRN = 1;
        entry.NextByte = file.ReadByte();
        return;
    }
    if (layout.hasAtt1)
        entry.Att1 = file.ReadByte();
    if (layout.hasAtt2)
        entry.Att2 = file.ReadByte();
    entry.NextByte = file.ReadByte();
}

FileRecord ReadMoxBytes(const std::vector<uint8_t>& bytes, const std::string& Filename,
                        int16_t Index) {
    FileRecord record;
    record.Filename = Filename;
    MoxInput file(bytes);
    ReadTables(file, record);
    record.HP[0] = Node{};
    ReadElements(file, record);

    TextureLoader* loader = CurrentTextureLoader();
    record.PointStep = loader != nullptr ? loader->PointSizeGranularity() : 1.0f;
    // The texture is looked for in the model's folder; the current directory is left alone.
    if (loader != nullptr &&
        !loader->LoadGLTexture(TexturePath(Filename, record.Texture), record.TextureID, Index))
        ShowMessage(kBadTexture);

    record.Index = Index;
    record.Loaded = true;
    Program().ProjectData.Type = 1;
    return record;
}

FileRecord READ_MOX(const std::string& Filename, int16_t Index) {
    std::error_code error;
    if (Filename.empty() || !std::filesystem::is_regular_file(Filename, error))
        return FileRecord{};
    return ReadMoxBytes(ReadFileStart(Filename), Filename, Index);
}
