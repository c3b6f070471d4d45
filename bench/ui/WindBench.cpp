// SPDX-License-Identifier: MIT
#include "bench/ui/UiBench.h"
#include "bench/ui/main.h"
#include "forms/frmWind/frmWind.h"
#include "shell/controls/PictureBox.h"

#include <QMouseEvent>

namespace
{

using namespace korvel;
using namespace korvel::bench;

void pointer(QWidget& picture, QEvent::Type type, QPointF at)
{
    const auto button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, at, picture.mapToGlobal(at), button, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(&picture, &event);
    QApplication::processEvents();
}

/// Two steps of a drag, there and back, each painted with its boxes, results and vectors.
void drag(const Rounds& round)
{
    BenchProgram program;
    auto* window = new frmWind(program.program());
    const char* const texts[] = {"45", "12", "30", "22"};
    for (int i = 0; i < 4; ++i)
        find<QLineEdit>(*window, memberName("txtWind", i).toUtf8().constData()).setText(texts[i]);
    auto& picture = find<PictureBox>(*window, "picWind");
    prepare(*window, find<QLineEdit>(*window, "txtWind(0)"));
    const QPointF here = picture.toPixel(10, 12);
    const QPointF there = picture.toPixel(12, 14);
    pointer(picture, QEvent::MouseButtonPress, here);
    round([&] {
        pointer(picture, QEvent::MouseMove, there);
        pointer(picture, QEvent::MouseMove, here);
    });
    delete window;
}

} // namespace

int main(int argc, char* argv[])
{
    return runUiBench(argc, argv,
                      {{"ours/frmWind drag", drag}, {"peer/frmWind drag", bareTextBox("22")}});
}
