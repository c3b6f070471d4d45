// SPDX-License-Identifier: MIT
#include "shell/controls/ResultLabel.h"

#include "app/reading/PackedText.h"
#include "shell/layout/TypeScale.h"
#include "shell/layout/WrappedText.h"
#include "shell/machine/AsQString.h"
#include "shell/screen/ColourScheme.h"

#include <QAccessibleWidget>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMenu>
#include <QToolTip>

#include <array>
#include <cmath>
#include <utility>

namespace korvel
{
namespace
{

/// The toolkit has a window lay itself out for every text of a label, and the whole label painted.
/// It does neither for a hidden one without updates, and the room of these labels does not depend
/// on their text.
class Still
{
public:
    explicit Still(QWidget& label) : m_label(label)
    {
        for (auto& [attribute, was] : m_before) {
            was = m_label.testAttribute(attribute);
            m_label.setAttribute(attribute);
        }
    }
    ~Still()
    {
        for (const auto& [attribute, was] : m_before)
            m_label.setAttribute(attribute, was);
    }
    Still(const Still&) = delete;
    Still& operator=(const Still&) = delete;

private:
    QWidget& m_label;
    std::array<std::pair<Qt::WidgetAttribute, bool>, 2> m_before{
        {{Qt::WA_WState_Hidden, false}, {Qt::WA_UpdatesDisabled, false}}};
};

/// The toolkit tells a label's text or its accessible name, never both.
class AccessibleResult : public QAccessibleWidget
{
public:
    explicit AccessibleResult(QWidget* label) : QAccessibleWidget(label, QAccessible::StaticText) {}

    QString text(QAccessible::Text kind) const override
    {
        QString figure = static_cast<QLabel*>(widget())->text();
        if (kind == QAccessible::Value) return figure;
        if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
        const QString name = widget()->accessibleName();
        return name.isEmpty() || figure.isEmpty() ? name + figure : name + ": " + figure;
    }
};

QAccessibleInterface* accessibleResult(const QString&, QObject* object)
{
    auto* label = qobject_cast<ResultLabel*>(object);
    return label ? new AccessibleResult(label) : nullptr;
}

} // namespace

void tellResultsToAssistiveTools()
{
    QAccessible::installFactory(accessibleResult);
}

void setTabOrderThrough(const std::vector<QWidget*>& controls)
{
    // The toolkit gives no place to a control that does not take the focus at the moment.
    std::vector<Qt::FocusPolicy> policies;
    for (QWidget* each : controls) {
        policies.push_back(each->focusPolicy());
        each->setFocusPolicy(Qt::TabFocus);
    }
    for (std::size_t i = 1; i < controls.size(); ++i)
        QWidget::setTabOrder(controls[i - 1], controls[i]);
    for (std::size_t i = 0; i < controls.size(); ++i)
        controls[i]->setFocusPolicy(policies[i]);
}

ResultLabel::ResultLabel(QWidget* parent) : QLabel(parent)
{
    setTextFormat(Qt::PlainText);
    setSelectable(false);
    dressAs(Weight::Figure);
}

void ResultLabel::declare(const QString& words, const QString& unit, Weight weight)
{
    m_words = words;
    m_unit = unit;
    m_weight = weight;
    // Out of its row the figure would be a bare number.
    setAccessibleName(unit.isEmpty() ? words : words + ", " + unit);
    dressAs(weight);
}

void ResultLabel::dressAs(Weight weight)
{
    setFont(lettersOf(weight));
    setForegroundRole(weight == Weight::Answer   ? accentRole
                      : weight == Weight::Remark ? quietRole
                                                 : QPalette::WindowText);
}

void ResultLabel::dressAsInHand()
{
    setFont(lettersOfRowInHand());
    setForegroundRole(accentRole);
}

QRect ResultLabel::changeText(const QString& text)
{
    const QString before = this->text();
    if (text == before) return {};
    QRect changed = contentsRect();
    if (m_isRoomByText) {
        QLabel::setText(text);
    } else {
        const bool wasWhole = isOneLine() && !isCut();
        const Still still(*this);
        QLabel::setText(text);
        if (wasWhole && isOneLine() && !isCut() && !isBeingSelected())
            changed =
                m_figures.difference(font(), changed, alignment(), before, text).toAlignedRect();
    }
    if (text.isEmpty()) emit emptied();
    if (m_isEliding) setToolTip(text);
    if (focusPolicy() == Qt::NoFocus || focusPolicy() == Qt::TabFocus) stopTabHere();
    if (!QAccessible::isActive() || accessibleName().isEmpty())
        return changed; // the label tells it itself
    QAccessibleEvent told(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&told);
    return changed;
}

/// The toolkit keeps a text document behind a label that can be selected or take the focus. It is
/// most of the time from a key to the painted labels, so it is there only while somebody selects.
void ResultLabel::setSelectable(bool selectable)
{
    setTextInteractionFlags(selectable ? Qt::TextSelectableByMouse | Qt::TextSelectableByKeyboard
                                       : Qt::NoTextInteraction);
    // The flags have brought a focus policy of their own.
    if (selectable)
        setFocusPolicy(Qt::StrongFocus);
    else
        stopTabHere();
}

void ResultLabel::stopTabHere()
{
    setFocusPolicy(m_isTabStop && !text().isEmpty() ? Qt::TabFocus : Qt::NoFocus);
}

void ResultLabel::passByTab()
{
    m_isTabStop = false;
    stopTabHere();
}

void ResultLabel::setEliding()
{
    m_isEliding = true;
    setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void ResultLabel::setRoom(const QString& widest, int lines)
{
    m_widest = widest;
    m_lines = lines;
    setWordWrap(lines > 1);
    updateGeometry();
}

QSize ResultLabel::sizeHint() const
{
    if (m_isRoomByText) return QLabel::sizeHint();
    // Results that are shown in italics for a while keep their room.
    QFont upright = font();
    upright.setItalic(false);
    const QFontMetrics metrics(upright);
    // What the toolkit gives a text can be more than a line of the font.
    const int line = std::max(metrics.lineSpacing(), metrics.size(0, "0").height());
    // Figures are drawn side by side, each as broad as it is; the toolkit reckons in whole pixels.
    const int drawn = static_cast<int>(std::ceil(m_figures.width(upright, m_widest)));
    return {std::max(metrics.horizontalAdvance(m_widest), drawn), m_lines * line};
}

QSize ResultLabel::minimumSizeHint() const
{
    return m_isRoomByText ? QLabel::minimumSizeHint() : sizeHint();
}

bool ResultLabel::isOneLine() const
{
    return !wordWrap() && !text().contains('\n');
}

bool ResultLabel::isCut() const
{
    constexpr int hair = 1; // of a layout that shares pixels out
    if (isOneLine()) return m_figures.width(font(), text()) > width() + hair;
    return !shownLines(text(), font(), size()).isWhole;
}

bool ResultLabel::event(QEvent* event)
{
    if (event->type() != QEvent::ToolTip) return QLabel::event(event);
    QString full = hasOwnTip() ? toolTip() : asQString(inFullForm(text().toStdString()));
    if (full == text() && !isCut()) return QLabel::event(event);
    if (hasOwnTip() && isCut()) full = text() + "\n" + full;
    QToolTip::showText(static_cast<QHelpEvent*>(event)->globalPos(), full.trimmed(), this);
    return true;
}

void ResultLabel::paintEvent(QPaintEvent* event)
{
    if (isBeingSelected() || textFormat() != Qt::PlainText) {
        QLabel::paintEvent(event);
        return;
    }
    QPainter painter(this);
    painter.setPen(palette().color(foregroundRole()));
    if (!isOneLine()) {
        painter.drawText(contentsRect(), static_cast<int>(alignment()),
                         shownLines(text(), font(), size()).lines.join('\n'));
        return;
    }
    const QString shown =
        isCut() ? fontMetrics().elidedText(text(), Qt::ElideRight, width()) : text();
    m_figures.draw(painter, contentsRect(), alignment(), shown, event->rect());
}

void ResultLabel::mousePressEvent(QMouseEvent* event)
{
    setSelectable(true);
    setFocus(Qt::MouseFocusReason);
    QLabel::mousePressEvent(event);
}

void ResultLabel::focusInEvent(QFocusEvent* event)
{
    QLabel::focusInEvent(event);
    if (event->reason() != Qt::TabFocusReason && event->reason() != Qt::BacktabFocusReason) return;
    // Selected from end to end, as a box is: where the focus is can be seen.
    setSelectable(true);
    setSelection(0, static_cast<int>(text().size()));
}

void ResultLabel::focusOutEvent(QFocusEvent* event)
{
    QLabel::focusOutEvent(event);
    // Its own context menu and a look into another program leave the selection alone.
    if (event->reason() != Qt::PopupFocusReason && event->reason() != Qt::ActiveWindowFocusReason)
        setSelectable(false);
}

void ResultLabel::keyPressEvent(QKeyEvent* event)
{
    if (event->matches(QKeySequence::Copy))
        copy();
    else
        QLabel::keyPressEvent(event);
}

void ResultLabel::contextMenuEvent(QContextMenuEvent* event)
{
    // Its own: the window may be closed under the open menu.
    auto* menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    if (hasSelectedText() && selectedText() != text())
        menu->addAction("&Copy what is selected", [selected = selectedText()] {
            QApplication::clipboard()->setText(selected);
        });
    addCopies(*menu, toCopy(), *this);
    menu->popup(event->globalPos());
}

/// What another program reads.
QString ResultLabel::plainText() const
{
    const QString own = copyText ? copyText() : QString();
    return own.isEmpty() ? plainFigure(text()) : own;
}

FigureToCopy ResultLabel::toCopy() const
{
    const QString words = wordsInFull ? wordsInFull() : m_words;
    return {text(), plainText(), figureInFull(words, text(), m_unit)};
}

void ResultLabel::copy()
{
    const bool part = hasSelectedText() && selectedText() != text();
    const QString copied = part ? selectedText() : plainText();
    if (!copied.isEmpty()) QApplication::clipboard()->setText(copied);
}

} // namespace korvel
