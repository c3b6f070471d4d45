// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/RecordFile.h"
#include "forms/frmCompass/CompassBook.h"

#include <functional>
#include <optional>
#include <string>

namespace korvel
{

/// The compass book and its file, which holds every change at once. Of a damaged file what can be
/// read is taken over and the damage named; it is kept under a dated name before it is written
/// over.
class CompassBookFile
{
public:
    /// @param files, questions, clock must outlive this object
    CompassBookFile(FileStore& files, Questions& questions, const ComputerClock& clock);

    const CompassBook& book() const { return m_book; }

    /// Reads the file, and tells what is wrong with it.
    void load();

    /// Changes the book and writes it.
    /// @return why it could not be written, in words; the change stands all the same
    std::string change(const std::function<void(CompassBook&)>& change);
    bool canUndo() const { return m_before.has_value(); }
    /// Takes the last change back and writes the book. @return as change()
    std::string undo();

    /// Writes what could not be written before. @return as change()
    std::string save();
    /// Writes it for the last time: when that fails, offers to try again.
    void saveAtClose();

private:
    RecordFile m_file;
    CompassBook m_book;
    std::optional<CompassBook> m_before; ///< the last change
    bool m_isSaved = true;
};

} // namespace korvel
