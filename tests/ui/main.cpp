// SPDX-License-Identifier: MIT
// The tests of the windows run without a display.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    // Set before anything of Qt exists: the tests are also listed while they are built, with no environment of theirs.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    testing::InitGoogleTest(&argc, argv);
    QApplication app(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
