// SPDX-License-Identifier: MIT
#include "shell/controls/RowTable.h"

#include "shell/controls/FieldBoxes.h"
#include "shell/layout/Panels.h"
#include "shell/layout/WrappingRow.h"
#include "shell/screen/ColourScheme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QVBoxLayout>

#include <algorithm>

namespace korvel
{
namespace
{

using Label = TableColumn::Label;

bool isBox(const TableColumn& column)
{
    return std::holds_alternative<FieldKind>(column.holds);
}

bool holds(const TableColumn& column, std::variant<FieldKind, Label> what)
{
    return column.holds == what;
}

bool isResult(const TableColumn& column)
{
    return holds(column, Label::Result) || holds(column, Label::Correction);
}

/// Figures keep to the right, typed ones too: places of the same worth stand below each other.
Qt::Alignment sideOf(const TableColumn& column)
{
    const auto* kind = std::get_if<FieldKind>(&column.holds);
    const bool isTypedFigure = kind && *kind != FieldKind::Text && *kind != FieldKind::Moment;
    return isTypedFigure ? Qt::Alignment(Qt::AlignRight) : column.side;
}

EntryBox* boxOf(FieldKind kind, QWidget* parent)
{
    if (kind == FieldKind::Latitude) return new PositionBox(Axis::Latitude, parent);
    if (kind == FieldKind::Longitude) return new PositionBox(Axis::Longitude, parent);
    return new EntryBox(parent);
}

/// Letters of a correction: smaller than captions, so that nobody takes it for the result.
QFont small(QFont letters)
{
    letters.setPointSizeF(letters.pointSizeF() * 0.85);
    return letters;
}

} // namespace

/// The ground of a row: tinted while the row is in hand, a hairline below it while it holds
/// anything; empty rows are no fence.
class RowTable::Ground final : public QWidget
{
public:
    void setInHand(bool inHand)
    {
        m_isInHand = inHand;
        update();
    }
    void setFilled(bool filled)
    {
        if (filled == m_isFilled) return;
        m_isFilled = filled;
        update();
    }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        if (m_isInHand) painter.fillRect(rect(), palette().alternateBase());
        if (m_isFilled || m_isInHand)
            painter.fillRect(0, height() - 1, width(), 1, palette().color(hairRole));
    }

private:
    bool m_isInHand = false;
    bool m_isFilled = false;
};

RowTable::RowTable(std::span<const TableColumn> columns, std::size_t rows)
    : m_columns(columns), m_focus([this](QWidget* now) {
          if (const auto row = rowOf(now)) setInHand(*row);
      })
{
    auto* lines = new QVBoxLayout(this);
    lines->setContentsMargins(0, 0, 0, 0);
    lines->setSpacing(0);
    for (std::size_t row = 0; row < rows; ++row) {
        Line line;
        for (const TableColumn& column : m_columns)
            line.push_back(makeControl(column, row, line));
        // A widget a row: what is painted anew is looked up among the neighbours in the same
        // widget.
        auto* widget = new Ground;
        layOut(line, *widget);
        lines->addWidget(widget);
        m_lines.push_back(std::move(line));
        for (const EntryBox* box : boxesOfRow(row))
            connect(box, &QLineEdit::textChanged, this, [this, row] { showWhetherFilled(row); });
    }
    lines->addStretch();
    setEntryOrder(boxes());
    sizeByLetters();
    if (!std::ranges::any_of(m_columns, isBox)) return;
    for (std::size_t row = 1; row < rows; ++row)
        dress(row, false);
    dress(0, true);
}

void RowTable::setInHand(std::size_t row)
{
    if (row == m_inHand) return;
    dress(m_inHand, false);
    dress(row, true);
    m_inHand = row;
}

RowTable::Ground* RowTable::ground(std::size_t row) const
{
    return static_cast<Ground*>(number(row)->parentWidget());
}

/// Returns what of the table is to be painted.
QRect RowTable::changeText(std::size_t row, std::size_t column, const QString& text)
{
    ResultLabel* label = result(row, column);
    const QRect changed = label->changeText(text);
    return changed.isEmpty() ? QRect()
                             : QRect(label->mapTo(this, changed.topLeft()), changed.size());
}

void RowTable::showWhetherFilled(std::size_t row)
{
    const auto hasText = [](const auto* control) { return !control->text().isEmpty(); };
    ground(row)->setFilled(std::ranges::any_of(boxesOfRow(row), hasText) ||
                           std::ranges::any_of(resultsOfRow(row), hasText));
}

/// Boxes have their frames and answers stand out in the row in hand alone.
void RowTable::dress(std::size_t row, bool inHand)
{
    ground(row)->setInHand(inHand);
    QFont ofNumber = font();
    ofNumber.setBold(inHand);
    number(row)->setFont(ofNumber);
    QPalette bare;
    if (!inHand) bare.setColor(QPalette::Base, Qt::transparent);
    for (EntryBox* box : boxesOfRow(row)) {
        box->setFrame(inHand);
        box->setPalette(bare);
    }
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        if (m_columns[i].weight != Weight::Answer) continue;
        if (inHand)
            result(row, i)->dressAsInHand();
        else
            result(row, i)->dressAs(Weight::Figure);
    }
}

QWidget* RowTable::makeControl(const TableColumn& column, std::size_t row, const Line& before)
{
    if (holds(column, Label::Echo)) return static_cast<PositionBox*>(before.back())->echo();
    QWidget* made = nullptr;
    if (const auto* kind = std::get_if<FieldKind>(&column.holds))
        made = boxOf(*kind, this);
    else if (holds(column, Label::RowNumber))
        made = new QLabel(QString::number(row + 1), this);
    else
        made = new ResultLabel(this);
    made->setObjectName(memberName(column.name, static_cast<int>(row)));
    const auto ofRow = [row](const char* text) {
        return QString(text).replace("%1", QString::number(row + 1));
    };
    const QString words = ofRow(column.words), measure = ofRow(column.measure);
    if (isResult(column)) {
        auto* label = static_cast<ResultLabel*>(made);
        label->declare(words, measure, column.weight);
        label->dressAs(Weight::Figure); // also an answer: it is one in the row in hand
        connect(label, &ResultLabel::emptied, this, [this, row] { showWhetherFilled(row); });
        if (holds(column, Label::Correction)) label->setFont(small(font()));
    } else if (isBox(column))
        static_cast<EntryBox*>(made)->declare(words, measure);
    else
        made->setAccessibleName(words);
    if (isBox(column) || isResult(column)) made->installEventFilter(this);
    if (isBox(column)) {
        static_cast<EntryBox*>(made)->recordKind = std::get<FieldKind>(column.holds);
        static_cast<EntryBox*>(made)->setAlignment(sideOf(column) | Qt::AlignVCenter);
    }
    if (holds(column, FieldKind::Figure)) static_cast<EntryBox*>(made)->setReading({.name = {}});
    if (holds(column, FieldKind::Text))
        static_cast<EntryBox*>(made)->setMaxLength(EntryBox::longestText);
    if (column.limits)
        static_cast<EntryBox*>(made)->setLimits(
            limitsInWords(column.limits->low, column.limits->high));
    auto* position = dynamic_cast<PositionBox*>(made);
    if (position) position->setBriefEcho();
    if (holds(column, FieldKind::Longitude))
        for (QWidget* each : before)
            if (auto* latitude = dynamic_cast<PositionBox*>(each))
                PositionBox::pair(latitude, position);
    if (auto* label = qobject_cast<QLabel*>(made))
        label->setAlignment(column.side | Qt::AlignVCenter);
    return made;
}

void RowTable::nameRowsBy(std::size_t column)
{
    static const QRegularExpression number(" (of|at) \\w+ %1$");
    for (std::size_t i = 0; i < m_columns.size(); ++i) {
        if (!isResult(m_columns[i])) continue;
        const QString words =
            QString(m_columns[i].words).remove("Row %1, ").section(',', 0, 0).remove(number);
        for (std::size_t row = 0; row < rows(); ++row)
            result(row, i)->wordsInFull = [name = result(row, column), words,
                                           isName = i == column] {
                return isName ? QString() : name->text() + ", " + words;
            };
    }
}

int RowTable::widthOf(const TableColumn& column) const
{
    const QFontMetrics captions = fontMetrics();
    const int heading = captions.size(0, column.heading).width();
    if (isResult(column)) {
        ResultLabel sample;
        if (column.weight == Weight::Answer) sample.dressAsInHand();
        if (holds(column, Label::Correction)) sample.setFont(small(font()));
        sample.setRoom(column.widest);
        return std::max(heading, sample.sizeHint().width());
    }
    return std::max(heading, captions.horizontalAdvance(column.widest) +
                                 (isBox(column) ? captions.horizontalAdvance('0') : 0));
}

void RowTable::layOut(const Line& line, QWidget& widget) const
{
    auto* layout = new WrappingRow(&widget);
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (i == 0 || m_columns[i].startsGroup) layout->startGroup();
        // A correction stands close by its result.
        if (holds(m_columns[i], Label::Correction)) layout->stayClose();
        layout->addWidget(line[i]);
    }
}

void RowTable::giveWidths(const Line& line, QWidget& widget) const
{
    static_cast<WrappingRow*>(widget.layout())->setGap(fontMetrics().averageCharWidth());
    for (std::size_t i = 0; i < line.size(); ++i) {
        const int width = widthOf(m_columns[i]);
        line[i]->setMinimumWidth(width);
        line[i]->setMaximumWidth(m_columns[i].stretches ? QWIDGETSIZE_MAX : width);
    }
}

void RowTable::sizeByLetters()
{
    const bool hasBoxes = std::ranges::any_of(m_columns, isBox);
    const int height =
        hasBoxes ? QLineEdit().sizeHint().height() : ResultLabel().fontMetrics().height();
    for (const Line& line : m_lines) {
        giveWidths(line, *line.front()->parentWidget());
        for (QWidget* each : line)
            each->setFixedHeight(height);
    }
}

/// Names of the columns, as wide as these.
class RowTable::Heading final : public QWidget, public SizedByLetters
{
public:
    explicit Heading(const RowTable& table) : m_table(table)
    {
        for (const TableColumn& column : table.m_columns) {
            QLabel* label = columnHead(column.heading, sideOf(column));
            label->setSizePolicy(column.stretches ? QSizePolicy::Expanding : QSizePolicy::Preferred,
                                 QSizePolicy::Preferred);
            m_line.push_back(label);
        }
        table.layOut(m_line, *this);
        sizeByLetters();
    }

    void sizeByLetters() override { m_table.giveWidths(m_line, *this); }

private:
    const RowTable& m_table;
    Line m_line;
};

QWidget* RowTable::makeHeading() const
{
    return new Heading(*this);
}

EntryBox* RowTable::box(std::size_t row, std::size_t column) const
{
    return static_cast<EntryBox*>(m_lines.at(row).at(column));
}

PositionBox* RowTable::position(std::size_t row, std::size_t column) const
{
    return static_cast<PositionBox*>(m_lines.at(row).at(column));
}

ResultLabel* RowTable::result(std::size_t row, std::size_t column) const
{
    return static_cast<ResultLabel*>(m_lines.at(row).at(column));
}

QLabel* RowTable::number(std::size_t row) const
{
    return static_cast<QLabel*>(m_lines.at(row).front());
}

void RowTable::setRowSeen(std::size_t row, bool isSeen)
{
    ground(row)->setVisible(isSeen);
}

std::vector<EntryBox*> RowTable::boxesOfRow(std::size_t row) const
{
    std::vector<EntryBox*> all;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (isBox(m_columns[i])) all.push_back(box(row, i));
    return all;
}

std::vector<EntryBox*> RowTable::boxes() const
{
    std::vector<EntryBox*> all;
    for (std::size_t row = 0; row < rows(); ++row)
        std::ranges::copy(boxesOfRow(row), std::back_inserter(all));
    return all;
}

std::vector<ResultLabel*> RowTable::resultsOfRow(std::size_t row) const
{
    std::vector<ResultLabel*> all;
    for (std::size_t i = 0; i < m_columns.size(); ++i)
        if (isResult(m_columns[i])) all.push_back(result(row, i));
    return all;
}

std::vector<ResultLabel*> RowTable::results() const
{
    std::vector<ResultLabel*> all;
    for (std::size_t row = 0; row < rows(); ++row)
        std::ranges::copy(resultsOfRow(row), std::back_inserter(all));
    return all;
}

std::optional<std::size_t> RowTable::rowOf(const QWidget* control) const
{
    for (std::size_t row = 0; control && row < rows(); ++row)
        if (std::ranges::find(m_lines[row], control) != m_lines[row].end()) return row;
    return std::nullopt;
}

/// The row that a key leads to; nothing for a key that is none of the table's.
std::optional<std::size_t> RowTable::rowByKey(const QKeyEvent& key, std::size_t from) const
{
    const Qt::KeyboardModifiers modifiers = key.modifiers() & ~Qt::KeypadModifier;
    if (modifiers == Qt::ControlModifier && key.key() == Qt::Key_Home) return 0;
    if (modifiers == Qt::ControlModifier && key.key() == Qt::Key_End) return rows() - 1;
    if (modifiers != Qt::NoModifier) return std::nullopt;
    // What is seen of the table, one row staying in sight.
    const int height = std::max(1, m_lines.front().front()->parentWidget()->height());
    const auto seen = static_cast<std::size_t>(visibleRegion().boundingRect().height() / height);
    const std::size_t page = std::max<std::size_t>(2, seen) - 1;
    switch (key.key()) {
    case Qt::Key_Up:
        return from - std::min<std::size_t>(from, 1);
    case Qt::Key_Down:
        return std::min(from + 1, rows() - 1);
    case Qt::Key_PageUp:
        return from - std::min(from, page);
    case Qt::Key_PageDown:
        return std::min(from + page, rows() - 1);
    default:
        return std::nullopt;
    }
}

bool RowTable::eventFilter(QObject* watched, QEvent* event)
{
    auto* control = qobject_cast<QWidget*>(watched);
    const auto row = event->type() == QEvent::KeyPress ? rowOf(control) : std::nullopt;
    if (!row) return QWidget::eventFilter(watched, event);
    auto wanted = rowByKey(*static_cast<QKeyEvent*>(event), *row);
    if (!wanted) return QWidget::eventFilter(watched, event);
    while (ground(*wanted)->isHidden() && *wanted + 1 < rows() && *wanted > 0)
        *wanted = *wanted > *row ? *wanted + 1 : *wanted - 1;
    const auto column = std::ranges::find(m_lines[*row], control) - m_lines[*row].begin();
    QWidget* there = m_lines[*wanted][static_cast<std::size_t>(column)];
    // A blank result takes no focus, nor does a row that is not seen.
    if (there != control && there->focusPolicy() != Qt::NoFocus && there->isVisibleTo(this))
        there->setFocus(Qt::TabFocusReason);
    return true;
}

} // namespace korvel
