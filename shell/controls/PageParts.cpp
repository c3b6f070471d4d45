// SPDX-License-Identifier: MIT
#include "shell/controls/PageParts.h"

#include "shell/layout/FollowingScrollArea.h"
#include "shell/layout/PageBar.h"
#include "shell/screen/WidgetColours.h"

#include <QGridLayout>

namespace korvel
{
namespace
{

constexpr const char* quiet = "quiet"; // property of a label

} // namespace

QGridLayout* newGrid()
{
    auto* grid = new QGridLayout;
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setHorizontalSpacing(pageGap / 3);
    grid->setVerticalSpacing(pageRowGap);
    return grid;
}

FollowingScrollArea* addScrolledPage(QWidget& body, PageBar& bar, QWidget* content,
                                     const QString& caption, const QString& name,
                                     const QString& words)
{
    auto* area = new FollowingScrollArea(content);
    area->foldColumns();
    body.layout()->addWidget(area);
    bar.addPage(caption, name, words, area);
    return area;
}

QComboBox* makeList(QWidget* parent, const char* name, const char* words,
                    const QStringList& choices)
{
    auto* list = new QComboBox(parent);
    list->setObjectName(name);
    list->setAccessibleName(words);
    list->addItems(choices);
    return list;
}

PageRecord::Choice choiceOf(QComboBox* list)
{
    return {[list] { return list->currentIndex(); },
            [list](int choice) {
                if (choice >= 0 && choice < list->count()) list->setCurrentIndex(choice);
            }};
}

PageRecord::Choice choiceOf(Options* options)
{
    return {[options] { return options->chosen(); },
            [options](int choice) { options->choose(choice); }};
}

QPushButton* makeButton(QWidget* parent, const char* name, const QString& caption,
                        const QString& tip)
{
    auto* button = new QPushButton(caption, parent);
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    return button;
}

QLabel* quietLabel(const QString& text, QWidget* buddy)
{
    auto* label = new QLabel(text);
    label->setProperty(quiet, true);
    label->setBuddy(buddy);
    return label;
}

void tintQuietLabels(QWidget& page, const ColourScheme& colours)
{
    for (QLabel* label : page.findChildren<QLabel*>())
        if (label->property(quiet).toBool()) setTextColour(label, colours.echo);
}

void addResultLine(QGridLayout* grid, int row, const QString& caption, ResultLabel* label)
{
    grid->addWidget(quietLabel(caption), row, 0);
    grid->addWidget(label, row, 1);
}

} // namespace korvel
