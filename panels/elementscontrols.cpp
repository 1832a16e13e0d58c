#include "elementscontrols.h"

#include "enterfield.h"
#include "spinwithbuddy.h"

#include <QCheckBox>
#include <QColor>
#include <QComboBox>
#include <QFont>
#include <QLabel>
#include <QPalette>
#include <QPushButton>
#include <QRect>
#include <QScrollBar>
#include <QSpinBox>
#include <QString>

#include <initializer_list>

namespace {

// Corner rows.
constexpr int kRowTop = 164;
constexpr int kRowStep = 24;
constexpr int kRowHeight = 19;
constexpr int kFieldWidth = 33;
// A spin shows its arrows beside its field.
constexpr int kSpinWidth = 18;
constexpr int kSelectLeft = 15;
constexpr int kNodeLeft = 39;
constexpr int kNodeSpinLeft = 71;
constexpr int kXLeft = 95;
constexpr int kYLeft = 135;
constexpr int kZLeft = 175;
constexpr int kXMapLeft = 223;
constexpr int kYMapLeft = 263;
constexpr int kCheckWidth = 17;

// Column heads and the group spins under them.
constexpr int kHeadTop = 110;
constexpr int kHeadLineHeight = 11;
constexpr int kHeadOverhang = 4;
constexpr int kGroupSpinTop = 132;
// Travel of the group spins.
constexpr int kGroupSpinLimit = 65535;

// The scroll bar beside the rows and the offset label above it.
constexpr QRect kScrollBarPlace{311, 156, 17, 297};
constexpr QRect kOffsetPlace{303, 134, 30, 17};

// Coloured blocks behind the coordinate columns and the map columns.
constexpr QRect kCoordinateBlock{87, 108, 129, 345};
constexpr QRect kMapBlock{215, 108, 88, 345};
const QColor kCoordinateColour{255, 192, 128};
const QColor kMapColour{0, 192, 0};

// Places of the controls above and below the rows.
constexpr int kLabelLeft = 8;
constexpr int kEdgeLeft = 2;
constexpr int kTopFieldLeft = 78;
constexpr int kLineStep = 22;
constexpr int kFirstLineTop = 4;
constexpr int kListLabelLeft = 140;
constexpr int kListLeft = 176;
constexpr int kListWidth = 152;
constexpr int kListHeight = 21;
constexpr int kLabelHeight = 17;
constexpr int kButtonHeight = 21;
constexpr int kNodeOpsTop = 458;
constexpr int kNodeButtonWidth = 76;
constexpr int kNodeButtonStep = 80;
constexpr int kElementOpsTop = 498;
constexpr int kElementButtonWidth = 158;
constexpr int kElementButtonStep = 162;
constexpr int kCaptionHeight = 14;
constexpr int kCaptionGap = 15;
constexpr int kButtonLineStep = 24;
constexpr int kAttribTop = 563;
constexpr int kAttribLabelWidth = 56;
constexpr int kSecondAttribLeft = 140;
constexpr int kPlaneTop = 588;
constexpr int kPlaneLineStep = 24;
constexpr int kPlaneLabelWidth = 60;
constexpr int kAxisLabelWidth = 14;
constexpr int kPlaneFieldWidth = 40;
constexpr int kPlaneDistanceWidth = 64;
constexpr int kPlaneColumnStep = 76;
constexpr int kPlaneLeft = 70;
constexpr int kPlaneSecondLeft = 170;
constexpr QRect kRecalcPlace{246, 611, 87, 21};
// The panel packs many controls into its width: it uses a small font throughout.
constexpr int kPanelFontPoints = 8;

// The limits of the plane fields, as the spins are built.
constexpr int kNormalLimit = 16384;
constexpr int kDistanceLimit = 2147483647;
constexpr int kPlaneFLow = -32768;
constexpr int kPlaneFHigh = 32768;
constexpr int kFlagMax = 17;
constexpr int kByteMax = 255;

const char* const kTypeItems[] = {"1 - Coloured Line", "2 - Hardpoint",     "3 - Coloured Poly",
                                  "4 - Gouraud Poly",  "5 - Textured Poly", "6 - Transparent Poly",
                                  "255 - NULL"};
const char* const kActionItems[] = {"0 - NONE",
                                    "140 - Engine 4",
                                    "141 - Engine 1",
                                    "142 - Engine 3",
                                    "143 - Engine 2",
                                    "144 - ?\?\?",
                                    "145 - LG (Tailwheels)",
                                    "146 - Pilot Picture",
                                    "147 - V1 Engine Panels",
                                    "148 - Left Wing Damage",
                                    "149 - Right Wing Damage",
                                    "150 - Right Elevator (?\?\?)",
                                    "151 - Left LG",
                                    "152 - Right LG",
                                    "153 - Nose Art"};

QByteArray RowName(const char* name, int row) {
    return QByteArray(name) + '(' + QByteArray::number(row) + ')';
}

// Builds the controls of one panel; every control gets its name and its design place.
class PanelBuilder {
public:
    explicit PanelBuilder(QWidget* frame) : frame_(frame) {}

    QLabel* Label(const char* caption, const QRect& place, const char* name = nullptr) {
        auto* label = new QLabel(QString::fromLatin1(caption), frame_);
        if (name != nullptr)
            label->setObjectName(name);
        label->setGeometry(place);
        return label;
    }

    // A head of two lines centred over a column.
    QLabel* Head(const char* caption, int columnLeft, int line) {
        QLabel* head =
            Label(caption, {columnLeft - kHeadOverhang, kHeadTop + line * kHeadLineHeight,
                            kFieldWidth + 2 * kHeadOverhang, kHeadLineHeight});
        head->setAlignment(Qt::AlignCenter);
        return head;
    }

    EnterField* Field(const char* name, const QRect& place) {
        auto* field = new EnterField(name, frame_);
        field->setGeometry(place);
        return field;
    }

    // A text field of `width` with its spin beside it.
    SpinWithBuddy* SpinField(const char* field, const char* spin, const QPoint& place, int width,
                             int minimum, int maximum,
                             SpinWithBuddy::Buddy kind = SpinWithBuddy::Buddy::Editable) {
        auto* control = new SpinWithBuddy(field, spin, minimum, maximum, kind, frame_);
        control->setGeometry(place.x(), place.y(), width + kSpinWidth, kRowHeight);
        return control;
    }

    // Arrows without a field of their own.
    QSpinBox* Arrows(const char* name, const QRect& place, int minimum, int maximum) {
        auto* spin = new QSpinBox(frame_);
        spin->setObjectName(name);
        spin->setGeometry(place);
        spin->setRange(minimum, maximum);
        if (QLineEdit* ownText = spin->findChild<QLineEdit*>())
            ownText->hide();
        return spin;
    }

    template <size_t N>
    QComboBox* List(const char* name, const QRect& place, const char* const (&items)[N]) {
        auto* list = new QComboBox(frame_);
        list->setObjectName(name);
        list->setGeometry(place);
        for (const char* item : items)
            list->addItem(QString::fromLatin1(item));
        return list;
    }

    // The scroll bar starts as for a list of few corners: nothing to scroll.
    QScrollBar* ScrollBar(const char* name, const QRect& place) {
        auto* bar = new QScrollBar(Qt::Vertical, frame_);
        bar->setObjectName(name);
        bar->setGeometry(place);
        bar->setRange(0, 1);
        bar->setEnabled(false);
        return bar;
    }

    QCheckBox* Check(const char* name, const char* caption, const QRect& place) {
        auto* check = new QCheckBox(QString::fromLatin1(caption), frame_);
        check->setObjectName(name);
        check->setGeometry(place);
        return check;
    }

    QPushButton* Button(const char* name, const char* caption, const QRect& place) {
        auto* button = new QPushButton(QString::fromLatin1(caption), frame_);
        button->setObjectName(name);
        button->setGeometry(place);
        return button;
    }

    void Block(const QRect& place, const QColor& colour) {
        auto* block = new QWidget(frame_);
        block->setGeometry(place);
        QPalette palette = block->palette();
        palette.setColor(QPalette::Window, colour);
        block->setPalette(palette);
        block->setAutoFillBackground(true);
    }

private:
    QWidget* frame_;
};

void BuildTop(PanelBuilder& build, ElementsControls& c) {
    int top = kFirstLineTop;
    build.Label("Element #:", {kEdgeLeft, top + 2, kTopFieldLeft - kEdgeLeft, kLabelHeight});
    c.upd_3_elem =
        build.SpinField("txt_3_elem", "upd_3_elem", {kTopFieldLeft, top}, kFieldWidth, 0, 0);
    build.Label("Type:", {kListLabelLeft, top + 2, kListLeft - kListLabelLeft, kLabelHeight});
    c.cbo_3_type = build.List("cbo_3_type", {kListLeft, top, kListWidth, kListHeight}, kTypeItems);

    top += kLineStep;
    build.Label("Piggyback #:", {kEdgeLeft, top + 2, kTopFieldLeft - kEdgeLeft, kLabelHeight});
    c.upd_3_pb = build.SpinField("txt_3_pb", "upd_3_pb", {kTopFieldLeft, top}, kFieldWidth, 0, 0,
                                 SpinWithBuddy::Buddy::ReadOnly);
    build.Label("Code:", {kListLabelLeft, top + 2, kListLeft - kListLabelLeft, kLabelHeight});
    c.cbo_3_action =
        build.List("cbo_3_action", {kListLeft, top, kListWidth, kListHeight}, kActionItems);

    top += kLineStep;
    build.Label("Flag:", {kEdgeLeft, top + 2, kTopFieldLeft - kEdgeLeft, kLabelHeight});
    c.upd_3_flag =
        build.SpinField("txt_3_flag", "upd_3_flag", {kTopFieldLeft, top}, kFieldWidth, 0, kFlagMax);
}

void BuildHeads(PanelBuilder& build, ElementsControls& c) {
    build.Block(kCoordinateBlock, kCoordinateColour);
    build.Block(kMapBlock, kMapColour);
    build.Label("Select", {kEdgeLeft, kHeadTop, kNodeLeft, kHeadLineHeight});
    build.Label("Node", {kNodeLeft, kHeadTop + kHeadLineHeight, kFieldWidth, kHeadLineHeight});
    build.Head("Length", kXLeft, 0);
    build.Head("X", kXLeft, 1);
    build.Head("Span", kYLeft, 0);
    build.Head("Y", kYLeft, 1);
    build.Head("Height", kZLeft, 0);
    build.Head("Z", kZLeft, 1);
    c.lbl_xmap = build.Head("X Map", kXMapLeft, 1);
    c.lbl_xmap->setObjectName("lbl_xmap");
    build.Head("Y Map", kYMapLeft, 1);

    c.chk_3_all = build.Check("chk_3_all", "All",
                              {kEdgeLeft, kGroupSpinTop, kNodeLeft - kEdgeLeft, kRowHeight});
    c.chk_3_lock =
        build.Check("chk_3_lock", "LOCK",
                    {kNodeLeft, kGroupSpinTop, kCoordinateBlock.left() - kNodeLeft, kRowHeight});
    const auto group = [&](const char* name, int left) {
        return build.Arrows(name, {left, kGroupSpinTop, kFieldWidth, kRowHeight}, -kGroupSpinLimit,
                            kGroupSpinLimit);
    };
    c.upd_3_x = group("upd_3_x", kXLeft);
    c.upd_3_y = group("upd_3_y", kYLeft);
    c.upd_3_z = group("upd_3_z", kZLeft);
    c.upd_3_xmap = group("upd_3_xmap", kXMapLeft);
    c.upd_3_ymap = group("upd_3_ymap", kYMapLeft);
}

void BuildRows(PanelBuilder& build, ElementsControls& c) {
    for (int r = 0; r < kElementRows; ++r) {
        const int top = kRowTop + r * kRowStep;
        ElementRow& row = c.rows[static_cast<size_t>(r)];
        row.select = build.Check(RowName("chk_3_select", r), "",
                                 {kSelectLeft, top, kCheckWidth, kRowHeight});
        row.node = build.SpinField(RowName("txt_3_node", r), RowName("upd_3_node", r),
                                   {kNodeLeft, top}, kNodeSpinLeft - kNodeLeft, 0, 0);
        row.x = build.Field(RowName("txt_3_x", r), {kXLeft, top, kFieldWidth, kRowHeight});
        row.y = build.Field(RowName("txt_3_y", r), {kYLeft, top, kFieldWidth, kRowHeight});
        row.z = build.Field(RowName("txt_3_z", r), {kZLeft, top, kFieldWidth, kRowHeight});
        row.xmap = build.Field(RowName("txt_3_xmap", r), {kXMapLeft, top, kFieldWidth, kRowHeight});
        row.ymap = build.Field(RowName("txt_3_ymap", r), {kYMapLeft, top, kFieldWidth, kRowHeight});
        // The rows are reached with the mouse; Tab goes past them.
        for (QWidget* control :
             std::initializer_list<QWidget*>{row.select, &row.node->buddy(), &row.node->spin(),
                                             row.x, row.y, row.z, row.xmap, row.ymap})
            control->setFocusPolicy(Qt::ClickFocus);
    }
    c.vsc_3_nodeoffset = build.ScrollBar("vsc_3_nodeoffset", kScrollBarPlace);
    c.lbl_offset = build.Label("0", kOffsetPlace, "lbl_offset");
    c.lbl_offset->setAlignment(Qt::AlignCenter);
    QFont bold = c.lbl_offset->font();
    bold.setBold(true);
    c.lbl_offset->setFont(bold);
    QPalette palette = c.lbl_offset->palette();
    palette.setColor(QPalette::Window, Qt::white);
    c.lbl_offset->setPalette(palette);
    c.lbl_offset->setAutoFillBackground(true);
}

void BuildButtons(PanelBuilder& build, ElementsControls& c) {
    build.Label("Node Operations:", {kLabelLeft, kNodeOpsTop, kElementButtonWidth, kCaptionHeight});
    const auto nodeButton = [&](const char* name, const char* caption, int column) {
        return build.Button(name, caption,
                            {kLabelLeft + column * kNodeButtonStep, kNodeOpsTop + kCaptionGap,
                             kNodeButtonWidth, kButtonHeight});
    };
    c.cmd_3_moveup = nodeButton("cmd_3_moveup", "MOVE UP", 0);
    c.cmd_3_movedown = nodeButton("cmd_3_movedown", "MOVE DN", 1);
    c.cmd_3_add = nodeButton("cmd_3_add", "ADD", 2);
    c.cmd_3_delete = nodeButton("cmd_3_delete", "DELETE", 3);

    build.Label("Element Operations:",
                {kLabelLeft, kElementOpsTop, kElementButtonWidth, kCaptionHeight});
    const auto elementButton = [&](const char* name, const char* caption, int column, int line) {
        return build.Button(name, caption,
                            {kLabelLeft + column * kElementButtonStep,
                             kElementOpsTop + kCaptionGap + line * kButtonLineStep,
                             kElementButtonWidth, kButtonHeight});
    };
    c.cmd_3_newelem = elementButton("cmd_3_newelem", "Duplicate -> New Elem", 0, 0);
    c.cmd_3_newpb = elementButton("cmd_3_newpb", "Duplicate -> Piggyback", 1, 0);
    c.cmd_3_delelem = elementButton("cmd_3_delelem", "Delete Entire Elem", 0, 1);
    c.cmd_3_delpb = elementButton("cmd_3_delpb", "Delete This Piggyback", 1, 1);
}

void BuildAttributes(PanelBuilder& build, ElementsControls& c) {
    c.lbl_att1 = build.Label(
        "Attrib. 1:", {kLabelLeft, kAttribTop + 2, kAttribLabelWidth, kLabelHeight}, "lbl_att1");
    c.upd_3_att1 =
        build.SpinField("txt_3_att1", "upd_3_att1", {kLabelLeft + kAttribLabelWidth, kAttribTop},
                        kFieldWidth, 0, kByteMax);
    c.lbl_att2 = build.Label(
        "Attrib. 2:", {kSecondAttribLeft, kAttribTop + 2, kAttribLabelWidth, kLabelHeight},
        "lbl_att2");
    c.upd_3_att2 = build.SpinField("txt_3_att2", "upd_3_att2",
                                   {kSecondAttribLeft + kAttribLabelWidth, kAttribTop}, kFieldWidth,
                                   0, kByteMax);
}

void BuildPlane(PanelBuilder& build, ElementsControls& c) {
    QLabel* head =
        build.Label("NORMALS", {kLabelLeft, kPlaneTop + 2, kPlaneLabelWidth, kLabelHeight});
    QFont bold = head->font();
    bold.setBold(true);
    head->setFont(bold);
    // An axis caption and its field with spin, at `left` on line `line`.
    const auto planeField = [&](const char* axis, const char* field, const char* spin, int left,
                                int line, int width, int minimum, int maximum) {
        const int top = kPlaneTop + line * kPlaneLineStep;
        build.Label(axis, {left, top + 2, kAxisLabelWidth, kLabelHeight});
        return build.SpinField(field, spin, {left + kAxisLabelWidth, top}, width, minimum, maximum);
    };
    c.upd_3_nrm_x = planeField("X:", "txt_3_nrm_x", "upd_3_nrm_x", kPlaneLeft, 0, kPlaneFieldWidth,
                               -kNormalLimit, kNormalLimit);
    c.upd_3_nrm_y = planeField("Y:", "txt_3_nrm_y", "upd_3_nrm_y", kPlaneLeft + kPlaneColumnStep, 0,
                               kPlaneFieldWidth, -kNormalLimit, kNormalLimit);
    c.upd_3_nrm_z =
        planeField("Z:", "txt_3_nrm_z", "upd_3_nrm_z", kPlaneLeft + 2 * kPlaneColumnStep, 0,
                   kPlaneFieldWidth, -kNormalLimit, kNormalLimit);
    c.upd_3_nrm_d = planeField("D:", "txt_3_nrm_d", "upd_3_nrm_d", kPlaneLeft, 1,
                               kPlaneDistanceWidth, -kDistanceLimit, kDistanceLimit);
    c.upd_3_nrm_b = planeField("F:", "txt_3_nrm_b", "upd_3_nrm_b", kPlaneSecondLeft, 1,
                               kPlaneFieldWidth, kPlaneFLow, kPlaneFHigh);
    c.cmd_3_nrm_recalc = build.Button("cmd_3_nrm_recalc", "RECALCULATE", kRecalcPlace);
}

} // namespace

ElementsControls BuildElementsControls(QWidget* frame) {
    ElementsControls controls;
    QFont small = frame->font();
    small.setPointSize(kPanelFontPoints);
    frame->setFont(small);
    PanelBuilder build(frame);
    // The coloured blocks go first, so that the heads and fields lie over them.
    BuildHeads(build, controls);
    BuildTop(build, controls);
    BuildRows(build, controls);
    BuildButtons(build, controls);
    BuildAttributes(build, controls);
    BuildPlane(build, controls);
    return controls;
}
