// Entry point of the GUI test programs: the editor's pixel format and one QApplication for all
// tests of the program.
#include "oglgraphics.h"

#include <QApplication>
#include <gtest/gtest.h>

int main(int argc, char** argv) {
    RequestPixelFormat();
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
