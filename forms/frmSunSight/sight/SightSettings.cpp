// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/sight/SightSettings.h"

#include <type_traits>

namespace korvel
{
namespace
{

/// The values before the sights, in their order; `visit` gets each std::string or bool.
template <typename Settings, typename Visit>
void visitFields(Settings& settings, Visit visit)
{
    auto& sight = settings.sight;
    visit(sight.date);
    visit(sight.time);
    visit(sight.SMT);
    visit(sight.TD);
    visit(sight.watchError);
    visit(sight.Hs);
    visit(sight.indexError);
    visit(sight.upperLimb);
    visit(sight.heightOfEye);
    visit(sight.air);
    visit(sight.sea);
    visit(sight.pressure);
    auto& track = settings.track;
    visit(track.latitude);
    visit(track.longitude);
    visit(track.time);
    visit(track.course);
    visit(track.speed);
    auto& options = settings.options;
    visit(options.sigma);
    visit(options.runAlong);
    visit(options.runCourse);
    visit(options.measured);
}

} // namespace

Record recordOf(const SightSettings& settings)
{
    Record record;
    visitFields(settings, [&](const auto& field) { record.emplace_back(field); });
    for (std::string& text : settings.list.texts())
        record.emplace_back(std::move(text));
    return record;
}

std::vector<FieldKind> sightKinds()
{
    std::vector<FieldKind> kinds;
    const SightSettings settings;
    visitFields(settings, [&](const auto& field) {
        constexpr bool tick = std::is_same_v<std::decay_t<decltype(field)>, bool>;
        kinds.push_back(tick ? FieldKind::Tick : FieldKind::Text);
    });
    // A damaged sight must not make the other sights unreadable.
    kinds.insert(kinds.end(), SightList::most, FieldKind::Any);
    return kinds;
}

SightSettings settingsOf(const Record& record)
{
    SightSettings settings;
    std::vector<std::string> texts;
    std::size_t at = 0;
    visitFields(settings, [&](auto& field) {
        if (at >= record.size()) return;
        if constexpr (std::is_same_v<std::decay_t<decltype(field)>, bool>)
            field = tickOf(record[at]);
        else
            // In a damaged file the sights may have moved up.
            (SightList::isText(textOf(record[at])) ? texts.emplace_back() : field) =
                textOf(record[at]);
        ++at;
    });
    for (; at < record.size(); ++at)
        texts.push_back(textOf(record[at]));
    settings.list = SightList::fromTexts(texts);
    return settings;
}

} // namespace korvel
