#include "panelrows.h"

#include "infofields.h"

#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace {
constexpr int kMargin = 4;
constexpr int kSpacing = 2;
} // namespace

PanelRows::PanelRows(QWidget& frame) : frame_(frame), column_(new QVBoxLayout(&frame)) {
    column_->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column_->setSpacing(kSpacing);
}

void PanelRows::AddCaption(const char* caption, bool bold) {
    if (caption == nullptr || *caption == '\0')
        return;
    auto* label = new QLabel(caption, &frame_);
    if (bold) {
        QFont font = label->font();
        font.setBold(true);
        label->setFont(font);
    }
    column_->addWidget(label);
}

SpinWithBuddy& PanelRows::AddSpin(const char* caption, const char* buddyName, const char* spinName,
                                  int min, int max, SpinWithBuddy::Buddy kind) {
    AddCaption(caption);
    auto* control = new SpinWithBuddy(buddyName, spinName, min, max, kind, &frame_);
    column_->addWidget(control);
    return *control;
}

SpinWithBuddy& PanelRows::AddFieldSpin(const char* caption, int32_t field) {
    const InfoField& row = *FindInfoField(field);
    return AddSpin(caption, row.control, row.spin, row.min, row.max);
}

EnterField& PanelRows::AddText(const char* caption, const char* name) {
    AddCaption(caption);
    auto* field = new EnterField(name, &frame_);
    column_->addWidget(field);
    return *field;
}

QLineEdit& PanelRows::AddReadOnly(const char* caption, const char* name) {
    AddCaption(caption);
    auto* field = new QLineEdit(&frame_);
    field->setObjectName(name);
    MakeReadOnly(*field);
    column_->addWidget(field);
    return *field;
}

QComboBox& PanelRows::AddList(const char* caption, const char* name, const QStringList& items,
                              bool boldCaption) {
    AddCaption(caption, boldCaption);
    auto* list = new QComboBox(&frame_);
    list->setObjectName(name);
    list->addItems(items);
    column_->addWidget(list);
    return *list;
}

QCheckBox& PanelRows::AddCheck(const char* caption, const char* name) {
    auto* check = new QCheckBox(caption, &frame_);
    check->setObjectName(name);
    column_->addWidget(check);
    return *check;
}

QPushButton& PanelRows::AddButton(const char* caption, const char* name) {
    auto* button = new QPushButton(caption, &frame_);
    button->setObjectName(name);
    column_->addWidget(button);
    return *button;
}

QLabel& PanelRows::AddHeading(const char* caption) {
    auto* label = new QLabel(caption, &frame_);
    QFont font = label->font();
    font.setBold(true);
    label->setFont(font);
    label->setAlignment(Qt::AlignHCenter);
    column_->addWidget(label);
    return *label;
}

QLabel& PanelRows::AddNote(const char* caption) {
    auto* label = new QLabel(caption, &frame_);
    column_->addWidget(label);
    return *label;
}

QHBoxLayout& PanelRows::AddRow(const char* caption) {
    AddCaption(caption);
    auto* row = new QHBoxLayout;
    row->setSpacing(kSpacing);
    column_->addLayout(row);
    return *row;
}

void PanelRows::StretchLast() {
    column_->setStretch(column_->count() - 1, 1);
}

void PanelRows::Finish() {
    column_->addStretch();
}
