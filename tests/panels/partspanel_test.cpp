// The Parts panel: the fill of the chosen part, the row of predefined codes it shows, and the
// commits of its lists and spins.
#include "currentmodel.h"
#include "panelfixture.h"
#include "viewsettings.h"

#include <QComboBox>

namespace {

TEST_F(PanelTest, PartsFillShowsThePredefinedRowOfCodeAndNum) {
    struct Row {
        uint8_t code;
        uint8_t num;
        QString shown;
    };
    // A Code above 2 ends the fill at the list that cannot show it, after the pivot.
    const std::vector<Row> rows = {{2, 0, "2-0 Wing L.G. - No Fold"},
                                   {2, 3, "2-3 Same as 2-1"},
                                   {2, 7, "2-7 No.4 Eng. in 4-Engs"},
                                   {1, 1, "1-1 Gear Retracts Rear"},
                                   {1, 3, "1-3 Same as 1-2"},
                                   {1, 0, "-- NONE --"},
                                   {1, 6, "-- NONE --"},
                                   {0, 5, "-- NONE --"},
                                   {5, 2, ""}};
    for (size_t r = 0; r < rows.size(); ++r) {
        MoxBuilder file = SmallFile(1, 1);
        file.parts[0] = Part{rows[r].code, rows[r].num, 1, 2, 3};
        Open(file).WriteInfo(kPartsTab);
        // A fill that stops leaves the lists as the fill before showed them.
        const Row& listed = rows[r].code <= 2 ? rows[r] : rows[r - 1];
        EXPECT_EQ(QStringList({Find<QComboBox>("cbo_2_predef").currentText(),
                               QString::number(Find<QComboBox>("cbo_2_code").currentIndex()),
                               QString::number(Find<QComboBox>("cbo_2_num").currentIndex()),
                               Text("txt_2_x"), Text("txt_2_y")}),
                  QStringList({listed.shown, QString::number(listed.code),
                               QString::number(listed.num), "3", "1"}))
            << r;
    }
}

TEST_F(PanelTest, PartsChoicesWriteTheShownPart) {
    MoxBuilder file = SmallFile(1, 2);
    file.parts = {Part{0, 0, 1, 2, 3}, Part{1, 1, 4, 5, 6}};
    model& current = Open(file);
    Spin("upd_2_part").setValue(1);
    EXPECT_EQ(QStringList({Text("txt_2_part"), Text("txt_2_z")}), QStringList({"1", "5"}));

    Choose("cbo_2_predef", 5);
    const Part& part = current.Files[0].Parts[1];
    EXPECT_EQ(std::make_pair(part.Code, part.Num), std::make_pair(uint8_t{2}, uint8_t{4}));
    current.WriteInfo(kPartsTab);
    EXPECT_EQ(Find<QComboBox>("cbo_2_predef").currentText(), "2-4 Left Eng. in Twins");

    Choose("cbo_2_code", 0);
    Enter("txt_2_x", "-40000");
    EXPECT_EQ(std::make_tuple(part.Code, part.X, current.Files[0].Parts[0].X),
              std::make_tuple(uint8_t{0}, int16_t{-32767}, int16_t{3}));
}

} // namespace
