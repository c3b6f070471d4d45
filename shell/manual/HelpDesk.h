// SPDX-License-Identifier: MIT
#pragma once

#include "shell/manual/Manual.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QAction;
class QMenuBar;
class QWidget;

namespace korvel
{

class HelpWindow;

/// What is asked about: the pages where it may stand, the likeliest first, and its name there.
struct HelpTopic {
    QStringList pages;
    QString name;
};

/// Opens the manual in front of whatever asks for it: F1 in every window, question, alarm and menu.
class HelpDesk : public QObject
{
public:
    /// @param files must outlive this object
    explicit HelpDesk(FileStore& files);
    ~HelpDesk() override;

    Manual& manual() { return m_manual; }

    /// Gives the program's keys to a window of the manual that no question stands behind.
    std::function<void(QWidget&)> dress = [](QWidget&) {};

    /// The topic of a control that has the focus, and of an entry of a menu.
    static HelpTopic topicOf(const QWidget& control);
    static HelpTopic topicOf(const QAction& entry, const QWidget& window);

    void open(const HelpTopic& topic);
    void openPage(const QString& page) { open({{page}, {}}); }
    /// Opens a page below a window, which moves up for it where it must: the page is there to be
    /// read beside it.
    void openBelow(QWidget& window, const QString& page);
    /// The page of the window in hand, at the control that has the focus.
    void openAtFocus();

    /// Adds the menu with the manual, its contents and what this program is.
    void addMenu(QMenuBar& bar);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    Manual m_manual;
    QPointer<HelpWindow> m_window;
};

} // namespace korvel
