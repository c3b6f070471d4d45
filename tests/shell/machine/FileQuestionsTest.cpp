// SPDX-License-Identifier: MIT
#include "shell/machine/MessageQuestions.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QFileDialog>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

namespace korvel
{
namespace
{

/// Does something with the next file dialog as soon as it is there.
void withDialog(const std::function<void(QFileDialog&)>& act)
{
    auto* hand = new QTimer(qApp);
    QObject::connect(hand, &QTimer::timeout, hand, [hand, act] {
        auto* dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
        if (!dialog) return;
        hand->deleteLater();
        hand->stop();
        act(*dialog);
    });
    hand->start(10);
}

TEST(MessageQuestions, filesAreLookedForWhereTheLastOneWas)
{
    const QTemporaryDir folder;
    const QString route = folder.filePath("route.gpx");
    MessageQuestions questions;
    withDialog([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptSave);
        EXPECT_EQ(dialog.nameFilters(), QStringList("GPX (*.gpx)"));
        EXPECT_EQ(dialog.selectedFiles().value(0).section('/', -1), "offered.gpx");
        dialog.selectFile(folder.filePath("route"));
        static_cast<QDialog&>(dialog).done(QDialog::Accepted);
    });
    EXPECT_EQ(questions.fileToWrite("Save", "offered.gpx"), route.toStdString());
    withDialog([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        dialog.reject();
    });
    EXPECT_EQ(questions.fileToWrite("Save", "offered.csv"), std::nullopt);
    withDialog([&](QFileDialog& dialog) {
        EXPECT_EQ(dialog.acceptMode(), QFileDialog::AcceptOpen);
        EXPECT_EQ(dialog.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
        dialog.reject();
    });
    EXPECT_EQ(questions.fileToRead("Open", "csv"), std::nullopt);
}

} // namespace
} // namespace korvel
