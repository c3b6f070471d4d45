// SPDX-License-Identifier: MIT
#include "shell/screen/ScreenStyle.h"
#include "tests/scenes/SceneTest.h"

#include <gmock/gmock.h>

#include <QApplication>
#include <QFont>
#include <QPalette>
#include <QtGlobal>

#include <cstdlib>
#include <exception>

namespace
{

QtMessageHandler before = nullptr;

/// A painter that is left turned, in another pen or active draws the next control wrong: the
/// toolkit says so, and a test that heard it fails.
void hear(QtMsgType kind, const QMessageLogContext& context, const QString& said)
{
    if (said.startsWith("QPainter::")) ADD_FAILURE() << said.toStdString();
    before(kind, context, said);
}

/// The letters and colours of the whole program are those of its start again, whatever a test
/// chose: which test comes next depends on how many parts run at once.
class AsAtTheStart : public ::testing::EmptyTestEventListener
{
    void OnTestEnd(const ::testing::TestInfo& /*test*/) override
    {
        if (QApplication::palette() != m_palette) QApplication::setPalette(m_palette);
        if (QApplication::font() != m_font) QApplication::setFont(m_font);
    }

    QPalette m_palette = QApplication::palette();
    QFont m_font = QApplication::font();
};

} // namespace

int main(int argc, char* argv[])
try {
    ::testing::InitGoogleMock(&argc, argv);
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QApplication::setStyle(new korvel::ScreenStyle);
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    before = qInstallMessageHandler(hear);
    ::testing::UnitTest::GetInstance()->listeners().Append(new AsAtTheStart);
    korvel::testing::registerScenes();
    return RUN_ALL_TESTS();
} catch (const std::exception& fault) { // a scene that cannot be read
    qCritical("%s", fault.what());
    return EXIT_FAILURE;
}
