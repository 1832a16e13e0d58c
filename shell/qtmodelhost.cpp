#include "qtmodelhost.h"

#include "editpanels.h"
#include "elementspanel.h"
#include "mainwindow.h"
#include "viewsettings.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QLabel>
#include <QMessageBox>
#include <QSpinBox>

namespace {

constexpr const char* kDefaultTitle = "Skylathe";

QMessageBox::Icon IconOf(MessageIcon icon) {
    switch (icon) {
    case MessageIcon::Information:
        return QMessageBox::Information;
    case MessageIcon::Question:
        return QMessageBox::Question;
    case MessageIcon::Exclamation:
        return QMessageBox::Warning;
    case MessageIcon::None:
        break;
    }
    return QMessageBox::NoIcon;
}

QMessageBox::StandardButtons ButtonsOf(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::YesNo:
        return QMessageBox::Yes | QMessageBox::No;
    case MessageButtons::YesNoCancel:
        return QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel;
    case MessageButtons::Ok:
        break;
    }
    return QMessageBox::Ok;
}

// What closing the box without a button (Escape, the close box) answers.
MessageAnswer AnswerWithoutButton(MessageButtons buttons) {
    switch (buttons) {
    case MessageButtons::YesNo:
        return MessageAnswer::No;
    case MessageButtons::YesNoCancel:
        return MessageAnswer::Cancel;
    case MessageButtons::Ok:
        break;
    }
    return MessageAnswer::Ok;
}

} // namespace

MessageAnswer QtModelHost::ShowMessage(const std::string& text, MessageButtons buttons,
                                       MessageIcon icon, const std::string& title) {
    QMessageBox box(IconOf(icon), QString::fromStdString(title.empty() ? kDefaultTitle : title),
                    QString::fromStdString(text), ButtonsOf(buttons), QApplication::activeWindow());
    switch (box.exec()) {
    case QMessageBox::Ok:
        return MessageAnswer::Ok;
    case QMessageBox::Yes:
        return MessageAnswer::Yes;
    case QMessageBox::No:
        return MessageAnswer::No;
    case QMessageBox::Cancel:
        return MessageAnswer::Cancel;
    default:
        return AnswerWithoutButton(buttons);
    }
}

template <typename Control> Control* QtModelHost::Find(const char* name) const {
    return window_ != nullptr ? window_->findChild<Control*>(name) : nullptr;
}

void QtModelHost::SetFamilyList(const std::vector<std::string>& rows) {
    if (auto* list = Find<QComboBox>("cbo_1_mox")) {
        list->clear();
        for (const std::string& row : rows)
            list->addItem(QString::fromStdString(row));
    }
}

void QtModelHost::SetFamilyListRow(int row) {
    auto* list = Find<QComboBox>("cbo_1_mox");
    if (list != nullptr && row >= 0 && row < list->count())
        list->setCurrentIndex(row);
}

void QtModelHost::SetShowThisMoxOnly(bool on) {
    View().chk_thismox = on;
    if (auto* tick = Find<QCheckBox>("chk_thismox"))
        tick->setChecked(on);
}

void QtModelHost::SetSpinValue(const std::string& name, int value) {
    if (auto* spin = Find<QSpinBox>(name.c_str()))
        spin->setValue(value);
}

int QtModelHost::SpinValue(const std::string& name) {
    const auto* spin = Find<QSpinBox>(name.c_str());
    return spin != nullptr ? spin->value() : 0;
}

void QtModelHost::SetSpinMaximum(const std::string& name, int maximum) {
    if (auto* spin = Find<QSpinBox>(name.c_str()))
        spin->setMaximum(maximum);
}

void QtModelHost::FillPanel(int32_t tab) {
    if (window_ != nullptr && window_->panels)
        window_->panels->FillPanel(tab);
}

void QtModelHost::ShowPickedPiggyback(int16_t number) {
    if (window_ != nullptr && window_->panels)
        window_->panels->elements().TakePick(number);
}

void QtModelHost::SetToolbarImage(const std::string& button, const std::string& image) {
    if (window_ != nullptr)
        window_->SetButtonImage(QString::fromStdString(button), QString::fromStdString(image));
}

void QtModelHost::SetWindowTitle(const std::string& title) {
    if (window_ != nullptr)
        window_->SetTitle(QString::fromStdString(title));
}

void QtModelHost::JournalChanged() {
    if (window_ != nullptr)
        window_->ShowJournal();
}

void QtModelHost::ShowFirstEditTab() {
    if (window_ != nullptr)
        window_->SelectTab(kModelInfoTab);
}

void QtModelHost::SetModifyAxis(int32_t axis) {
    View().ModifyAxis = axis;
}

void QtModelHost::ShowPerspectiveView() {
    if (window_ != nullptr)
        window_->mnu_v_persp_Click();
}

void QtModelHost::UpdateRecentMenus() {
    if (window_ != nullptr)
        window_->UpdateRecentMenus();
}

std::string QtModelHost::HelpCaption() {
    return window_ != nullptr ? window_->lbl_help->text().toStdString() : std::string();
}

void QtModelHost::SetHelpCaption(const std::string& caption) {
    if (window_ != nullptr)
        window_->lbl_help->setText(QString::fromStdString(caption));
}

bool QtModelHost::HelpBold() {
    return window_ != nullptr && window_->lbl_help->font().bold();
}

void QtModelHost::SetHelpBold(bool bold) {
    if (window_ == nullptr)
        return;
    QFont font = window_->lbl_help->font();
    font.setBold(bold);
    window_->lbl_help->setFont(font);
}

// A project load lets the window repaint between its lines; the user's clicks and keys wait, so
// that no menu can replace the model while it is still loading.
void QtModelHost::LetEventsRun() {
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
}
