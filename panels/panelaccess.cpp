#include "panelaccess.h"

#include "currentmodel.h"

#include <QSpinBox>

#include <algorithm>

const FileRecord* ShownRecord() {
    const model& current = CurrentModel();
    if (current.M_Type != kMoxLoaded || current.m_currmox < 0 ||
        current.m_currmox >= static_cast<int>(current.Files.size()))
        return nullptr;
    return &current.Files[static_cast<std::size_t>(current.m_currmox)];
}

QSpinBox* FindSpin(const QWidget& anywhere, const char* name) {
    return anywhere.window()->findChild<QSpinBox*>(name);
}

void SetChooserTop(QSpinBox* spin, int32_t top) {
    if (spin != nullptr)
        spin->setMaximum(std::max(top, 0));
}
