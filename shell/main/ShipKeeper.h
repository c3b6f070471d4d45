// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/RecordFile.h"
#include "shell/program/Program.h"

#include <QTimer>

namespace korvel
{

/// Keeps the ship now in its file, and asks the officer for it.
class ShipKeeper : public QObject
{
public:
    /// @param program, questions, files, clock must outlive this object
    ShipKeeper(Program& program, Questions& questions, FileStore& files,
               const ComputerClock& clock);

    void load();
    /// Writes what is not written yet.
    void save();
    /// Asks for position, course and speed of this minute.
    void ask();
    void toggleShown();
    /// The line of the main window; empty while the officer does not want it.
    std::string line() const;

private:
    bool askPosition();
    void askMotion();

    Program& m_program;
    Questions& m_questions;
    RecordFile m_file;
    QTimer m_burst; ///< runs from the first change to the write
};

} // namespace korvel
