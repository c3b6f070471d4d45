// SPDX-License-Identifier: MIT
#include "forms/frmSky/pages/AlmanacPage.h"

#include "almanac/page_text.h"
#include "shell/layout/WrappingRow.h"
#include "shell/machine/AsQString.h"
#include "shell/screen/ZoomSizes.h"

#include <QApplication>
#include <QFontDatabase>
#include <QVBoxLayout>

namespace korvel
{

/// Columns of figures in letters of one width, as large as those around them.
class AlmanacPage::Sheet final : public QPlainTextEdit, public SizedByLetters
{
public:
    explicit Sheet(QWidget* parent) : QPlainTextEdit(parent) { sizeByLetters(); }

    void sizeByLetters() override
    {
        QFont letters = QFontDatabase::systemFont(QFontDatabase::FixedFont);
        letters.setPointSizeF(QApplication::font().pointSizeF());
        setFont(letters);
    }
};

AlmanacPage::AlmanacPage(QWidget* parent, const FieldBoxes& boxes)
    : ScrolledBody(parent), m_text(new Sheet(this)),
      m_cmdPrint(makeButton(this, "cmdPrintAlmanac", "&Print..",
                            "Shows the two sheets of the three days and prints them")),
      m_cmdSave(makeButton(this, "cmdSaveAlmanac", "Save as P&DF..", "The two sheets as a file"))
{
    EntryBox* day = boxes[placeOf(SkyBox::FirstDay)];
    day->setFixedWidth(day->fontMetrics().horizontalAdvance("0000/00/00 00:00"));
    day->setPlaceholderText("the day");
    auto* row = new WrappingRow;
    row->addWidget(quietLabel(SkyFields[placeOf(SkyBox::FirstDay)].caption, day));
    row->stayClose();
    row->addWidget(day);
    row->addWidget(m_cmdPrint);
    row->addWidget(m_cmdSave);
    row->addStretch();
    m_text->setObjectName("txtAlmanac");
    m_text->setAccessibleName("Three days of the almanac");
    m_text->setReadOnly(true);
    m_text->setTabChangesFocus(true);
    m_text->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_text->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    m_text->setLineWrapMode(QPlainTextEdit::NoWrap);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(pageGroupGap);
    column->addLayout(row);
    column->addWidget(m_text, 1);
    connect(m_cmdPrint, &QPushButton::clicked, this, &AlmanacPage::printAsked);
    connect(m_cmdSave, &QPushButton::clicked, this, &AlmanacPage::saveAsked);
    show(nullptr);
}

void AlmanacPage::show(const almanac::DailyPage* page)
{
    m_text->setPlainText(page ? asQString(almanac::pageText(*page)) : QString());
    m_cmdPrint->setEnabled(page);
    m_cmdSave->setEnabled(page);
}

void AlmanacPage::setColours(const ColourScheme& colours)
{
    tintQuietLabels(*this, colours);
}

} // namespace korvel
