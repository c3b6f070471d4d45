// SPDX-License-Identifier: MIT
// The baseline of the start: the barest window of the toolkit, with a menu and a line of text.

#include <QApplication>
#include <QLabel>
#include <QMainWindow>
#include <QMenuBar>

int main(int argc, char* argv[])
{
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    QMainWindow window;
    window.setObjectName("bare");
    window.menuBar()->addMenu("&File");
    window.setCentralWidget(new QLabel("A window"));
    // As large as the main window, whose picture in memory is part of what is compared.
    const QFontMetrics metrics = window.fontMetrics();
    window.resize(metrics.averageCharWidth() * 66, metrics.height() * 9);
    window.show();
    return QApplication::exec();
}
