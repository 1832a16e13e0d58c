#include "centremoverpanel.h"

#include "currentmodel.h"
#include "dimensiontext.h"
#include "panelrows.h"
#include "viewsettings.h"
#include "wholemodel.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSpinBox>

#include <tuple>
#include <utility>

namespace {

constexpr int kSpinBound = 32767;
constexpr bool kWholeFamily = true;
constexpr int32_t kExtent = 2;

QPushButton& BoldButton(QPushButton& button) {
    QFont font = button.font();
    font.setBold(true);
    button.setFont(font);
    return button;
}

} // namespace

CentreMoverPanel::CentreMoverPanel(QWidget& frame) : QObject(&frame) {
    PanelRows rows(frame);
    rows.AddHeading("Change Centre Position");
    const struct {
        const char* caption;
        const char* buddy;
        const char* spin;
        int32_t axis;
    } spins[] = {{"X (Length):", "txt_5_x", "upd_5_x", kAxisX},
                 {"Y (Span):", "txt_5_y", "upd_5_y", kAxisY},
                 {"Z (Height):", "txt_5_z", "upd_5_z", kAxisZ}};
    for (std::size_t i = 0; i < axes_.size(); ++i) {
        AxisSpin& axis = axes_[i];
        axis.axis = spins[i].axis;
        axis.spin = &rows.AddSpin(spins[i].caption, spins[i].buddy, spins[i].spin, -kSpinBound,
                                  kSpinBound, SpinWithBuddy::Buddy::ReadOnly);
        connect(axis.spin, &SpinWithBuddy::Changed, this, [this, &axis] { Spin_Change(axis); });
    }
    QHBoxLayout& commands = rows.AddRow("");
    for (const auto& [caption, name, handler] :
         {std::tuple{"APPLY", "cmd_5_apply", &CentreMoverPanel::cmd_5_apply_Click},
          std::tuple{"UNDO", "cmd_5_undo", &CentreMoverPanel::cmd_5_undo_Click}}) {
        auto* button = new QPushButton(caption, &frame);
        button->setObjectName(name);
        commands.addWidget(&BoldButton(*button));
        connect(button, &QPushButton::clicked, this, handler);
    }

    rows.AddHeading("Scale (%)");
    txt_5_scale = new QLineEdit("100", &frame);
    txt_5_scale->setObjectName("txt_5_scale");
    rows.AddRow("").addWidget(txt_5_scale);
    connect(&BoldButton(rows.AddButton("APPLY", "cmd_5_scale")), &QPushButton::clicked, this,
            &CentreMoverPanel::cmd_5_scale_Click);

    txt_5_span = &rows.AddReadOnly("Wingspan:", "txt_5_span");
    txt_5_realspan = &rows.AddReadOnly("", "txt_5_realspan");
    txt_5_length = &rows.AddReadOnly("Length:", "txt_5_length");
    txt_5_reallength = &rows.AddReadOnly("", "txt_5_reallength");
    rows.Finish();
    for (const auto& [units, metres] :
         {std::pair{txt_5_span, txt_5_realspan}, std::pair{txt_5_length, txt_5_reallength}})
        connect(units, &QLineEdit::textChanged, this, [metres = metres](const QString& text) {
            metres->setText(QString::fromStdString(
                MetricText(RoundedWhole(LeadingDecimal(text.toStdString())))));
        });
}

// A step that the move refuses puts the spin back on the total that stands.
void CentreMoverPanel::Spin_Change(AxisSpin& axis) {
    const int value = axis.spin->spin().value();
    const int delta = value - axis.lastSeen;
    if (delta == 0)
        return;
    if (MoveAllNodes(CurrentModel(), axis.axis, static_cast<int16_t>(delta)))
        axis.lastSeen = static_cast<int16_t>(value);
    else
        axis.spin->Show(axis.lastSeen);
}

void CentreMoverPanel::ClearTotal(AxisSpin& axis) {
    axis.lastSeen = 0;
    axis.spin->spin().setValue(0);
}

void CentreMoverPanel::cmd_5_apply_Click() {
    for (AxisSpin& axis : axes_)
        ClearTotal(axis);
}

// An axis whose move back is refused keeps its total, so it can still be undone. The spins stop
// at -32767, so the move back always fits 16 bits.
void CentreMoverPanel::cmd_5_undo_Click() {
    for (AxisSpin& axis : axes_) {
        const int total = axis.spin->spin().value();
        if (total == 0 || MoveAllNodes(CurrentModel(), axis.axis, static_cast<int16_t>(-total)))
            ClearTotal(axis);
    }
}

void CentreMoverPanel::cmd_5_scale_Click() {
    Rescale(CurrentModel(), PercentFactor(txt_5_scale->text().toStdString()));
    ShowDimensions();
}

void CentreMoverPanel::TabShown() {
    for (AxisSpin& axis : axes_)
        ClearTotal(axis);
    ShowDimensions();
}

void CentreMoverPanel::ShowDimensions() {
    const model& current = CurrentModel();
    txt_5_span->setText(QString::number(current.GetSpan(kWholeFamily, kExtent)));
    txt_5_length->setText(QString::number(current.GetLength(kWholeFamily, kExtent)));
}
