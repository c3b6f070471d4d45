// SPDX-License-Identifier: MIT
#include "forms/frmCompass/pages/BookKeeping.h"

#include "forms/frmCompass/CompassList.h"
#include "forms/frmCompass/CompassPaper.h"
#include "forms/frmCompass/pages/BookPage.h"
#include "shell/machine/AsQString.h"
#include "shell/program/Program.h"

#include <algorithm>

namespace korvel
{

BookKeeping::BookKeeping(Program& program, BookPage& page, QObject* parent)
    : QObject(parent), m_program(program), m_page(page),
      m_file(program.files(), program.questions(), program.clock())
{
    connect(&m_page, &BookPage::deleteAsked, this, &BookKeeping::deleteChosen);
    connect(&m_page, &BookPage::undoAsked, this, &BookKeeping::undo);
    connect(&m_page, &BookPage::importAsked, this, &BookKeeping::importList);
    connect(&program, &Program::recordsWanted, this, &BookKeeping::save);
}

std::optional<CompassLine> BookKeeping::chosen() const
{
    const auto line = m_page.chosen();
    if (!line) return std::nullopt;
    return book().at(*line);
}

void BookKeeping::show()
{
    m_page.show(book(), m_file.canUndo());
}

/// @param fault why the book could not be written, in words
void BookKeeping::take(const std::string& fault)
{
    show();
    emit written(asQString(fault));
    emit changed();
}

bool BookKeeping::record(const std::optional<CompassLine>& line)
{
    QString why;
    if (!line)
        why = "Nothing is recorded: a line needs the true bearing and a bearing by compass";
    else if (std::ranges::find(book(), *line) != book().end())
        why = "Recorded already!";
    else if (book().size() >= mostCompassLines)
        why = QString("The book is full with %1 lines: save it as CSV, then delete some")
                  .arg(mostCompassLines);
    if (!why.isEmpty()) {
        emit refused(why);
        return false;
    }
    take(m_file.change([&](CompassBook& book) { book.push_back(*line); }));
    m_page.choose(book().size() - 1);
    emit done("Recorded: " + asQString(lineInWords(*line)));
    return true;
}

void BookKeeping::deleteChosen()
{
    const auto line = m_page.chosen();
    if (!line) return;
    const Message question{"Delete this line of the compass book?\r\r" +
                               lineInWords(book().at(*line)),
                           confirmationTitle, Buttons::YesNo};
    if (m_program.questions().ask(question) != Answer::Yes) return;
    take(m_file.change(
        [&](CompassBook& book) { book.erase(book.begin() + static_cast<std::ptrdiff_t>(*line)); }));
}

void BookKeeping::undo()
{
    if (m_file.canUndo()) take(m_file.undo());
}

void BookKeeping::importList()
{
    const auto path = m_program.questions().fileToRead("Import a compass book", "csv");
    if (!path) return;
    const FileStore::Content file = m_program.files().readAnywhere(*path);
    const bool isRead = file.status == FileStore::Content::Status::Read;
    const ReadCompassList list = isRead ? readCompassList(file.bytes) : ReadCompassList{};
    const std::string fault = isRead                ? list.fault
                              : file.reason.empty() ? "it is missing"
                                                    : file.reason;
    if (!fault.empty()) {
        m_program.questions().ask(
            {'"' + *path + "\" was not imported: " + fault + ".\rThe book is as it was.",
             programTitle, Buttons::Ok});
        return;
    }
    std::size_t added{};
    take(m_file.change([&](CompassBook& book) { added = addNewLines(book, list.lines); }));
    emit done(QString("%1 of %2 lines added, the others stand in the book already; Undo takes "
                      "them out again.")
                  .arg(added)
                  .arg(list.lines.size()));
}

} // namespace korvel
