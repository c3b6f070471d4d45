// SPDX-License-Identifier: MIT
#include "shell/controls/FieldBoxes.h"

#include "app/reading/Format.h"
#include "app/reading/Reading.h"
#include "app/records/KORVEL2000Actions.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>

#include <algorithm>

namespace korvel
{
namespace
{

EntryBox* boxOf(const Field& field, QWidget* parent)
{
    if (field.kind == FieldKind::Latitude) return new PositionBox(Axis::Latitude, parent);
    if (field.kind == FieldKind::Longitude) return new PositionBox(Axis::Longitude, parent);
    return field.onKeyRelease ? new KeyUpBox(parent) : new EntryBox(parent);
}

/// A date, a time of day or both as they were read; empty when they could not be.
std::string momentInFull(const std::string& typed)
{
    const auto moment = readDateTime(typed);
    if (!moment) return {};
    const auto colons = std::ranges::count(asciiForms(typed), ':');
    const std::string time = colons == 0 ? "" : colons == 1 ? "hh:mm" : "hh:mm:ss";
    const bool hasDate = *moment >= 1; // a time alone belongs to day 0
    if (!hasDate) return Format(*moment, time);
    return Format(*moment, "yyyy-mm-dd" + (time.empty() ? time : ' ' + time));
}

} // namespace

QString limitsInWords(double low, double high)
{
    const QString from = QString::number(low);
    const QString to = QString::number(high, 'g', 10);
    if (std::isinf(low)) return std::isinf(high) ? QString() : "to " + to;
    return std::isinf(high) ? "from " + from : from + " to " + to;
}

FieldBoxes::FieldBoxes(std::span<const Field> table, QWidget* parent) : m_table(table)
{
    for (const Field& field : table) {
        EntryBox* box = boxOf(field, parent);
        box->setObjectName(field.name);
        box->declare(field.words, asQString(writingOf(field)));
        box->recordKind = field.kind;
        box->setLimits(limitsInWords(field.low, field.high));
        if (field.kind == FieldKind::Figure || field.kind == FieldKind::Angle)
            box->setReading({.name = {}, .low = field.low, .high = field.high, .kind = field.kind});
        if (field.kind == FieldKind::Text) box->setMaxLength(EntryBox::longestText);
        if (field.kind == FieldKind::Longitude && !m_boxes.empty())
            if (auto* latitude = dynamic_cast<PositionBox*>(m_boxes.back()))
                PositionBox::pair(latitude, static_cast<PositionBox*>(box));
        // As wide as what it takes, whatever room there is.
        if (field.kind != FieldKind::Text)
            box->setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
        if (field.kind != FieldKind::Text && field.kind != FieldKind::Moment)
            box->setAlignment(Qt::AlignRight);
        m_boxes.push_back(box);
    }
    setEntryOrder(m_boxes);
}

PositionBox* FieldBoxes::position(std::size_t field) const
{
    return static_cast<PositionBox*>(m_boxes.at(field));
}

std::vector<EntryBox*> FieldBoxes::part(std::size_t first, std::size_t count) const
{
    const auto from = m_boxes.begin() + static_cast<std::ptrdiff_t>(first);
    return {from, from + static_cast<std::ptrdiff_t>(count)};
}

void FieldBoxes::clear(std::size_t first, std::size_t count)
{
    const std::vector<EntryBox*> boxes = part(first, count);
    std::vector<QString> texts;
    texts.reserve(boxes.size());
    for (const EntryBox* box : boxes)
        texts.push_back(box->text());
    for (EntryBox* box : boxes)
        box->clear();
    if (std::ranges::all_of(texts, &QString::isEmpty)) return;
    const auto undo = [boxes, texts] {
        if (!std::ranges::all_of(boxes, [](const EntryBox* box) { return box->text().isEmpty(); }))
            return false;
        for (std::size_t i = 0; i < boxes.size(); ++i)
            boxes[i]->setText(texts[i]);
        return true;
    };
    for (EntryBox* box : boxes)
        box->onUndo = undo;
}

std::string FieldBoxes::unitOnPaper(std::size_t field) const
{
    // What stands behind a box may tell how to write in it; behind a figure of a paper it would be
    // taken for its unit.
    const std::string unit = m_table[field].unit;
    if (m_table[field].kind == FieldKind::Moment && unit.find_first_of("/:") != unit.npos)
        return {};
    const std::size_t sign = unit.find(", ");
    return sign == unit.npos ? unit : unit.substr(0, sign) + " (" + unit.substr(sign + 2) + ')';
}

PaperFigure FieldBoxes::paperFigure(std::size_t field) const
{
    const Field& declared = m_table[field];
    const std::string typed = m_boxes.at(field)->value();
    PaperFigure figure{declared.words, typed, unitOnPaper(field)};
    switch (declared.kind) {
    case FieldKind::Latitude:
        figure.value = positionEcho(typed, Axis::Latitude).text;
        figure.unit.clear();
        break;
    case FieldKind::Longitude:
        figure.value = positionEcho(typed, Axis::Longitude).text;
        figure.unit.clear();
        break;
    case FieldKind::Figure:
    case FieldKind::Angle:
        if (const auto number = readLeadingNumber(typed)) figure.value = memoText(*number);
        break;
    case FieldKind::Moment:
        figure.value = momentInFull(typed);
        break;
    default:
        break;
    }
    if (typed.empty())
        figure.value = "nothing entered";
    else if (figure.value.empty())
        figure.value = "not understood";
    if (typed.empty() || figure.value == "not understood") figure.unit.clear();
    if (figure.value != typed) figure.shown = typed;
    return figure;
}

void FieldBoxes::addRow(QGridLayout* grid, int row, std::size_t field) const
{
    EntryBox* box = m_boxes.at(field);
    auto* caption = new QLabel(m_table[field].caption);
    caption->setBuddy(box);
    grid->addWidget(caption, row, 0);
    grid->addWidget(box, row, 1, Qt::AlignLeft);
    if (auto* position = dynamic_cast<PositionBox*>(box))
        grid->addWidget(position->echo(), row, 2);
    else
        grid->addWidget(new QLabel(m_table[field].unit), row, 2, 1, -1);
}

} // namespace korvel
