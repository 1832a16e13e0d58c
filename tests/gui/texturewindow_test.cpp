// The texture window, opened from the View menu: the texture of the sample fighter with the
// selected polygon's map outline at each scale, read back from the window's pixels.
#include "currentmodel.h"
#include "editorfixture.h"
#include "picturebox.h"
#include "piggybacknumber.h"
#include "texturemap.h"
#include "texturewindow.h"

#include <QAction>
#include <QApplication>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QPushButton>
#include <QRadioButton>
#include <QTest>
#include <gtest/gtest.h>

#include <string>

namespace {

const QColor kRed(255, 60, 60);

// The first piggyback of the main file with this kind and corner count, and its Number.
int16_t FindPolygon(const FileRecord& file, uint8_t kind, int corners) {
    for (const ElementList& element : file.Elements)
        for (int p = 0; p < element.Count; ++p) {
            const Piggyback& piggyback = element.Items[p];
            if (piggyback.Type == kind && (corners == 0 || piggyback.CRN == corners))
                return piggyback.Number;
        }
    return -1;
}

int RedPixels(const QImage& image) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            count += image.pixelColor(x, y) == kRed;
    return count;
}

} // namespace

TEST_F(EditorTest, TextureWindowFromTheViewMenuOutlinesTheSelectedPolygonAtEachScale) {
    QAction* entry = Find<QAction>("mnu_v_texwindow");
    frm_texture* window = Find<frm_texture>("frm_texture");
    const auto expect = [&](bool open, const char* what) {
        EXPECT_EQ(window->isVisible(), open) << what;
        EXPECT_EQ(entry->isChecked(), open) << what;
    };
    entry->trigger();
    expect(false, "no model open");
    host.answers = {MessageAnswer::Yes};
    std::string name = std::string(SAMPLE_DIR) + "/PDEMOF.MOX";
    CurrentModel().Load(name);
    entry->trigger();
    expect(true, "opened");
    ASSERT_TRUE(QTest::qWaitForWindowExposed(window));
    EXPECT_EQ(window->windowTitle(), "TEXTURE");

    const FileRecord& file = CurrentModel().Files[0];
    const int16_t triangle = FindPolygon(file, 5, 3);
    const int16_t coloured = FindPolygon(file, 3, 0);
    ASSERT_GE(triangle, 0);
    ASSERT_GE(coloured, 0);
    const auto picture = [&](int16_t selected) {
        CurrentModel().m_currelem = selected;
        DrawTextureMap(CurrentModel());
        return window->grab().toImage().copy(window->Texture->geometry());
    };
    for (const char* scale : {"opt_100", "opt_300"}) {
        SCOPED_TRACE(scale);
        QTest::mouseClick(window->findChild<QRadioButton*>(scale), Qt::LeftButton);
        EXPECT_EQ(window->Texture->width(), window->width());
        EXPECT_EQ(window->Texture->height(), window->width());
        EXPECT_EQ(RedPixels(picture(-1)), 0) << "the plain texture";
        EXPECT_EQ(RedPixels(picture(coloured)), 0) << "a coloured polygon has no map";

        const QImage shown = picture(triangle);
        const Piggyback& piggyback = *FindPiggyback(file, triangle);
        const double s = window->Texture->width() / 255.0;
        const auto corner = [&](int i) {
            return QPointF(piggyback.XMap[i] * s, piggyback.YMap[i] * s);
        };
        QFont font = window->Texture->font();
        font.setBold(true);
        font.setPointSizeF(s + 8);
        font.setStyleStrategy(QFont::NoAntialias);
        for (int i = 0; i < 3; ++i) {
            const QPointF from = corner(i);
            const QPointF to = corner((i + 1) % 3);
            // Red within a pixel: lines are drawn two pixels wide from rounded positions.
            for (double t : {0.25, 0.5, 0.75}) {
                const QPoint at = (from + (to - from) * t).toPoint();
                EXPECT_GT(RedPixels(shown.copy(at.x() - 1, at.y() - 1, 3, 3)), 0)
                    << "edge " << i + 1 << " at " << t;
            }
            // The number i + 1 stands 20 pixels above its corner: painting it in red over the
            // picture changes no pixel. Every glyph of the label is then shown in red.
            QImage labelled = shown.copy();
            QPainter painter(&labelled);
            painter.setFont(font);
            painter.setPen(kRed);
            painter.drawText(QRectF(from - QPointF(0, 20), QSizeF(shown.size())),
                             Qt::AlignLeft | Qt::AlignTop, QString::number(i + 1));
            painter.end();
            EXPECT_TRUE(labelled == shown) << "label " << i + 1;
        }

        // The pointer at the picture's right edge reads the last map column, never beyond it.
        const QPoint edge(window->Texture->width() - 1, 0);
        QMouseEvent move(QEvent::MouseMove, edge, window->Texture->mapToGlobal(edge), Qt::NoButton,
                         Qt::NoButton, Qt::NoModifier);
        QApplication::sendEvent(window->Texture, &move);
        EXPECT_EQ(window->findChild<QLabel*>("lbl_coord")->text(), "254, 0");
    }

    entry->trigger();
    expect(false, "closed from the menu");
    entry->trigger();
    QTest::mouseClick(window->cmd_close, Qt::LeftButton);
    expect(false, "closed by its button");
}
