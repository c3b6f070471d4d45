// SPDX-License-Identifier: MIT
#include "tests/SourceFolder.h"
#include "tools/papers/ExamplePaper.h"

#include <gmock/gmock.h>

#include <QDir>

// The worked examples of the manual: the program works each anew as the manual has it, and every
// result that its window shows is a step of the working. (papers docs/manual data writes them.)

namespace korvel
{
namespace
{

TEST(PaperExamples, theManualHasWhatTheProgramWorks)
{
    const QDir examples(QString::fromStdString(sourceFile("docs/manual/examples")));
    const QStringList all = examples.entryList({"*.example"}, QDir::Files, QDir::Name);
    ASSERT_FALSE(all.isEmpty());
    for (const QString& each : all) {
        SCOPED_TRACE(each.toStdString());
        const auto made = workExample(contentOf(examples.filePath(each).toStdString()),
                                      QString::fromStdString(sourceFile("data")));
        EXPECT_THAT(made.missing, ::testing::IsEmpty());
        EXPECT_EQ(made.text, contentOf(sourceFile("docs/manual/papers/") +
                                       each.chopped(7).toStdString() + "md"));
    }
}

} // namespace
} // namespace korvel
