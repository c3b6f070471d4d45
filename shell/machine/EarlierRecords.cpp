// SPDX-License-Identifier: MIT
#include "shell/machine/EarlierRecords.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

namespace korvel
{
namespace
{

constexpr const char* factorsFile = "AF2005.txt";
constexpr qint64 largestRecord = 1 << 20; // larger ones are not read either

QStringList recordsIn(const QString& folder)
{
    return QDir(folder).entryList({"KV_*.ini"}, QDir::Files, QDir::Name);
}

/// A copy that can be written to even where the original could not, as on a protected stick.
bool copyFile(const QString& from, const QString& to)
{
    return QFileInfo(from).size() <= largestRecord && QFile::copy(from, to) &&
           QFile::setPermissions(to, QFile::permissions(to) | QFile::WriteOwner | QFile::ReadOwner);
}

std::string listed(const char* heading, const QStringList& names)
{
    return names.isEmpty() ? "" : "\r" + (heading + names.join(", ")).toStdString() + ".";
}

/// A longer factors file was made by the officer; one of the shipped length is the shipped one.
bool isExtended(const QString& earlierFolder, const Places& places)
{
    return QFileInfo(earlierFolder + '/' + factorsFile).size() >
           QFileInfo(places.data + '/' + factorsFile).size();
}

} // namespace

std::string takeRecords(const QString& earlierFolder, const Places& places)
{
    QStringList names = recordsIn(earlierFolder);
    if (names.isEmpty())
        return "There are no records in\r" + QDir::toNativeSeparators(earlierFolder).toStdString();
    if (isExtended(earlierFolder, places)) names << factorsFile;

    QStringList taken;
    QStringList kept;
    QStringList failed;
    for (const QString& name : names) {
        const QString target = places.records + '/' + name;
        if (QFileInfo::exists(target))
            kept << name;
        else if (copyFile(earlierFolder + '/' + name, target))
            taken << name;
        else
            failed << name;
    }
    return "Records are kept in\r" + QDir::toNativeSeparators(places.records).toStdString() + "\r" +
           listed("Taken over: ", taken) + listed("There already, left as they are: ", kept) +
           listed("Could not be copied: ", failed);
}

void settleRecords(const Places& places, const QStringList& arguments, Questions& questions,
                   const std::function<QString()>& chooseFolder)
{
    QString earlierFolder;
    if (const auto option = arguments.indexOf("--take-records"); option >= 0) {
        earlierFolder = arguments.value(option + 1);
    } else if (places.records != places.data && recordsIn(places.records).isEmpty()) {
        const std::string folder = QDir::toNativeSeparators(places.records).toStdString();
        const Message offer{"Your records are kept in\r" + folder +
                                "\r\rTake over those of an earlier portable folder?",
                            confirmationTitle, Buttons::YesNo};
        if (questions.ask(offer) == Answer::Yes) earlierFolder = chooseFolder();
    }
    if (!earlierFolder.isEmpty()) questions.ask({takeRecords(earlierFolder, places), programTitle});
}

} // namespace korvel
