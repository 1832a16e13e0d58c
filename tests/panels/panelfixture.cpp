#include "panelfixture.h"

#include "currentmodel.h"
#include "elementspanel.h"
#include "modelinmemory.h"
#include "viewsettings.h"

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
        if (auto* spin = pane_.findChild<QSpinBox*>(QString::fromStdString(name)))
            spin->setValue(value);
    }
    int SpinValue(const std::string& name) override {
        const auto* spin = pane_.findChild<QSpinBox*>(QString::fromStdString(name));
        return spin != nullptr ? spin->value() : 0;
    }
    void SetSpinMaximum(const std::string& name, int maximum) override {
        if (auto* spin = pane_.findChild<QSpinBox*>(QString::fromStdString(name)))
            spin->setMaximum(maximum);
    }
    void FillPanel(int32_t tab) override { panels_.FillPanel(tab); }
    void ShowPickedPiggyback(int16_t number) override { panels_.elements().TakePick(number); }

private:
    QWidget& pane_;
    const EditPanels& panels_;
};

PanelTest::PanelTest() = default;
PanelTest::~PanelTest() = default;

void PanelTest::SetUp() {
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

void PanelTest::Enter(const char* name, const QString& text) {
    auto& field = Find<QLineEdit>(name);
    field.clear();
    QTest::keyClicks(&field, text);
    QTest::keyClick(&field, Qt::Key_Return);
}

void PanelTest::Choose(const char* name, int row) {
    auto& list = Find<QComboBox>(name);
    list.setCurrentIndex(row);
    emit list.activated(row);
}
