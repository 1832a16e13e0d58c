#include "spinwithbuddy.h"

#include "wholenumber.h"

#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSpinBox>

namespace {
// Wide enough for the arrows alone: the number is shown by the buddy.
constexpr int kArrowsWidth = 18;
} // namespace

SpinWithBuddy::SpinWithBuddy(const char* buddyName, const char* spinName, int min, int max,
                             Buddy kind, QWidget* parent)
    : QWidget(parent), buddy_(new EnterField(buddyName, this)), spin_(new QSpinBox(this)) {
    spin_->setObjectName(spinName);
    spin_->setRange(min, max);
    spin_->setSingleStep(1);
    spin_->setWrapping(false);
    spin_->setFixedWidth(kArrowsWidth);
    if (QLineEdit* ownText = spin_->findChild<QLineEdit*>())
        ownText->hide();
    if (kind == Buddy::ReadOnly)
        MakeReadOnly(*buddy_);
    buddy_->setText(QString::number(spin_->value()));

    auto* row = new QHBoxLayout(this);
    row->setContentsMargins(0, 0, 0, 0);
    row->setSpacing(0);
    row->addWidget(buddy_, 1);
    row->addWidget(spin_);

    connect(spin_, &QSpinBox::valueChanged, this, [this](int value) {
        buddy_->setText(QString::number(value));
        emit Changed();
    });
}

void SpinWithBuddy::Show(int value) {
    const QSignalBlocker quiet(spin_);
    spin_->setValue(value);
    buddy_->setText(QString::number(spin_->value()));
}

void SpinWithBuddy::FollowBuddy() {
    const std::optional<int64_t> number = WholeNumber(buddy_->text().toStdString());
    if (!number)
        return;
    const QSignalBlocker quiet(spin_);
    spin_->setValue(
        static_cast<int>(std::clamp<int64_t>(*number, spin_->minimum(), spin_->maximum())));
}
