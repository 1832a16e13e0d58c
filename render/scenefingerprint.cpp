#include "scenefingerprint.h"

#include "currentmodel.h"
#include "programstate.h"
#include "viewsettings.h"

#include <algorithm>
#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

namespace {

// A multiply-and-xor hash over plain numbers, a word at a time: it runs sixty times a second over
// the whole model, so it has to be cheap.
class Fingerprint {
public:
    template <typename T> void Add(const T& value) {
        static_assert(std::is_arithmetic_v<T> && sizeof(T) <= sizeof(uint64_t),
                      "only plain numbers are added as words");
        uint64_t word = 0;
        std::memcpy(&word, &value, sizeof(T));
        Mix(word);
    }
    void Add(const std::string& text) { AddBytes(text.data(), text.size()); }
    void Add(const std::vector<uint8_t>& bytes) { AddBytes(bytes.data(), bytes.size()); }
    template <typename T> void Add(const std::vector<T>& values) {
        Add(values.size());
        for (const T& value : values)
            Add(value);
    }
    void Add(const Node& node) { Mix(Pack16(node.X, node.Y, node.Z, node.B)); }
    void Add(const Part& part) {
        Add(part.Code);
        Add(part.Num);
        Add(part.X);
        Add(part.Y);
        Add(part.Z);
    }
    void Add(const NRMRecord& plane) {
        Mix(Pack16(plane.X, plane.Y, plane.Z, plane.F));
        Add(plane.D);
    }
    void Add(const ChildPair& pair) {
        Add(pair[0]);
        Add(pair[1]);
    }
    void Add(const Piggyback& item) {
        const uint8_t bytes[] = {item.COD, item.Flag, item.Type, item.CRN, item.Att1, item.Att2};
        uint64_t word = static_cast<uint16_t>(item.Number);
        std::memcpy(reinterpret_cast<unsigned char*>(&word) + 2, bytes, sizeof(bytes));
        Mix(word);
        Add(item.NodeList);
        Add(item.XMap);
        Add(item.YMap);
    }
    void Add(const ElementList& list) {
        Add(list.Count);
        Add(list.Items);
    }
    void Add(const FileRecord& record) {
        Add(record.Index);
        Add(record.Loaded);
        Add(record.TextureID);
        Add(record.PointStep);
        Add(record.NumParts);
        Add(record.NumNodes);
        Add(record.NumElements);
        Add(record.Parts);
        Add(record.NRM);
        Add(record.Root);
        Add(record.PART);
        Add(record.Nodes);
        Add(record.Elements);
        for (const Node& hardpoint : record.HP)
            Add(hardpoint);
    }
    void Add(const Colour& colour) {
        Add(colour.red);
        Add(colour.green);
        Add(colour.blue);
    }

    uint64_t Value() const { return hash_; }

private:
    static uint64_t Pack16(int16_t a, int16_t b, int16_t c, int16_t d) {
        return static_cast<uint64_t>(static_cast<uint16_t>(a)) |
               static_cast<uint64_t>(static_cast<uint16_t>(b)) << 16 |
               static_cast<uint64_t>(static_cast<uint16_t>(c)) << 32 |
               static_cast<uint64_t>(static_cast<uint16_t>(d)) << 48;
    }
    void Mix(uint64_t word) {
        hash_ = (hash_ ^ word) * kPrime;
        hash_ ^= hash_ >> 29;
    }
    void AddBytes(const void* data, size_t size) {
        Add(size);
        const auto* bytes = static_cast<const unsigned char*>(data);
        for (size_t at = 0; at < size; at += sizeof(uint64_t)) {
            uint64_t word = 0;
            std::memcpy(&word, bytes + at, std::min(sizeof(uint64_t), size - at));
            Mix(word);
        }
    }

    static constexpr uint64_t kPrime = 1099511628211ull;
    uint64_t hash_ = 14695981039346656037ull;
};

void AddModel(Fingerprint& print, const model& current) {
    print.Add(current.m_currmox);
    print.Add(current.m_zoom);
    print.Add(current.m_xpos);
    print.Add(current.m_ypos);
    print.Add(current.m_xrot);
    print.Add(current.m_yrot);
    print.Add(current.m_bank);
    print.Add(current.m_currelem);
    print.Add(current.m_currnode);
    print.Add(current.m_pilot);
    print.Add(current.m_lg);
    print.Add(current.m_wing);
    print.Add(current.M_Type);
    print.Add(current.Files);
}

void AddView(Fingerprint& print, const ViewSettings& view) {
    print.Add(view.ViewMode);
    print.Add(view.ToolMode);
    print.Add(view.ModifyAxis);
    print.Add(view.CurrentTab);
    for (bool tick :
         {view.mnu_v_texture, view.mnu_v_faces, view.mnu_v_nodes, view.mnu_v_rs, view.mnu_m_move,
          view.mnu_m_a_x, view.mnu_m_a_y, view.mnu_m_a_z, view.chk_thismox})
        print.Add(tick);
}

void AddProgram(Fingerprint& print, const ProgramState& program) {
    print.Add(program.LineWeight);
    print.Add(program.LineColour);
    print.Add(program.SkyColour);
    const ProjectRecord& project = program.ProjectData;
    for (int16_t number : {project.Type, project.TopLeftX, project.TopLeftY, project.TopLeftZ})
        print.Add(number);
    for (int32_t image : {project.LeftImage, project.TopImage, project.FrontImage,
                          project.BottomImage, project.RightImage, project.BackImage})
        print.Add(image);
}

} // namespace

uint64_t SceneFingerprint() {
    Fingerprint print;
    AddModel(print, CurrentModel());
    AddView(print, View());
    AddProgram(print, Program());
    return print.Value();
}
