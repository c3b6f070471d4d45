// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmCompass/CompassBookFile.h"

#include <QObject>

#include <optional>

namespace korvel
{

class BookPage;
class Program;

/// What is done to the compass book: lines recorded, deleted, imported, and the last of it undone.
/// Every change is on the disk before anything else happens.
class BookKeeping : public QObject
{
    Q_OBJECT

public:
    /// @param program, page must outlive this object
    BookKeeping(Program& program, BookPage& page, QObject* parent);

    const CompassBook& book() const { return m_file.book(); }
    /// The line that is chosen in the list.
    std::optional<CompassLine> chosen() const;

    void load() { m_file.load(); }
    void save() { m_file.save(); }
    void saveAtClose() { m_file.saveAtClose(); }
    /// Shows the book as it is.
    void show();

    /// Adds a line. @param line nothing when the boxes make none @return false when it was refused
    bool record(const std::optional<CompassLine>& line);
    void deleteChosen();
    void undo();
    void importList();

signals:
    void changed();
    /// @param fault why the book could not be written; empty when it was
    void written(const QString& fault);
    void refused(const QString& why);
    void done(const QString& said);

private:
    void take(const std::string& fault);

    Program& m_program;
    BookPage& m_page;
    CompassBookFile m_file;
};

} // namespace korvel
