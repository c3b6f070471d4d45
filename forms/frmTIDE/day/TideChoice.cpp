// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/day/TideChoice.h"

#include "forms/frmTIDE/stations/Stations.h"

#include <cstdint>

namespace korvel
{

Record recordOf(const TideChoice& choice)
{
    return {choice.TideMode, choice.lblPlace, choice.lblDate};
}

SavedChoice choiceOf(const Record& record, const TideDates& dates)
{
    SavedChoice saved;
    saved.choice.TideMode = tickOf(record[0]);
    const std::string place = textOf(record[1]);
    if (saved.choice.TideMode ? isTideStation(place) : isStreamStation(place))
        saved.choice.lblPlace = place;
    else if (!place.empty() && place != noPlace)
        saved.notice = "There is no station \"" + place + "\" any more.";

    const std::optional<std::int64_t> date = TideDates::dateIn(textOf(record[2]));
    if (date && dates.contains(*date))
        saved.choice.lblDate = TideDates::label(*date);
    else if (date)
        saved.notice += (saved.notice.empty() ? "" : "  ") + TideDates::label(*date) +
                        " cannot be shown. " + dates.refusal();
    return saved;
}

} // namespace korvel
