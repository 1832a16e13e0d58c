// A fixture that starts the editor as the program does, with every message and question going to
// a RecordingHost, and reads pixels back from its GL view.
#pragma once

#include "gltextureloader.h"
#include "mainwindow.h"
#include "qtmodelhost.h"
#include "recordinghost.h"

#include <QColor>
#include <QImage>
#include <gtest/gtest.h>

#include <array>
#include <memory>

class GLView;

class EditorTest : public ::testing::Test {
protected:
    // Starts the editor with nothing loaded and waits for its first frame.
    void SetUp() override;
    void TearDown() override;

    frm_main& Window() { return *window_; }
    GLView& Surface();
    // The window's child of the given Qt object name, or nullptr.
    template <typename T> T* Find(const char* name) const;

    // Asks the view for `count` frames one after the other, as a handler does, and waits, by
    // letting events run, until each is painted. False when one does not come within seconds.
    bool WaitForFrames(int count);
    // Paints one frame into the view's back buffer, as the view paints it, and reads it back.
    QImage ReadFrame();

    // Messages and questions are answered by `host`; the window's changes of a load go on to
    // the real window through `windowHost`, and textures reach GL as in the program.
    RecordingHost host;
    QtModelHost windowHost;
    GLTextureLoader textures;

private:
    std::unique_ptr<frm_main> window_;
};

template <typename T> T* EditorTest::Find(const char* name) const {
    return window_->findChild<T*>(name);
}

// The red, green and blue of a pixel, for comparing with a sky colour.
using Rgb = std::array<int, 3>;
// The start sky colour 178, 229, 255 divided by 256, as an 8-bit buffer holds it:
// round(178 / 256 * 255) = 177, round(229 / 256 * 255) = 228, round(255 / 256 * 255) = 254.
inline const Rgb kStartSky{177, 228, 254};
Rgb PixelAt(const QImage& image, int x, int y);
