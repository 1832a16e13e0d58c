#include "optionsdialog.h"

#include "glview.h"
#include "mainwindow.h"
#include "oglgraphics.h"
#include "programstate.h"

#include <QCheckBox>
#include <QColorDialog>
#include <QEvent>
#include <QGridLayout>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace {

constexpr int kClientWidth = 271;
constexpr int kClientHeight = 120;
constexpr int kLightestWeight = 1;
constexpr int kHeaviestWeight = 10;
constexpr float kComponentScale = 255.0f;

QColor ColourOf(const Colour& colour) {
    return QColor(colour.red, colour.green, colour.blue);
}

Colour SettingOf(const QColor& colour) {
    return {colour.red(), colour.green(), colour.blue()};
}

QLabel* Swatch(const char* name, const Colour& colour, QWidget* parent) {
    auto* swatch = new QLabel(parent);
    swatch->setObjectName(name);
    swatch->setFrameStyle(QFrame::Box | QFrame::Plain);
    swatch->setAutoFillBackground(true);
    QPalette palette = swatch->palette();
    palette.setColor(QPalette::Window, ColourOf(colour));
    swatch->setPalette(palette);
    swatch->setCursor(Qt::PointingHandCursor);
    return swatch;
}

QColor SwatchColour(const QLabel& swatch) {
    return swatch.palette().color(QPalette::Window);
}

} // namespace

frm_options::frm_options(frm_main& window)
    : QDialog(&window, Qt::Tool | Qt::WindowTitleHint | Qt::WindowCloseButtonHint) {
    setObjectName("frm_options");
    setWindowTitle("Options");
    setAttribute(Qt::WA_DeleteOnClose);
    setModal(false);
    const ProgramState& settings = Program();

    auto* grid = new QGridLayout(this);
    grid->addWidget(new QLabel("Line Weight:", this), 0, 0);
    scr_weight = new QScrollBar(Qt::Horizontal, this);
    scr_weight->setObjectName("scr_weight");
    scr_weight->setRange(kLightestWeight, kHeaviestWeight);
    scr_weight->setPageStep(1);
    scr_weight->setValue(settings.LineWeight);
    grid->addWidget(scr_weight, 0, 1);
    grid->addWidget(new QLabel("Line Colour:", this), 1, 0);
    pic_line = Swatch("pic_line", settings.LineColour, this);
    grid->addWidget(pic_line, 1, 1);
    grid->addWidget(new QLabel("Sky Colour:", this), 2, 0);
    pic_sky = Swatch("pic_sky", settings.SkyColour, this);
    grid->addWidget(pic_sky, 2, 1);
    chk_save = new QCheckBox("Incremental Saves?", this);
    chk_save->setObjectName("chk_save");
    chk_save->setChecked(settings.IncrementalSave);
    grid->addWidget(chk_save, 3, 0, 1, 2);

    auto* buttons = new QHBoxLayout;
    auto* apply = new QPushButton("&Apply", this);
    apply->setObjectName("cmd_OK");
    apply->setDefault(true);
    auto* cancel = new QPushButton("&Cancel", this);
    cancel->setObjectName("cmd_Cancel");
    buttons->addStretch();
    buttons->addWidget(apply);
    buttons->addWidget(cancel);
    grid->addLayout(buttons, 4, 0, 1, 2);
    connect(apply, &QPushButton::clicked, this, &frm_options::cmd_OK_Click);
    connect(cancel, &QPushButton::clicked, this, &frm_options::cmd_Cancel_Click);

    pic_line->installEventFilter(this);
    pic_sky->installEventFilter(this);
    resize(kClientWidth, kClientHeight);
    setFixedSize(sizeHint().expandedTo(QSize(kClientWidth, kClientHeight)));
}

// A click on a swatch opens the colour dialog on its colour; cancelling it keeps the colour.
bool frm_options::eventFilter(QObject* watched, QEvent* event) {
    auto* swatch = qobject_cast<QLabel*>(watched);
    if ((swatch == pic_line || swatch == pic_sky) && event->type() == QEvent::MouseButtonRelease) {
        const QColor chosen = QColorDialog::getColor(SwatchColour(*swatch), this);
        if (chosen.isValid()) {
            QPalette palette = swatch->palette();
            palette.setColor(QPalette::Window, chosen);
            swatch->setPalette(palette);
        }
        return true;
    }
    return QDialog::eventFilter(watched, event);
}

void frm_options::cmd_OK_Click() {
    ProgramState& settings = Program();
    settings.LineWeight = static_cast<int16_t>(scr_weight->value());
    settings.IncrementalSave = chk_save->isChecked();
    settings.LineColour = SettingOf(SwatchColour(*pic_line));
    settings.SkyColour = SettingOf(SwatchColour(*pic_sky));
    const Colour& sky = settings.SkyColour;
    OGL().SetClearColour(sky.red / kComponentScale, sky.green / kComponentScale,
                         sky.blue / kComponentScale);
    close();
}

void frm_options::cmd_Cancel_Click() {
    close();
}
