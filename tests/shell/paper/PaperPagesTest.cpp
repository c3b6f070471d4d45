// SPDX-License-Identifier: MIT
#include "shell/paper/PaperPages.h"
#include "shell/paper/PaperPicture.h"
#include "shell/paper/PaperWindow.h"
#include "shell/paper/PictureObjects.h"
#include "tests/SourceFolder.h"
#include "tools/papers/ExamplePaper.h"

#include <gmock/gmock.h>

#include <QDir>
#include <QImage>
#include <QPainter>
#include <QProcess>
#include <QRegularExpression>
#include <QTest>

#include <QTextCursor>
#include <QTextDocument>
#include <QTextEdit>
#include <algorithm>
#include <cmath>

#include <vector>

// The pages of papers, long ones too (tests/papers), as a reader gets them out of their PDF.

namespace korvel
{
namespace
{

QList<QStringList> pagesOfPDF(const QByteArray& PDF)
{
    QProcess reader;
    reader.start("pdftotext", {"-layout", "-", "-"});
    reader.write(PDF);
    reader.closeWriteChannel();
    EXPECT_TRUE(reader.waitForFinished()) << "pdftotext is not there";
    QList<QStringList> pages;
    for (const QString& page :
         QString::fromUtf8(reader.readAllStandardOutput()).split('\f', Qt::SkipEmptyParts)) {
        pages << page.split('\n', Qt::SkipEmptyParts);
        EXPECT_THAT(pages.back().back().toStdString(),
                    ::testing::HasSubstr("Page " + std::to_string(pages.size()) + " of "));
        EXPECT_THAT(pages.back().back().toStdString(), ::testing::HasSubstr("KORVEL2000 1."));
        pages.back().removeLast();
        EXPECT_THAT(pages.back().front().toStdString(),
                    ::testing::ContainsRegex("^ *Ship .*Voyage .* SMT, .* UTC"));
        pages.back().removeFirst();
    }
    return pages;
}

/// The cells of a row as they stand side by side.
QRegularExpression lineOf(const std::vector<std::string>& cells)
{
    QStringList parts;
    for (const std::string& each : cells)
        for (const QString& word : QString::fromStdString(each).split(' ', Qt::SkipEmptyParts))
            parts << QRegularExpression::escape(word);
    return QRegularExpression("^\\s*" + parts.join("\\s*") + "\\s*$");
}

/// Every row once, whole, below the heading of its table on its own page.
void expectWhole(const PaperTable& table, const QList<QStringList>& pages)
{
    const QRegularExpression heading = lineOf(table.headings);
    for (const auto& row : table.rows) {
        const QRegularExpression line = lineOf(row);
        int seen = 0;
        for (const QStringList& page : pages)
            if (const auto at = page.indexOf(line); at >= 0) {
                ++seen;
                const auto above = page.lastIndexOf(heading, at);
                EXPECT_GE(above, 0) << "no heading above " << page[at].toStdString();
            }
        EXPECT_EQ(seen, 1) << table.title << ": " << row.front();
    }
}

TEST(PaperPages, rowsAreWholeBelowTheirHeadingAndNoTitleIsAlone)
{
    QFileInfoList examples;
    for (const char* folder : {"tests/papers", "docs/manual/examples"})
        examples += QDir(QString::fromStdString(sourceFile(folder))).entryInfoList({"*.example"});
    int tables = 0;
    for (const QFileInfo& each : examples) {
        SCOPED_TRACE(each.filePath().toStdString());
        const WorkedExample example(contentOf(each.filePath().toStdString()),
                                    QString::fromStdString(sourceFile("data")));
        PaperWindow& paper = example.openPaper();
        const auto& text = *paper.findChild<QTextEdit*>();
        EXPECT_TRUE(QTest::qWaitFor([&] { return text.toPlainText().contains("Signature"); }))
            << "the end does not come after the beginning";
        const PaperDocument& document = paper.paper();
        const QList<QStringList> pages = pagesOfPDF(document.PDF());
        ASSERT_FALSE(pages.isEmpty());

        std::vector<PaperTable> all = document.paper().tables;
        std::vector<QRegularExpression> titles = {lineOf({"Step Formula Figures Value"})};
        for (const Working& working : document.paper().workings) {
            all.insert(all.end(), working.tables.begin(), working.tables.end());
            titles.push_back(lineOf({"Working: " + working.title}));
        }
        for (const PaperTable& table : all) {
            expectWhole(table, pages);
            titles.insert(titles.end(), {lineOf({table.title}), lineOf(table.headings)});
        }
        for (const QStringList& page : pages) {
            for (const QRegularExpression& title : titles)
                EXPECT_FALSE(title.match(page.back()).hasMatch()) << page.back().toStdString();
            if (const auto at = page.lastIndexOf(QRegularExpression("Working: .*")); at >= 0) {
                const auto holds = [&](const QRegularExpression& heading) {
                    return page.indexOf(heading, at + 1) >= 0;
                };
                // A working of words alone, as of a sight that makes no fix yet, has none.
                const auto isOfWords = [&](const Working& working) {
                    return working.steps.empty() && working.tables.empty() &&
                           page[at].contains(QString::fromStdString(working.title));
                };
                EXPECT_TRUE(std::ranges::any_of(titles, holds) ||
                            std::ranges::any_of(document.paper().workings, isOfWords))
                    << page[at].toStdString();
            }
            // Steps go on with a number: the rest of one that was cut would stand further in.
            if (page.front().contains("Formula")) {
                EXPECT_THAT(page[1].toStdString(), ::testing::ContainsRegex("^ ?[0-9]+\\. "));
            }
        }
        EXPECT_THAT(pages.back().filter("Signature"), ::testing::SizeIs(1));
        EXPECT_GE(pages.back().size(), 2);
        tables += static_cast<int>(all.size());
    }
    EXPECT_GE(tables, 30);
}

TEST(PaperPages, aPageIsFullWhereNothingStaysTogether)
{
    QTextDocument text;
    text.setDocumentMargin(0);
    text.setPlainText("eight lines" + QString("\u2028in a paragraph").repeated(7) +
                      QString("\na paragraph").repeated(8));
    const double line = text.size().height() / 16;
    const std::vector<PaperPage> pages = pagesOf(text, 10.5 * line);
    ASSERT_EQ(pages.size(), 2u);
    EXPECT_NEAR(pages[0].body.height(), 10 * line, 1);
}

TEST(PaperPages, sixLinesStayTogetherAndATitleAboveItsRule)
{
    const auto paragraph = [](int lines) {
        return QString("one\u2028").repeated(lines - 1) + "one\n";
    };
    const struct {
        const char* fault;
        QString middle;
        int linesOnFirstPage;
    } rows[] = {
        {"six lines are parted", paragraph(6), 3},
        {"seven lines are not", paragraph(7), 7},
        {"a title without its rule", "a\nb\nc\ntitle\n---\n", 6},
        {"a picture without its legend", "a\nb\nc\npicture\nlegend\n", 6},
        {"two signs are taken for a rule", "a\nb\nc\nno title\n--\n", 7},
    };
    for (const auto& [fault, middle, lines] : rows) {
        QTextDocument text;
        text.setDocumentMargin(0);
        text.setPlainText("1\n2\n3\n" + middle + QString("a\n").repeated(5) + "end");
        if (QTextCursor picture = text.find("picture"); !picture.isNull())
            picture.insertImage(QTextImageFormat());
        const double line = std::ceil(QFontMetricsF(text.defaultFont()).lineSpacing());
        const std::vector<PaperPage> pages = pagesOf(text, 7.5 * line);
        EXPECT_NEAR(pages[0].body.height(), lines * line, 1) << fault;
    }
}

} // namespace
} // namespace korvel
