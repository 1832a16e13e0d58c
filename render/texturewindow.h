// frm_texture, the texture window: a small tool window that shows the current file's texture with
// the selected polygon's map outline over it, at one of four scales.
#pragma once

#include <QWidget>

#include <cstdint>

class PictureBox;
class QLabel;
class QPushButton;
class QRadioButton;

class frm_texture : public QWidget {
    Q_OBJECT
public:
    // The window becomes the program's texture window (TextureWindow()) until it is destroyed.
    // With an owner it is a tool window of the owner's and has no task bar entry of its own.
    explicit frm_texture(QWidget* owner = nullptr);
    ~frm_texture() override;

    // Keeps the window above all others, or lets it go behind them again.
    void SetOnTop(bool on_top = true);
    // Shows store `index` from now on and draws the current model's map outline when the store
    // holds a picture.
    void Set_Texture(int16_t index);
    // What every opening of the window starts from: on top, scale 1 with "100%" set, design size.
    void Form_Load();
    // Sizes the window and its picture for TextureScale and draws the map outline again.
    void ApplyTextureScale();
    // Opens the window on store `index` as the View menu does: a fresh start, the picture and
    // outline of the moment, shown without holding up the main window.
    void Open(int16_t index);
    // The main window was minimised: a shown texture window lets go of its place on top and is
    // minimised too.
    void FollowOwnerMinimised();

    float TextureScale = 1.0f;
    int16_t TextureIndex = 0;

    QPushButton* cmd_close = nullptr;
    QRadioButton* opt_100 = nullptr;
    QRadioButton* opt_200 = nullptr;
    QRadioButton* opt_150 = nullptr;
    QRadioButton* opt_300 = nullptr;
    QPushButton* cmd_shrink = nullptr;
    QLabel* lbl_coord = nullptr;
    PictureBox* Texture = nullptr;

signals:
    // The window was closed: the View menu's tick goes.
    void Unloaded();

protected:
    void closeEvent(QCloseEvent* event) override;

private:
    QRadioButton* AddScaleOption(const char* name, const char* caption, int left, int top,
                                 float scale);
    void cmd_shrink_Click();
    void Texture_MouseMove(QPoint position);
    // Window and picture size for TextureScale, with nothing drawn.
    void SizeForScale();
    int FullClientHeight() const;
    int TwipsToPixelsX(double twips) const;
    int TwipsToPixelsY(double twips) const;
};

// The program's texture window, or nullptr when none was made (a program without a window).
frm_texture* TextureWindow();
