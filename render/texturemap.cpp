#include "texturemap.h"

#include "imagestore.h"
#include "model.h"
#include "picturebox.h"
#include "piggybacknumber.h"
#include "texturewindow.h"

#include <QFont>
#include <QImage>

#include <algorithm>

namespace {

const QColor kOutlineColour(255, 60, 60);
constexpr int kOutlineWidth = 2;
// Each corner's number stands this many pixels above the corner, in a font s + 8 points high.
constexpr double kLabelRise = 20.0;
constexpr double kLabelExtraPoints = 8.0;
constexpr double kMapUnits = 255.0;
// Kinds from this one up to the NULL kind carry map coordinates.
constexpr uint8_t kFirstTexturedKind = 5;

QImage StoreImage(const ImageStore& store) {
    return QImage(store.Pixels().data(), store.Width(), store.Height(), store.Width() * 3,
                  QImage::Format_RGB888);
}

void DrawOutline(PictureBox& box, const Piggyback& piggyback) {
    const int corners = std::min<int>({piggyback.CRN, static_cast<int>(piggyback.XMap.size()),
                                       static_cast<int>(piggyback.YMap.size())});
    if (corners < 1)
        return;
    const double s = box.width() / kMapUnits;
    const auto corner = [&](int i) {
        return QPointF(piggyback.XMap[i] * s, piggyback.YMap[i] * s);
    };
    for (int i = 0; i + 1 < corners; ++i)
        box.DrawLine(corner(i), corner(i + 1), kOutlineColour, kOutlineWidth);
    box.DrawLine(corner(corners - 1), corner(0), kOutlineColour, kOutlineWidth);

    QFont font = box.font();
    font.setBold(true);
    font.setPointSizeF(s + kLabelExtraPoints);
    for (int i = 0; i < corners; ++i)
        box.Print(corner(i) - QPointF(0, kLabelRise), QString::number(i + 1), font, kOutlineColour);
}

} // namespace

void DrawTextureMap(const model& m) {
    frm_texture* window = TextureWindow();
    if (window == nullptr)
        return;
    PictureBox& box = *window->Texture;
    box.Clear();
    const ImageStore* store = Texture(m.m_currmox);
    if (store != nullptr && store->HasPicture())
        box.DrawStretched(StoreImage(*store));
    if (m.m_currelem == -1 || m.m_currmox < 0 || m.m_currmox >= static_cast<int>(m.Files.size()))
        return;
    const Piggyback* piggyback = FindPiggyback(m.Files[m.m_currmox], m.m_currelem);
    if (piggyback != nullptr && piggyback->Type >= kFirstTexturedKind &&
        piggyback->Type < kTypeNull)
        DrawOutline(box, *piggyback);
}

void DrawTextureLines(const model& m) {
    if (m.M_Type == kMoxLoaded)
        DrawTextureMap(m);
}
