// Entry point of the GUI test programs: the editor's pixel format, one QApplication for all
// tests of the program, and configuration and data folders that live only as long as the run.
#include "oglgraphics.h"

#include <QApplication>
#include <QTemporaryDir>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    // The configuration and the desktop entries the editor writes go to a folder of the run's own.
    const QTemporaryDir home;
    qputenv("XDG_CONFIG_HOME", home.filePath("config").toUtf8());
    qputenv("XDG_DATA_HOME", home.filePath("data").toUtf8());
    RequestPixelFormat();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
