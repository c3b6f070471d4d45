// SPDX-License-Identifier: MIT
#include "tools/papers/ExamplePaper.h"

#include <QApplication>
#include <QDir>
#include <QFile>

#include <cstdio>
#include <exception>

namespace
{

/// Works one example. @return false when it cannot be worked or written
bool writePaper(const QFileInfo& example, const QDir& manual, const QString& data,
                const QString& folderOfPDF)
{
    QFile from(example.filePath());
    QFile to(manual.filePath("papers/" + example.baseName() + ".md"));
    if (!from.open(QIODevice::ReadOnly) || !to.open(QIODevice::WriteOnly)) {
        std::fprintf(stderr, "%s: cannot be read or written\n", qPrintable(example.fileName()));
        return false;
    }
    try {
        const auto paper = korvel::workExample(from.readAll().toStdString(), data);
        to.write(paper.text.c_str());
        if (!folderOfPDF.isEmpty()) {
            QFile file(QDir(folderOfPDF).filePath(example.baseName() + ".pdf"));
            if (!file.open(QIODevice::WriteOnly) || file.write(paper.PDF) != paper.PDF.size())
                std::fprintf(stderr, "%s: cannot be written\n", qPrintable(file.fileName()));
        }
        for (const std::string& name : paper.missing)
            std::fprintf(stderr, "%s: no step leads to %s\n", qPrintable(example.fileName()),
                         name.c_str());
        return paper.missing.empty();
    } catch (const std::exception& fault) {
        std::fprintf(stderr, "%s: %s\n", qPrintable(example.fileName()), fault.what());
        return false;
    }
}

} // namespace

int main(int argc, char* argv[])
{
    if (argc < 3) {
        std::fprintf(stderr, "papers MANUAL DATA [PDF]: folders of the manual, of the tide data, "
                             "and for the same as PDF\n");
        return 2;
    }
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication::setStyle("Fusion");
    QApplication application(argc, argv);
    QApplication::setQuitOnLastWindowClosed(false);
    const QDir manual(argv[1]);
    bool isWhole = true;
    for (const QFileInfo& each :
         QDir(manual.filePath("examples")).entryInfoList({"*.example"}, QDir::Files, QDir::Name))
        isWhole = writePaper(each, manual, argv[2], argc > 3 ? argv[3] : "") && isWhole;
    return isWhole ? 0 : 1;
}
