// The screen tests run without a display: the offscreen platform must be
// chosen before the application object exists.
#include <gtest/gtest.h>

#include <QApplication>
#include <cstdlib>

#include "screens/theme.h"

int main(int argc, char** argv) {
    setenv("QT_QPA_PLATFORM", "offscreen", 1);
    QApplication app(argc, argv);
    trovane::screens::applyTheme(app);
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
