// SPDX-License-Identifier: MIT
#include "tests/SourceFolder.h"
#include "tools/papers/ExamplePaper.h"

#include <gmock/gmock.h>

#include <QDir>

#include <fstream>
#include <sstream>

// The worked examples of the manual: the program works each anew as the manual has it, and every
// result that its window shows is a step of the working. (papers docs/manual data writes them.)

namespace korvel
{
namespace
{

std::string contentOf(const std::string& path)
{
    std::ostringstream content;
    content << std::ifstream(path).rdbuf();
    return content.str();
}

TEST(PaperExamples, theManualHasWhatTheProgramWorks)
{
    const QDir examples(QString::fromStdString(testing::sourceFile("docs/manual/examples")));
    const QStringList all = examples.entryList({"*.example"}, QDir::Files, QDir::Name);
    ASSERT_FALSE(all.isEmpty());
    for (const QString& each : all) {
        SCOPED_TRACE(each.toStdString());
        const auto made =
            workExample(contentOf(examples.filePath(each).toStdString()),
                        QString::fromStdString(testing::sourceFile("data")));
        EXPECT_THAT(made.missing, ::testing::IsEmpty());
        EXPECT_EQ(made.text, contentOf(testing::sourceFile("docs/manual/papers/") +
                                       each.chopped(7).toStdString() + "md"));
    }
}

} // namespace
} // namespace korvel
