#include "texturewindow.h"

#include "currentmodel.h"
#include "imagestore.h"
#include "picturebox.h"
#include "texturemap.h"

#include <QCloseEvent>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>

#include <cmath>

namespace {

constexpr const char* kTitle = "TEXTURE";
constexpr double kTwipsPerInch = 1440.0;
// The window is 3960 twips wide per unit of scale and as high plus the 1200-twip strip of
// controls above the picture. Those are outer sizes: the borders take 135 twips of the width and
// the title bar with the borders 375 of the height, which leaves a square picture of 3825 twips
// (255 pixels at 96 dots per inch) at scale 1.
constexpr double kScaleTwips = 3960.0;
constexpr double kStripTwips = 1200.0;
constexpr double kBorderWidthTwips = 135.0;
constexpr double kFrameHeightTwips = 375.0;
constexpr double kPictureTopTwips = 960.0;
// The largest map coordinate: one map unit is a 255th of the picture.
constexpr double kMapUnits = 255.0;

struct Place {
    int left, top, width, height;
};
constexpr Place kClosePlace{0, 0, 735, 375};
constexpr Place kShrinkPlace{3120, 0, 735, 375};
constexpr Place kCoordPlace{0, 600, 2535, 255};
constexpr int kOptionWidth = 735;
constexpr int kOptionHeight = 315;
constexpr int kOptionColumn1 = 1200;
constexpr int kOptionColumn2 = 1920;
constexpr int kOptionRow2 = 240;
// The controls' captions are set in the small font that the design's places are made for.
constexpr int kControlPoints = 8;

frm_texture* theWindow = nullptr;

} // namespace

frm_texture* TextureWindow() {
    return theWindow;
}

frm_texture::frm_texture(QWidget* owner) : QWidget(owner, Qt::Tool) {
    setObjectName("frm_texture");
    setWindowTitle(kTitle);
    setMinimumSize(0, 0);
    QFont small = font();
    small.setPointSize(kControlPoints);
    setFont(small);
    const auto place = [this](QWidget* control, const Place& at) {
        control->setGeometry(TwipsToPixelsX(at.left), TwipsToPixelsY(at.top),
                             TwipsToPixelsX(at.width), TwipsToPixelsY(at.height));
    };

    cmd_close = new QPushButton("Close", this);
    cmd_close->setObjectName("cmd_close");
    place(cmd_close, kClosePlace);
    connect(cmd_close, &QPushButton::clicked, this, &QWidget::close);

    opt_100 = AddScaleOption("opt_100", "100%", kOptionColumn1, 0, 1.0f);
    opt_200 = AddScaleOption("opt_200", "200%", kOptionColumn1, kOptionRow2, 2.0f);
    opt_150 = AddScaleOption("opt_150", "150%", kOptionColumn2, 0, 1.5f);
    opt_300 = AddScaleOption("opt_300", "300%", kOptionColumn2, kOptionRow2, 3.0f);
    opt_100->setChecked(true);

    cmd_shrink = new QPushButton("Shrink", this);
    cmd_shrink->setObjectName("cmd_shrink");
    place(cmd_shrink, kShrinkPlace);
    connect(cmd_shrink, &QPushButton::clicked, this, &frm_texture::cmd_shrink_Click);

    lbl_coord = new QLabel("xmap, ymap", this);
    lbl_coord->setObjectName("lbl_coord");
    QFont bold = lbl_coord->font();
    bold.setBold(true);
    lbl_coord->setFont(bold);
    lbl_coord->setAlignment(Qt::AlignCenter);
    place(lbl_coord, kCoordPlace);

    Texture = new PictureBox(this);
    Texture->setObjectName("Texture");
    connect(Texture, &PictureBox::PointerMoved, this, &frm_texture::Texture_MouseMove);

    SizeForScale();
    theWindow = this;
}

frm_texture::~frm_texture() {
    if (theWindow == this)
        theWindow = nullptr;
}

QRadioButton* frm_texture::AddScaleOption(const char* name, const char* caption, int left, int top,
                                          float scale) {
    auto* option = new QRadioButton(caption, this);
    option->setObjectName(name);
    option->setGeometry(TwipsToPixelsX(left), TwipsToPixelsY(top), TwipsToPixelsX(kOptionWidth),
                        TwipsToPixelsY(kOptionHeight));
    connect(option, &QRadioButton::clicked, this, [this, scale] {
        TextureScale = scale;
        ApplyTextureScale();
    });
    return option;
}

// Changing the stay-on-top state makes the window system take the window anew; a shown window is
// shown again at once.
void frm_texture::SetOnTop(bool on_top) {
    if (windowFlags().testFlag(Qt::WindowStaysOnTopHint) == on_top)
        return;
    const bool shown = isVisible();
    setWindowFlag(Qt::WindowStaysOnTopHint, on_top);
    if (shown)
        show();
}

void frm_texture::Set_Texture(int16_t index) {
    SetOnTop(true);
    TextureIndex = index;
    const ImageStore* store = ::Texture(index);
    if (store != nullptr && store->HasPicture())
        DrawTextureLines(CurrentModel());
}

void frm_texture::Form_Load() {
    SetOnTop(true);
    TextureScale = 1.0f;
    opt_100->setChecked(true);
    SizeForScale();
}

void frm_texture::Open(int16_t index) {
    Form_Load();
    Set_Texture(index);
    show();
}

void frm_texture::FollowOwnerMinimised() {
    if (!isVisible())
        return;
    SetOnTop(false);
    showMinimized();
}

void frm_texture::ApplyTextureScale() {
    SizeForScale();
    DrawTextureLines(CurrentModel());
}

void frm_texture::SizeForScale() {
    const int side = TwipsToPixelsX(TextureScale * kScaleTwips - kBorderWidthTwips);
    resize(side, FullClientHeight());
    Texture->setGeometry(0, TwipsToPixelsY(kPictureTopTwips), side, side);
}

int frm_texture::FullClientHeight() const {
    return TwipsToPixelsY(TextureScale * kScaleTwips + kStripTwips - kFrameHeightTwips);
}

// Rolled up, only the title bar is left; the next press opens to the height of the present scale.
void frm_texture::cmd_shrink_Click() {
    const bool rolledUp = height() < TwipsToPixelsY(kStripTwips - kFrameHeightTwips);
    resize(width(), rolledUp ? FullClientHeight() : 0);
}

void frm_texture::Texture_MouseMove(QPoint position) {
    const auto mapUnit = [](int at, int size) {
        return static_cast<int>(std::floor(at / static_cast<double>(size) * kMapUnits));
    };
    lbl_coord->setText(QString("%1, %2")
                           .arg(mapUnit(position.x(), Texture->width()))
                           .arg(mapUnit(position.y(), Texture->height())));
}

void frm_texture::closeEvent(QCloseEvent* event) {
    SetOnTop(false);
    event->accept();
    emit Unloaded();
}

int frm_texture::TwipsToPixelsX(double twips) const {
    return static_cast<int>(std::lround(twips * logicalDpiX() / kTwipsPerInch));
}

int frm_texture::TwipsToPixelsY(double twips) const {
    return static_cast<int>(std::lround(twips * logicalDpiY() / kTwipsPerInch));
}
