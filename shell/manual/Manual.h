// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"

#include <QString>
#include <QStringList>

#include <functional>
#include <map>

namespace korvel
{

/// The manual as it lies beside the program: pages of Markdown in the folder "manual".
class Manual
{
public:
    /// @param files must outlive this object
    explicit Manual(FileStore& files) : m_files(files) {}

    /// All pages in the order of the contents.
    static const QStringList& pages();
    /// The page of a window by its class name; the main window's for what has none of its own.
    static QString pageOf(const QString& window);

    bool has(const QString& page) const;
    /// The page with its facts filled in; a page that says why, when it cannot be read.
    QString text(const QString& page) const;
    /// The first heading of a page.
    QString title(const QString& page) const;

    /// What a page says as {version}, {records} and the like; asked for by the first such page.
    std::function<std::map<QString, QString>()> facts = [] { return std::map<QString, QString>(); };

private:
    FileStore& m_files;
    mutable std::map<QString, QString> m_facts;
};

} // namespace korvel
