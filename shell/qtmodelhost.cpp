#include "qtmodelhost.h"

#include <QApplication>
#include <QMessageBox>

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
