// The Model Info panel: its fill and the ranges it gives the other tabs' choosers, the commits
// of radius and texture, and the choice of the connected file.
#include "currentmodel.h"
#include "panelfixture.h"

#include <QComboBox>

#include <tuple>

namespace {

TEST_F(PanelTest, ModelInfoFillShowsTheHeadAndSetsTheChoosers) {
    for (const int partRecords : {0, 2, 5}) {
        MoxBuilder file = SmallFile(7, partRecords);
        file.radius = -35;
        file.SetTexture("SKIN.TPC");
        Open(file);
        const QStringList shown = {Text("txt_1_radius"), Text("txt_1_texture").trimmed(),
                                   Text("txt_1_numparts"), Text("txt_1_numelems"),
                                   Text("txt_1_numnodes")};
        EXPECT_EQ(shown,
                  QStringList({"-35", "SKIN.TPC", QString::number(partRecords + 1), "1", "7"}));
        EXPECT_EQ(std::make_tuple(Spin("upd_2_part").isEnabled(), Spin("upd_2_part").maximum(),
                                  Spin("upd_4_node").maximum()),
                  std::make_tuple(partRecords > 0, std::max(partRecords - 1, 0), 6));
    }
}

TEST_F(PanelTest, RadiusAndTextureCommitOnEnter) {
    model& current = Open(SmallFile());
    // Typed, then stored and shown.
    const std::tuple<QString, int16_t, QString> rows[] = {
        {"-250", -250, "-250"}, {"12-3", 12, "12-3"}, {"-", 12, "12"}, {"40000", 32767, "32767"}};
    for (const auto& [typed, radius, shown] : rows) {
        Enter("txt_1_radius", typed);
        EXPECT_EQ(current.Files[0].Radius, radius) << typed.toStdString();
        EXPECT_EQ(Text("txt_1_radius"), shown) << typed.toStdString();
    }
    const TextureName& texture = current.Files[0].Texture;
    for (const char* typed : {"NEW 2.TPC", ""}) {
        Enter("txt_1_texture", typed);
        EXPECT_EQ(std::string(texture.begin(), texture.end()), "NEW 2.TPC     ");
    }
    EXPECT_TRUE(host.messages.empty());
}

TEST_F(PanelTest, ChoosingAConnectedFileThatIsNotLoaded) {
    Choose("cbo_1_mox", 3);
    model& current = Open(SmallFile());
    current.Files[2] = current.Files[0];
    current.Files[2].Radius = 222;
    current.m_currelem = 5;
    Choose("cbo_1_mox", 2);
    EXPECT_EQ(std::make_tuple(current.m_currmox, current.m_currelem, Text("txt_1_radius")),
              std::make_tuple(2, 0, QString("222")));
    Choose("cbo_1_mox", 3);
    EXPECT_EQ(host.messages, (std::vector<std::string>{"Model Not Loaded", "Model Not Loaded"}));
    EXPECT_EQ(std::make_tuple(current.m_currmox, Find<QComboBox>("cbo_1_mox").currentIndex()),
              std::make_tuple(0, 0));
}

} // namespace
