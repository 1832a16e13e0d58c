#include "panelfixture.h"

#include "currentmodel.h"
#include "modelinmemory.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QTest>

model& PanelTest::Open(const MoxBuilder& file) {
    ReplaceCurrentModel();
    OpenInMemory(CurrentModel(), file);
    CurrentModel().WriteInfo(kModelInfoTab);
    return CurrentModel();
}

MoxBuilder PanelTest::SmallFile(int nodes, int parts) {
    MoxBuilder file;
    file.parts.resize(static_cast<size_t>(parts));
    file.nodes.resize(static_cast<size_t>(nodes));
    file.root = {0, kNoElement};
    file.streams = {StreamBytes().Hardpoint(27, 0).End().bytes};
    return file;
}

void PanelTest::Enter(const char* name, const QString& text, Qt::Key last) {
    auto& field = Find<QLineEdit>(name);
    field.clear();
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, last);
}

void PanelTest::Click(const char* name) const {
    QTest::mouseClick(&Find<QAbstractButton>(name), Qt::LeftButton);
}

void PanelTest::Choose(const char* name, int row) {
    auto& list = Find<QComboBox>(name);
    list.setCurrentIndex(row);
    emit list.activated(row);
}
