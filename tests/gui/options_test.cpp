// The options dialog: one window however often it is asked for, Cancel changes nothing, and
// "&Apply" takes the settings and shows the new sky in the view at once.
#include "editorfixture.h"
#include "programstate.h"

#include <QAction>
#include <QCheckBox>
#include <QCoreApplication>
#include <QDialog>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QScrollBar>

namespace {
void PaintSwatch(QLabel& swatch, const QColor& colour) {
    QPalette palette = swatch.palette();
    palette.setColor(QPalette::Window, colour);
    swatch.setPalette(palette);
}
} // namespace

TEST_F(EditorTest, OptionsApplyTheSkyAtOnceAndCancelChangesNothing) {
    const Rgb startSky = PixelAt(ReadFrame(), 2, 2);
    struct Row {
        const char* button;
        QColor sky;
        Rgb shown;
        int16_t weight;
    };
    const Row rows[] = {
        {"cmd_Cancel", QColor(200, 10, 10), startSky, 1},
        {"cmd_OK", QColor(10, 200, 30), Rgb{10, 200, 30}, 10},
    };
    for (const Row& row : rows) {
        QAction* options = Find<QAction>("mnu_f_options");
        options->trigger();
        options->trigger();
        ASSERT_EQ(Window().findChildren<QDialog*>("frm_options").size(), 1);
        auto* dialog = Find<QDialog>("frm_options");
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_FALSE(dialog->isModal());
        auto* weight = dialog->findChild<QScrollBar*>("scr_weight");
        EXPECT_EQ(weight->value(), 1);
        weight->setValue(40);
        EXPECT_EQ(weight->value(), 10);
        dialog->findChild<QCheckBox*>("chk_save")->setChecked(false);
        PaintSwatch(*dialog->findChild<QLabel*>("pic_sky"), row.sky);
        dialog->findChild<QPushButton*>(row.button)->click();
        QCoreApplication::processEvents();
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);

        EXPECT_EQ(Window().findChildren<QDialog*>("frm_options").size(), 0) << row.button;
        EXPECT_EQ(Program().LineWeight, row.weight) << row.button;
        EXPECT_EQ(Program().IncrementalSave, row.weight == 1) << row.button;
        EXPECT_EQ(PixelAt(ReadFrame(), 2, 2), row.shown) << row.button;
    }
    EXPECT_EQ(Program().SkyColour.green, 200);
}
