#include "toolbarimages.h"

#include <QFile>
#include <QPixmap>

namespace {
// Cursors are drawn at twice the toolbar's size, the common pointer size.
constexpr int kCursorSize = 32;

QString ImagePath(const QString& key) {
    return QStringLiteral(":/images/") + key + QStringLiteral(".svg");
}
} // namespace

QIcon ToolbarImage(const QString& key) {
    const QString path = ImagePath(key);
    return QFile::exists(path) ? QIcon(path) : QIcon();
}

QCursor ToolbarCursor(const QString& key) {
    const QPixmap picture = ToolbarImage(key).pixmap(kCursorSize, kCursorSize);
    return QCursor(picture, kCursorSize / 2, kCursorSize / 2);
}

QIcon ProgramIcon() {
    return QIcon(QStringLiteral(":/images/skylathe.svg"));
}
