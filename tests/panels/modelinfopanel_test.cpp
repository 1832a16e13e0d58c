// The Model Info panel: its fill and the ranges it gives the other tabs' choosers, the commits
// of radius and texture, and the choice of the connected file.
#include "currentmodel.h"
#include "panelfixture.h"

#include <QComboBox>
#include <QSpinBox>
#include <QTest>

namespace {

MoxBuilder FileWith(int parts, int nodes, int16_t radius) {
    MoxBuilder file;
    file.radius = radius;
    file.parts.resize(static_cast<size_t>(parts));
    file.nodes.resize(static_cast<size_t>(nodes));
    file.root = {0, kNoElement};
    file.streams = {StreamBytes().Hardpoint(27, 0).End().bytes, StreamBytes().End().bytes};
    file.SetTexture("SKIN.TPC");
    return file;
}

TEST_F(PanelTest, ModelInfoFillShowsTheHeadAndSetsTheChoosers) {
    struct Row {
        int partRecords;
        bool partSpinOn;
        int partTop;
    };
    for (const Row& row : {Row{0, false, 0}, Row{2, true, 1}, Row{5, true, 4}}) {
        Open(FileWith(row.partRecords, 7, -35));
        EXPECT_EQ(Text("txt_1_radius"), "-35");
        EXPECT_EQ(Text("txt_1_texture").trimmed(), "SKIN.TPC");
        EXPECT_EQ(Text("txt_1_numparts"), QString::number(row.partRecords + 1));
        EXPECT_EQ(Text("txt_1_numelems"), "2");
        EXPECT_EQ(Text("txt_1_numnodes"), "7");
        EXPECT_EQ(Find<QSpinBox>("upd_2_part").isEnabled(), row.partSpinOn);
        if (row.partSpinOn) {
            EXPECT_EQ(Find<QSpinBox>("upd_2_part").maximum(), row.partTop);
        }
        EXPECT_EQ(Find<QSpinBox>("upd_4_node").maximum(), 6);
    }
}

TEST_F(PanelTest, RadiusAndTextureCommitOnEnter) {
    model& current = Open(FileWith(0, 1, 100));
    struct Row {
        QString typed;
        int16_t radius;
        QString shown;
    };
    for (const Row& row : {Row{"-250", -250, "-250"}, Row{"12-3", 12, "12-3"}, Row{"-", 12, "12"},
                           Row{"40000", 32767, "32767"}}) {
        Enter("txt_1_radius", row.typed);
        EXPECT_EQ(current.Files[0].Radius, row.radius) << row.typed.toStdString();
        EXPECT_EQ(Text("txt_1_radius"), row.shown) << row.typed.toStdString();
    }
    Enter("txt_1_texture", "NEW 2.TPC");
    const TextureName& texture = current.Files[0].Texture;
    EXPECT_EQ(std::string(texture.begin(), texture.end()), "NEW 2.TPC     ");
    Enter("txt_1_texture", "");
    EXPECT_EQ(std::string(texture.begin(), texture.end()), "NEW 2.TPC     ");
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(PanelTest, ChoosingAConnectedFileThatIsNotLoaded) {
    const auto choose = [this](int row) { Choose("cbo_1_mox", row); };
    choose(3);
    model& current = Open(FileWith(0, 1, 100));
    current.Files[2] = current.Files[0];
    current.Files[2].Radius = 222;
    current.m_currelem = 5;
    choose(2);
    EXPECT_EQ(current.m_currmox, 2);
    EXPECT_EQ(current.m_currelem, 0);
    EXPECT_EQ(Text("txt_1_radius"), "222");
    choose(3);
    EXPECT_EQ(host.messages, (std::vector<std::string>{"Model Not Loaded", "Model Not Loaded"}));
    EXPECT_EQ(current.m_currmox, 0);
    EXPECT_EQ(Find<QComboBox>("cbo_1_mox").currentIndex(), 0);
}

} // namespace
