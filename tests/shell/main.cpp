// SPDX-License-Identifier: MIT
#include "shell/screen/ScreenStyle.h"
#include "tests/scenes/SceneTest.h"

#include <gmock/gmock.h>

#include <QApplication>

int main(int argc, char* argv[])
{
    ::testing::InitGoogleMock(&argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setStyle(new korvel::ScreenStyle);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    korvel::testing::registerScenes();
    return RUN_ALL_TESTS();
}
