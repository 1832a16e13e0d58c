#include "scenefingerprint.h"

#include "currentmodel.h"
#include "programstate.h"
#include "viewsettings.h"

#include <cstring>
#include <string>
#include <type_traits>
#include <vector>

namespace {

// FNV-1a over the values as they lie in memory; every value added is a plain number.
class Fingerprint {
public:
    template <typename T> void Add(const T& value) {
        static_assert(std::is_arithmetic_v<T>, "only numbers are added byte by byte");
        unsigned char bytes[sizeof(T)];
        std::memcpy(bytes, &value, sizeof(T));
        AddBytes(bytes, sizeof(T));
    }
    void Add(const std::string& text) {
        Add(text.size());
        AddBytes(text.data(), text.size());
    }
    template <typename T> void Add(const std::vector<T>& values) {
        Add(values.size());
        for (const T& value : values)
            Add(value);
    }
    void Add(const Node& node) {
        Add(node.X);
        Add(node.Y);
        Add(node.Z);
        Add(node.B);
    }
    void Add(const Part& part) {
        Add(part.Code);
        Add(part.Num);
        Add(part.X);
        Add(part.Y);
        Add(part.Z);
    }
    void Add(const NRMRecord& plane) {
        Add(plane.X);
        Add(plane.Y);
        Add(plane.Z);
        Add(plane.D);
        Add(plane.F);
    }
    void Add(const ChildPair& pair) {
        Add(pair[0]);
        Add(pair[1]);
    }
    void Add(const Piggyback& item) {
        Add(item.Number);
        Add(item.COD);
        Add(item.Flag);
        Add(item.Type);
        Add(item.CRN);
        Add(item.NodeList);
        Add(item.XMap);
        Add(item.YMap);
        Add(item.Att1);
        Add(item.Att2);
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
    void AddBytes(const void* data, size_t size) {
        const auto* bytes = static_cast<const unsigned char*>(data);
        for (size_t i = 0; i < size; ++i) {
            hash_ ^= bytes[i];
            hash_ *= kPrime;
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
