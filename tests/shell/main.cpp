// SPDX-License-Identifier: MIT
#include "tests/scenes/SceneTest.h"

#include <gmock/gmock.h>

#include <QApplication>

int main(int argc, char* argv[])
{
    ::testing::InitGoogleMock(&argc, argv);
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    korvel::testing::registerScenes();
    return RUN_ALL_TESTS();
}
