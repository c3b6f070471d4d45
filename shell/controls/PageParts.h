// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/FieldBoxes.h"
#include "shell/controls/Options.h"
#include "shell/screen/ColourScheme.h"

#include <QComboBox>
#include <QPushButton>

#include <functional>
#include <string>
#include <vector>

class QGridLayout;

/// What the pages of a window with several are made of.
namespace korvel
{

class FollowingScrollArea;
class PageBar;

/// Pixels between the columns of a page, between its groups, between rows.
inline constexpr int pageGap = 24;
inline constexpr int pageGroupGap = 16;
inline constexpr int pageRowGap = 4;

/// A grid of captions and boxes or figures, without margins of its own.
QGridLayout* newGrid();

/// Adds a page that scrolls to a window's body and to its bar.
/// @param name, words see PageBar::addPage
/// @return the area that scrolls it
FollowingScrollArea* addScrolledPage(QWidget& body, PageBar& bar, QWidget* content,
                                     const QString& caption, const QString& name,
                                     const QString& words);

/// What a page has the record keep, in its order.
struct PageRecord {
    /// A choice of one among some, by its number.
    struct Choice {
        std::function<int()> get;
        std::function<void(int)> set; ///< a number that is none changes nothing
    };
    std::vector<EntryBox*> boxes;
    std::vector<Choice> choices;
};

QComboBox* makeList(QWidget* parent, const char* name, const char* words,
                    const QStringList& choices);
PageRecord::Choice choiceOf(QComboBox* list);
PageRecord::Choice choiceOf(Options* options);

QPushButton* makeButton(QWidget* parent, const char* name, const QString& caption,
                        const QString& tip);

/// A caption in quiet letters; tintQuietLabels() tints it.
QLabel* quietLabel(const QString& text, QWidget* buddy = nullptr);
/// Gives all quiet labels of a page their colour.
void tintQuietLabels(QWidget& page, const ColourScheme& colours);

/// A row of a grid: caption, result.
void addResultLine(QGridLayout* grid, int row, const QString& caption, ResultLabel* label);

} // namespace korvel
