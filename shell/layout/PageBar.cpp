// SPDX-License-Identifier: MIT
#include "shell/layout/PageBar.h"

#include <QButtonGroup>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QPushButton>
#include <QStyle>
#include <QStyleOptionFocusRect>

namespace korvel
{
namespace
{

constexpr int strokeWidth = 3; // under the name of the page that is shown

/// The name of a page over a line: a stroke under that of the page that is shown.
class PageName : public QPushButton
{
public:
    explicit PageName(const QString& caption) : QPushButton(caption)
    {
        setCheckable(true);
        setAutoDefault(false);
        setFlat(true);
    }

    QSize sizeHint() const override
    {
        const QFontMetrics metrics(boldLetters());
        const int line = metrics.height();
        return {metrics.size(Qt::TextShowMnemonic, text()).width() + 2 * line, 2 * line};
    }
    QSize minimumSizeHint() const override { return sizeHint(); }

protected:
    void paintEvent(QPaintEvent*) override
    {
        QPainter painter(this);
        painter.setFont(isChecked() ? boldLetters() : font());
        painter.setPen(palette().color(QPalette::WindowText));
        painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
        const int stroke = isChecked() ? strokeWidth : 1;
        painter.fillRect(0, height() - stroke, width(), stroke,
                         palette().color(isChecked() ? QPalette::Highlight : QPalette::Dark));
        if (!hasFocus()) return;
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }

private:
    QFont boldLetters() const
    {
        QFont bold = font();
        bold.setBold(true);
        return bold;
    }
};

/// Where to begin in a page: its first box, or else its first control in the order of Tab.
QWidget* firstStop(QWidget& page)
{
    QWidget* first = nullptr;
    for (QWidget* each = page.nextInFocusChain(); each && each != &page;
         each = each->nextInFocusChain()) {
        const bool isStop = page.isAncestorOf(each) && (each->focusPolicy() & Qt::TabFocus) &&
                            each->isVisibleTo(&page) && each->isEnabled();
        if (!isStop) continue;
        if (qobject_cast<QLineEdit*>(each)) return each;
        if (!first || qobject_cast<QLabel*>(first)) first = each; // a figure: only to be read
    }
    return first;
}

} // namespace

PageBar::PageBar() : m_row(new QHBoxLayout(this)), m_buttons(new QButtonGroup(this))
{
    m_row->setContentsMargins(0, 0, 0, 0);
    m_row->setSpacing(0);
    m_row->addStretch();
    connect(m_buttons, &QButtonGroup::idToggled, this, [this](int page, bool shown) {
        if (shown) turnTo(static_cast<std::size_t>(page));
    });
    // By mouse, Space or its letter; the arrow keys give the focus back to the bar.
    connect(m_buttons, &QButtonGroup::idClicked, this, &PageBar::enterPage);
}

void PageBar::addPage(const QString& caption, const QString& name, const QString& words,
                      QWidget* page)
{
    auto* button = new PageName(caption);
    button->setObjectName(name);
    button->setAccessibleName(words);
    const bool isFirst = m_pages.empty();
    button->setFocusPolicy(isFirst ? Qt::StrongFocus : Qt::ClickFocus);
    m_row->insertWidget(static_cast<int>(m_pages.size()), button);
    m_buttons->addButton(button, static_cast<int>(m_pages.size()));
    m_pages.push_back(page);
    page->setVisible(isFirst);
    if (isFirst) button->setChecked(true);
}

void PageBar::turnTo(std::size_t page)
{
    if (page >= m_pages.size() || page == m_page) return;
    m_page = page;
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        m_pages[i]->setVisible(i == page);
        QAbstractButton* button = m_buttons->button(static_cast<int>(i));
        button->setFocusPolicy(i == page ? Qt::StrongFocus : Qt::ClickFocus);
        if (i == page) button->setChecked(true);
    }
    emit turned(page);
}

bool PageBar::isTurnedAway(const QWidget& control) const
{
    for (std::size_t i = 0; i < m_pages.size(); ++i)
        if (i != m_page && m_pages[i]->isAncestorOf(&control)) return true;
    return false;
}

void PageBar::enterPage()
{
    QWidget& page = *m_pages.at(m_page);
    QWidget* stop = page.focusWidget() ? page.focusWidget() : firstStop(page);
    if (stop) stop->setFocus(Qt::TabFocusReason);
}

} // namespace korvel
