// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/NumberField.h"
#include "shell/controls/ResultLabel.h"
#include "shell/layout/FocusFollower.h"

#include <map>
#include <set>

namespace korvel
{

class EntryBox;

/// The line at the foot of a window that says what is wrong with the figures above it, quiet when
/// empty. Sign and colour are those of the gravest thing that it says, which stands first. It keeps
/// its two lines of room whatever it says, so that a notice never moves the boxes under the
/// officer's hand; what does not fit is in the tool tip. While there is nothing to say the room
/// tells what the box with the focus takes.
class NoticeLine : public ResultLabel
{
public:
    NoticeLine();

    /// Says something under a key of the caller's; an empty text takes it back. What stands there
    /// is in the order of the levels, then of the keys.
    void say(const QString& key, const QString& text, NoticeLevel level = NoticeLevel::Remark);

    /// Says that only the beginning of a box was read, and which key writes what was meant; nothing
    /// takes it back. Where a calculation says it too it stands there once.
    void sayHalfRead(const EntryBox& box, const std::optional<NumberReading>& reading);

    /// The notice that stands first; empty when there is none.
    const QString& firstSaid() const { return m_first; }

    /// The gravest level of what is said; nothing while that is a hint.
    std::optional<NoticeLevel> level() const { return m_level; }

    /// What is to be said of the figures, a sentence or more for every key. A key with a '~' is of
    /// the work on the screen: no remark on the figures, so that it is on no paper.
    const QStringList& onPaper() const { return m_lasting; }

    /// Tells of a control of the window, as of the one that comes to have the focus.
    void hintAt(const QWidget* control);

    /// What the box with the focus takes, as it stands here while there is nothing to say.
    const QString& hint() const { return m_hint; }
    struct Colours {
        QColor hint, done, remark, fault;
    };
    void setColours(const Colours& colours);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    struct Said {
        QString text;
        NoticeLevel level = NoticeLevel::Remark;
        QString essence = {}; ///< not said again where another notice says it
        bool hasKey = false;  ///< the key that writes what was meant does something

        bool operator==(const Said&) const = default;
    };

    void put(const QString& key, const Said& said);
    void join();
    QColor colour() const;
    QRect roomOfText() const;

    QString m_hint;
    Colours m_colours;
    std::map<QString, Said> m_said;
    std::set<const EntryBox*> m_halfReadBoxes; ///< of which something is said
    std::optional<NoticeLevel> m_level;
    QString m_first;
    QStringList m_lasting;
    QString m_key;   ///< what it is said to do
    QString m_shown; ///< the text on the screen, the key behind what it writes
    FocusFollower m_focus;
};

} // namespace korvel
