// SPDX-License-Identifier: MIT
#include "forms/frmNoon/NoonMail.h"

#include "app/reading/Format.h"

#include <map>
#include <sstream>

namespace korvel
{
namespace
{

using Field = std::string (*)(NoonReader&, const NoonResult&);

/// A line of the mail; empty where there is nothing to say.
std::string line(const char* caption, const std::string& text, const char* unit = "")
{
    if (text.find_first_not_of(' ') == std::string::npos) return {};
    return caption + (": " + text) + unit + "\n";
}

std::string numbered(const char* caption, std::size_t index, const std::string& text,
                     const char* unit = "")
{
    return line((caption + (" " + std::to_string(index + 1))).c_str(), text, unit);
}

std::string date(NoonReader&, const NoonResult& noon)
{
    const RecordedFix& fix = noon.record.fixes[noon.day->to];
    return line("UTC", minuteText(nearestMinute(instantOf(fix.utc))));
}

std::string eta(NoonReader&, const NoonResult& noon)
{
    std::string text;
    for (const std::string& each : noon.eta)
        text += line("ETA", each);
    return text;
}

std::string slip(NoonReader&, const NoonResult& noon)
{
    return line("Engine miles", noon.engine) + line("Slip, apparent", noon.apparentSlip, " %") +
           line("Slip, real", noon.realSlip, " %");
}

/// As typed, or by the tank list.
std::string onBoard(NoonReader& boxes, const NoonResult& noon, std::size_t fuel)
{
    const auto& tons = noon.byTanks[fuel];
    return tons ? Format(*tons, "0.0") : boxes.text(NoonBox::Before, 2 * fuel + 1);
}

std::string received(const NoonResult& noon, std::size_t fuel)
{
    const bool isAny = noon.tons[fuel] && noon.tons[fuel]->received > 0;
    return isAny ? Format(noon.tons[fuel]->received, "0.0") : "";
}

std::string fuel(NoonReader& boxes, const NoonResult& noon)
{
    std::string text;
    for (std::size_t i = 0; i < noon.fuel.size(); ++i)
        text += numbered("ROB", i, onBoard(boxes, noon, i), " t") +
                numbered("Bunkered", i, received(noon, i), " t") +
                numbered("Consumed", i, noon.fuel[i]);
    return text;
}

std::string weather(NoonReader& boxes, const NoonResult& noon)
{
    return line("Sea", noon.sea) + line("Visibility", noon.visibility) + line("Sky", noon.weather) +
           line("Weather", boxes.text(NoonBox::Weather));
}

const std::map<std::string, Field>& fields()
{
    using B = NoonReader;
    using N = NoonResult;
    static const std::map<std::string, Field> all = {
        {"date", date},
        {"position", [](B&, const N& noon) { return line("Position", noon.position); }},
        {"hours", [](B&, const N& noon) { return line("Steaming time", noon.hours); }},
        {"run",
         [](B&, const N& noon) {
             return line("Run", noon.run, " nm") + line("Since full away", noon.sinceAway);
         }},
        {"speed", [](B&, const N& noon) { return line("Average", noon.average, " kn"); }},
        {"togo", [](B&, const N& noon) { return line("To go", noon.toGo, " nm"); }},
        {"eta", eta},
        {"wanted",
         [](B&, const N& noon) {
             return line("Speed for the wanted arrival", noon.speedNeeded, " kn");
         }},
        {"drift", [](B&, const N& noon) { return line("Set and drift", noon.setAndDrift); }},
        {"slip", slip},
        {"fuel", fuel},
        {"weather", weather},
        {"remark", [](B& boxes, const N&) { return line("Remark", boxes.text(NoonBox::Remark)); }},
    };
    return all;
}

} // namespace

std::string noonMail(NoonReader& boxes, const NoonResult& noon)
{
    std::istringstream order(boxes.isBlank(NoonBox::Order) ? usualOrder
                                                           : boxes.text(NoonBox::Order));
    std::string text;
    for (std::string name; order >> name;) {
        const auto field = fields().find(name);
        if (field == fields().end())
            boxes.remarks.warn("Fields of the mail: there is no " + quotation(name));
        else if (noon.isWhole)
            text += field->second(boxes, noon);
    }
    return noon.isWhole ? "NOON REPORT\n" + text : std::string();
}

} // namespace korvel
