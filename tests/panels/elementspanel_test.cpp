// The Elements panel driven through its widgets by name: what it shows for each element kind,
// the lock, the scrolling of a long polygon, the group spins, the buttons, and the commit of a
// field with its spin and buddy, on a file in memory.
#include "currentmodel.h"
#include "panelfixture.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTest>
#include <gtest/gtest.h>

#include <algorithm>
#include <tuple>

namespace {

constexpr int kCorners = 20;

// Corners k of nodes k with map values 10 + k and 50 + k.
std::vector<StreamBytes::Corner> Corners(int count) {
    std::vector<StreamBytes::Corner> corners;
    for (uint8_t k = 0; k < count; ++k)
        corners.push_back({k, uint8_t(10 + k), uint8_t(50 + k)});
    return corners;
}

class ElementsPanelTest : public PanelTest {
protected:
    void SetUp() override {
        PanelTest::SetUp();
        MoxBuilder file;
        for (int16_t k = 0; k < kCorners; ++k)
            file.nodes.push_back({int16_t(200 + k), int16_t(300 + k), int16_t(100 + k), 0});
        file.root = {0, kNoElement};
        file.streams = {
            StreamBytes().Line(1, 2, 7).Hardpoint(25, 3).End().bytes,
            StreamBytes().ColouredPoly({4, 5, 6, 7}, 9).End().bytes,
            StreamBytes().GouraudPoly({{1, 11}, {2, 12}, {3, 13}}).End().bytes,
            StreamBytes()
                .MappedPoly(5, Corners(3), 3, 4)
                .MappedPoly(6, Corners(4), 5, 6)
                .End()
                .bytes,
            StreamBytes().End().bytes,
            StreamBytes().MappedPoly(5, Corners(kCorners), 0, 0).End().bytes,
            StreamBytes().Prefix(200, 0).ColouredPoly({1, 2, 3}, 0).End().bytes,
            StreamBytes().MappedPoly(0, Corners(3), 0, 0).End().bytes,
        };
        Open(file);
    }

    QByteArray RowName(const char* column, int r) {
        return QByteArray(column) + '(' + QByteArray::number(r) + ')';
    }
    QString Row(const char* column, int r) { return Text(RowName(column, r)); }
    QCheckBox& Select(int r) { return Find<QCheckBox>(RowName("chk_3_select", r)); }
    QPushButton& Button(const char* name) { return Find<QPushButton>(name); }
    void Pick(int16_t number) {
        CurrentModel().m_currelem = number;
        Host().ShowPickedPiggyback(number);
    }
    int EnabledRows() {
        int rows = 0;
        while (rows < 12 && Select(rows).isEnabled())
            ++rows;
        return rows;
    }
    Piggyback& Item(int element, int position) {
        return CurrentModel().Files[0].Elements[element].Items[position];
    }
};

// What the panel shows of one piggyback: type, the captions of Att1 and of the X Map column, node
// and map values of row 0, Att1, Att2, X of row 0, the live rows, and which of "Add Corner" and
// "Delete This Piggyback" are enabled.
struct KindRow {
    int16_t number;
    QStringList shown;
};

TEST_F(ElementsPanelTest, EachKindShowsItsRowsColumnsAndCaptions) {
    const KindRow kinds[] = {
        {0, {"1 - Coloured Line", "Colour:", "X Map", "1", "", "", "7", "", "101", "2", "delpb"}},
        {1, {"2 - Hardpoint", "Code:", "X Map", "3", "", "", "25", "", "103", "1", "delpb"}},
        {100, {"3 - Coloured Poly", "Colour:", "X Map", "4", "", "", "9", "", "104", "4", "add"}},
        {200,
         {"4 - Gouraud Poly", "Attrib 1:", "Colour", "1", "11", "", "", "", "101", "3", "add"}},
        // NULL leaves both captions as the kind before left them.
        {400, {"255 - NULL", "Attrib 1:", "Colour", "", "", "", "", "", "", "0", "add"}},
        {300,
         {"5 - Textured Poly", "Attrib 1:", "X Map", "0", "10", "50", "3", "4", "100", "3",
          "add delpb"}},
        {301,
         {"6 - Transparent Poly", "Attrib 1:", "X Map", "0", "10", "50", "5", "6", "100", "4",
          "add delpb"}},
    };
    const std::vector<uint8_t> before = SavedBytes(CurrentModel().Files[0]);
    // Values the lists cannot show end the fill with one message for each pick, also when the
    // pick moves both the element and the piggyback.
    for (const int16_t number : {600, 700}) {
        Pick(301);
        host.calls.clear();
        Pick(number);
        const std::string shown =
            "message plain [Non-critical error!]: Error in WRITE_ELEMENT_MOX\n"
            "Element: " +
            std::to_string(number);
        EXPECT_EQ(std::count(host.calls.begin(), host.calls.end(), shown), 1) << number;
    }
    host.messages.clear();
    for (const KindRow& kind : kinds) {
        Pick(kind.number);
        EXPECT_EQ(Spin("upd_3_elem").value() * 100 + Spin("upd_3_pb").value(), kind.number);
        const QString buttons = QStringList({Button("cmd_3_add").isEnabled() ? "add" : "",
                                             Button("cmd_3_delpb").isEnabled() ? "delpb" : ""})
                                    .join(' ')
                                    .trimmed();
        QStringList shown = {Find<QComboBox>("cbo_3_type").currentText(),
                             Find<QLabel>("lbl_att1").text(), Find<QLabel>("lbl_xmap").text()};
        for (const char* field : {"txt_3_node(0)", "txt_3_xmap(0)", "txt_3_ymap(0)", "txt_3_att1",
                                  "txt_3_att2", "txt_3_x(0)"})
            shown << Text(field);
        shown << QString::number(EnabledRows()) << buttons;
        EXPECT_EQ(shown.join(" | ").toStdString(), kind.shown.join(" | ").toStdString());
    }
    EXPECT_EQ(Row("txt_3_ymap", 3), "53");
    EXPECT_TRUE(host.messages.empty());
    // Showing never writes: the file saves as it was read.
    EXPECT_EQ(SavedBytes(CurrentModel().Files[0]), before);
}

TEST_F(ElementsPanelTest, LockFreezesNodeNumbersOnlyOnShownRows) {
    Pick(100);
    Find<QCheckBox>("chk_3_lock").click();
    for (int r : {0, 3, 4}) {
        EXPECT_FALSE(Find<QLineEdit>(RowName("txt_3_node", r)).isEnabled());
        EXPECT_EQ(Find<QLineEdit>(RowName("txt_3_x", r)).isEnabled(), r < 4);
    }
    Pick(300);
    EXPECT_FALSE(Find<QLineEdit>("txt_3_node(0)").isEnabled());
    Find<QCheckBox>("chk_3_lock").click();
    EXPECT_TRUE(Find<QLineEdit>("txt_3_node(2)").isEnabled());
    EXPECT_FALSE(Find<QLineEdit>("txt_3_node(3)").isEnabled());
}

TEST_F(ElementsPanelTest, LongPolygonScrollsAndATypedCornerLandsAtItsPosition) {
    Pick(500);
    QScrollBar& bar = Find<QScrollBar>("vsc_3_nodeoffset");
    EXPECT_EQ(bar.maximum(), kCorners - 12);
    bar.setValue(5);
    EXPECT_EQ(Find<QLabel>("lbl_offset").text(), "5");
    EXPECT_EQ(Row("txt_3_node", 0), "5");
    EXPECT_EQ(Row("txt_3_ymap", 11), "66");
    Enter("txt_3_xmap(2)", "99");
    EXPECT_EQ(Item(5, 0).XMap[7], 99);
    // Any other fill shows the top of the list again.
    Spin("upd_3_node(1)").stepBy(1);
    EXPECT_EQ(Item(5, 0).NodeList[6], 7);
    EXPECT_EQ(bar.value(), 0);
    EXPECT_EQ(Row("txt_3_node", 0), "0");
    Pick(100);
    EXPECT_FALSE(bar.isEnabled());
}

TEST_F(ElementsPanelTest, GroupSpinsMoveTickedRowsOnly) {
    Pick(100);
    Select(0).click();
    Select(2).click();
    Spin("upd_3_x").stepBy(3);
    Spin("upd_3_z").stepBy(-1);
    const std::vector<Node>& nodes = CurrentModel().Files[0].Nodes;
    EXPECT_EQ(std::vector<int>({nodes[4].X, nodes[5].X, nodes[6].X, nodes[6].Z}),
              std::vector<int>({107, 105, 109, 305}));
    EXPECT_EQ(Row("txt_3_x", 2), "109");
    // The next step moves by one again, from the spin's last value.
    Spin("upd_3_x").stepBy(1);
    EXPECT_EQ(nodes[4].X, 108);
}

TEST_F(ElementsPanelTest, ButtonsReshapeTheCornersOfTheShownPiggyback) {
    Pick(100);
    Select(1).click();
    Click("cmd_3_moveup");
    EXPECT_TRUE(Select(0).isChecked());
    Select(0).click();
    Select(0).click();
    EXPECT_FALSE(Button("cmd_3_moveup").isEnabled());
    Click("cmd_3_add");
    EXPECT_EQ(EnabledRows(), 5);
    Select(1).click();
    Select(2).click();
    Click("cmd_3_delete");
    EXPECT_EQ(Item(1, 0).NodeList, (std::vector<uint8_t>{5, 7, 0, 0}));
    EXPECT_EQ(host.messages.size(), 1u);
    // Two steps up the Type list make the polygon a hardpoint, then a line.
    QTest::keyClick(&Find<QComboBox>("cbo_3_type"), Qt::Key_Up);
    QTest::keyClick(&Find<QComboBox>("cbo_3_type"), Qt::Key_Up);
    EXPECT_EQ(Item(1, 0).Type, 1);
    EXPECT_EQ(EnabledRows(), 2);
    Click("cmd_3_newpb");
    EXPECT_TRUE(Button("cmd_3_delpb").isEnabled());
    Click("cmd_3_newelem");
    EXPECT_EQ(CurrentModel().Files[0].NumElements, 9);
}

// Att1 of piggyback 300 holds 3: Enter checks the characters, snaps to the spin's range and
// writes; other keys write nothing, and a text that is no number shows the record's value again.
TEST_F(ElementsPanelTest, EnterCommitsCheckedAndSnappedText) {
    // Typed, the key that ends it, then the stored value, the shown text and the messages.
    const std::tuple<QString, Qt::Key, int, QString, size_t> cases[] = {
        {"300", Qt::Key_Return, 255, "255", 0}, {"-5", Qt::Key_Enter, 0, "0", 0},
        {"007", Qt::Key_Return, 7, "007", 0},   {"12a", Qt::Key_Return, 3, "12a", 1},
        {"1ab", Qt::Key_Return, 3, "1ab", 2},   {"-", Qt::Key_Return, 3, "3", 0},
        {"44", Qt::Key_Tab, 3, "44", 0},        {"45", Qt::Key_Escape, 3, "45", 0},
    };
    for (const auto& [typed, last, stored, shown, messages] : cases) {
        Pick(300);
        Item(3, 0).Att1 = 3;
        const size_t before = host.messages.size();
        Enter("txt_3_att1", typed, last);
        EXPECT_EQ(Item(3, 0).Att1, stored) << typed.toStdString();
        EXPECT_EQ(Text("txt_3_att1"), shown) << typed.toStdString();
        EXPECT_EQ(host.messages.size() - before, messages) << typed.toStdString();
    }
    for (const std::string& message : host.messages)
        EXPECT_EQ(message, "Invalid Character in Value.  Must be numerical");
    // A spin step starts from the committed number and writes.
    Enter("txt_3_att1", "007");
    QTest::keyClick(&Spin("upd_3_att1"), Qt::Key_Up);
    EXPECT_EQ(Item(3, 0).Att1, 8);
    EXPECT_EQ(Text("txt_3_att1"), "8");
}

TEST_F(ElementsPanelTest, ListsAndSelectionCommitWithoutAField) {
    Pick(300);
    for (int row = 0; row < 9; ++row)
        QTest::keyClick(&Find<QComboBox>("cbo_3_action"), Qt::Key_Down);
    EXPECT_EQ(Item(3, 0).COD, 148);
    Enter("txt_3_elem", "2");
    EXPECT_EQ(CurrentModel().m_currelem, 200);
    EXPECT_EQ(Find<QComboBox>("cbo_3_type").currentText(), "4 - Gouraud Poly");
    Click("cmd_3_nrm_recalc");
    EXPECT_EQ(host.messages, std::vector<std::string>{"Not Finished Yet"});
    // With no file open every path is safe and quiet.
    ReplaceCurrentModel();
    Enter("txt_3_att1", "12");
    Spin("upd_3_att1").setValue(30);
    EXPECT_EQ(Text("txt_3_att1"), "30");
    EXPECT_EQ(host.messages.size(), 1u);
}

} // namespace
