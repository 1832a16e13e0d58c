// The Parts panel: the fill of the chosen part, the row of predefined codes it shows, and the
// commits of its lists and spins.
#include "currentmodel.h"
#include "panelfixture.h"
#include "viewsettings.h"

#include <QComboBox>
#include <QSpinBox>

namespace {

MoxBuilder FileWithParts(const std::vector<Part>& parts) {
    MoxBuilder file;
    file.parts = parts;
    file.nodes = {Node{}};
    file.root = {0, kNoElement};
    file.streams = {StreamBytes().Hardpoint(27, 0).End().bytes};
    return file;
}

TEST_F(PanelTest, PartsFillShowsThePredefinedRowOfCodeAndNum) {
    struct Row {
        uint8_t code;
        uint8_t num;
        QString shown;
    };
    const std::vector<Row> rows = {{2, 0, "2-0 Wing L.G. - No Fold"},
                                   {2, 3, "2-3 Same as 2-1"},
                                   {2, 4, "2-4 Left Eng. in Twins"},
                                   {2, 7, "2-7 No.4 Eng. in 4-Engs"},
                                   {1, 1, "1-1 Gear Retracts Rear"},
                                   {1, 3, "1-3 Same as 1-2"},
                                   {1, 0, "-- NONE --"},
                                   {1, 6, "-- NONE --"},
                                   {0, 5, "-- NONE --"}};
    for (const Row& row : rows) {
        Open(FileWithParts({Part{row.code, row.num, 1, 2, 3}}));
        CurrentModel().WriteInfo(kPartsTab);
        EXPECT_EQ(Find<QComboBox>("cbo_2_predef").currentText(), row.shown)
            << int(row.code) << "-" << int(row.num);
        EXPECT_EQ(Find<QComboBox>("cbo_2_code").currentIndex(), row.code);
        EXPECT_EQ(Find<QComboBox>("cbo_2_num").currentIndex(), row.num);
        EXPECT_EQ(Text("txt_2_x"), "3");
        EXPECT_EQ(Text("txt_2_y"), "1");
    }
}

TEST_F(PanelTest, PartsChoicesWriteTheShownPart) {
    model& current = Open(FileWithParts({Part{0, 0, 1, 2, 3}, Part{1, 1, 4, 5, 6}}));
    Find<QSpinBox>("upd_2_part").setValue(1);
    EXPECT_EQ(Text("txt_2_part"), "1");
    EXPECT_EQ(Text("txt_2_z"), "5");

    Choose("cbo_2_predef", 5);
    const Part& part = current.Files[0].Parts[1];
    EXPECT_EQ(part.Code, 2);
    EXPECT_EQ(part.Num, 4);
    current.WriteInfo(kPartsTab);
    EXPECT_EQ(Find<QComboBox>("cbo_2_predef").currentText(), "2-4 Left Eng. in Twins");

    Choose("cbo_2_code", 0);
    Enter("txt_2_x", "-40000");
    EXPECT_EQ(part.Code, 0);
    EXPECT_EQ(part.X, -32767);
    EXPECT_EQ(current.Files[0].Parts[0].X, 3);
}

TEST_F(PanelTest, PartsFillStopsAtACodeItsListCannotShow) {
    Open(FileWithParts({Part{0, 0, 0, 0, 0}}));
    CurrentModel().WriteInfo(kPartsTab);
    Open(FileWithParts({Part{5, 2, 7, 8, 9}}));
    CurrentModel().WriteInfo(kPartsTab);
    EXPECT_EQ(Text("txt_2_x"), "9");
    EXPECT_EQ(Find<QComboBox>("cbo_2_code").currentIndex(), 0);
    EXPECT_EQ(Find<QComboBox>("cbo_2_num").currentIndex(), 0);
}

} // namespace
