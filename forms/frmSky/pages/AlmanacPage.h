// SPDX-License-Identifier: MIT
#pragma once

#include "almanac/daily_page.h"
#include "forms/frmSky/SkyFields.h"
#include "shell/controls/FieldBoxes.h"
#include "shell/controls/PageParts.h"
#include "shell/layout/FollowingScrollArea.h"

#include <QPlainTextEdit>

namespace korvel
{

/// Three days as almanacs have them, to be read, printed and saved.
class AlmanacPage : public ScrolledBody
{
    Q_OBJECT

public:
    AlmanacPage(QWidget* parent, const FieldBoxes& boxes);

    /// @param page nullptr: there is none
    void show(const almanac::DailyPage* page);
    void setColours(const ColourScheme& colours);

signals:
    void printAsked();
    void saveAsked();

private:
    class Sheet;

    QPlainTextEdit* m_text;
    QPushButton* m_cmdPrint;
    QPushButton* m_cmdSave;
};

} // namespace korvel
