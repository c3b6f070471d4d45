// SPDX-License-Identifier: MIT
#include "forms/frmNoon/NoonBoxes.h"

#include "app/reading/TypedTime.h"

namespace korvel
{

std::string& noonText(NoonBoxes& boxes, std::size_t place)
{
    const std::array<std::string*, NoonFields.size()> texts{
        &boxes.fixes[0],   &boxes.fixes[1],   &boxes.fullAway,   &boxes.stopped,
        &boxes.next,       &boxes.toGo,       &boxes.portTD,     &boxes.speeds[0],
        &boxes.speeds[1],  &boxes.speeds[2],  &boxes.wanted,     &boxes.pitch,
        &boxes.counter[0], &boxes.counter[1], &boxes.wake,       &boxes.before[0],
        &boxes.onBoard[0], &boxes.before[1],  &boxes.onBoard[1], &boxes.before[2],
        &boxes.onBoard[2], &boxes.wave,       &boxes.swell,      &boxes.visibility,
        &boxes.letters,    &boxes.weather,    &boxes.remark,     &boxes.order};
    return *texts[place];
}

std::optional<double> NoonReader::number(NoonBox which, std::size_t index)
{
    const std::size_t place = placeOf(which) + index;
    return readIfTyped(noonText(m_boxes, place), NoonFields[place], remarks);
}

void NoonReader::readAll()
{
    for (std::size_t place = 0; place < NoonFields.size(); ++place)
        if (NoonFields[place].kind == FieldKind::Figure) number(NoonBox::FirstFix, place);
    if (isBlank(NoonBox::Wanted)) return;
    const TypedTime wanted = readTypedTime(text(NoonBox::Wanted), Due::DateAndTime);
    if (!wanted.value) remarks.fault("Wanted arrival: " + wanted.remark);
}

const std::string& NoonReader::text(NoonBox which, std::size_t index)
{
    return noonText(m_boxes, placeOf(which) + index);
}

bool NoonReader::isBlank(NoonBox which)
{
    return text(which).find_first_not_of(' ') == std::string::npos;
}

} // namespace korvel
