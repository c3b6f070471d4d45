// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTIDE/sheet/TideDayPanel.h"
#include "forms/frmTIDE/sheet/TideFoot.h"
#include "forms/frmTIDE/sheet/TideHead.h"
#include "forms/frmTIDE/sheet/frmTIDEPicture.h"
#include "shell/layout/FollowingScrollArea.h"

#include <cstdint>
#include <functional>

namespace korvel
{

/// Everything that the tide window shows, from place and date down to the factors file in use.
class TideSheet : public ScrolledBody
{
public:
    explicit TideSheet(QWidget* parent);

    /// The date bar moved to a day.
    std::function<void(std::int64_t serial)> onDay;
    /// Something for the notice line, under a key.
    std::function<void(const QString& key, const std::string& notice)> onNotice;

    void showChoice(const TideChoice& choice, const TideDates& dates);
    /// @param withAll whether all constituents are shown beside the four
    void showDay(const TideDayShown& day, const StationLines& lines, bool withAll);
    /// @param hour of the day that is shown; nothing while the present is on another day
    void showNow(const std::string& text, std::optional<NavFunc113::Hours> hour)
    {
        m_day->showNow(text, hour);
    }
    /// The factors file is another one: so are the dates.
    void showDates(const TideDates& dates, const std::string& factorsFile);

    TideHead& head() { return *m_head; }
    frmTIDEPicture& picture() { return *m_picTIDE; }
    const TideDayPanel& dayPanel() const { return *m_day; }
    TideFoot& foot() { return *m_foot; }
    /// The date bar, which has the focus first.
    QWidget& dateBar() { return *m_scrDate; }

private:
    void layOut();
    void mark(const CurveAnswer& height, const CurveAnswer& times);

    TideHead* m_head;
    frmTIDEPicture* m_picTIDE;
    DateScrollBar* m_scrDate;
    TideDayPanel* m_day;
    TideFoot* m_foot;
};

} // namespace korvel
