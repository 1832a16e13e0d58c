#include "panelfixture.h"

#include "currentmodel.h"
#include "elementspanel.h"
#include "modelinmemory.h"
#include "programstate.h"
#include "viewsettings.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QSpinBox>
#include <QTest>
#include <QVBoxLayout>

class PanelTest::PaneHost final : public ModelHost {
public:
    PaneHost(QWidget& pane, const EditPanels& panels) : pane_(pane), panels_(panels) {}
    MessageAnswer ShowMessage(const std::string&, MessageButtons, MessageIcon,
                              const std::string&) override {
        return MessageAnswer::Ok;
    }
    void SetSpinValue(const std::string& name, int value) override {
        if (QSpinBox* spin = Named(name))
            spin->setValue(value);
    }
    int SpinValue(const std::string& name) override {
        return Named(name) != nullptr ? Named(name)->value() : 0;
    }
    void SetSpinMaximum(const std::string& name, int maximum) override {
        if (QSpinBox* spin = Named(name))
            spin->setMaximum(maximum);
    }
    void FillPanel(int32_t tab) override { panels_.FillPanel(tab); }
    void ShowPickedPiggyback(int16_t number) override { panels_.elements().TakePick(number); }

private:
    QSpinBox* Named(const std::string& name) const {
        return pane_.findChild<QSpinBox*>(QString::fromStdString(name));
    }
    QWidget& pane_;
    const EditPanels& panels_;
};

PanelTest::PanelTest() = default;
PanelTest::~PanelTest() = default;

void PanelTest::SetUp() {
    ResetProgramState();
    ReplaceCurrentModel();
    ResetViewSettings();
    pane_ = std::make_unique<QWidget>();
    auto* column = new QVBoxLayout(pane_.get());
    QWidget* frames[7];
    for (int k = 0; k < 7; ++k) {
        frames[k] = new QWidget(pane_.get());
        frames[k]->setObjectName(QStringLiteral("fra_edit(%1)").arg(k + 1));
        column->addWidget(frames[k]);
    }
    panels = std::make_unique<EditPanels>(*frames[0], *frames[1], *frames[2], *frames[3],
                                          *frames[4], *frames[5], *frames[6]);
    paneHost_ = std::make_unique<PaneHost>(*pane_, *panels);
    host.windowSide = paneHost_.get();
    pane_->show();
}

void PanelTest::TearDown() {
    ReplaceCurrentModel();
    host.windowSide = nullptr;
}

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
