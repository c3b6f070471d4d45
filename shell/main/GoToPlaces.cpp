// SPDX-License-Identifier: MIT
#include "shell/main/GoToPlaces.h"

#include "shell/main/CalculatorWindows.h"
#include "shell/manual/HelpDesk.h"

#include <QAction>
#include <QMenu>
#include <QMenuBar>
#include <QPointer>
#include <QStringList>

#include <algorithm>

namespace korvel
{
namespace
{

constexpr const char* windowKind = "window";

QString withoutMnemonics(const QString& caption)
{
    return QString(caption).remove('&').remove("...").remove("..");
}

void addWindows(std::vector<GoToPlace>& places, CalculatorWindows& windows)
{
    for (const CatalogueEntry& entry : windows.catalogue())
        places.push_back({withoutMnemonics(entry.caption), windowKind,
                          [&windows, name = entry.name] { windows.open(name); }});
}

void addEntries(std::vector<GoToPlace>& places, const QMenu& menu, const QString& path)
{
    for (QAction* entry : menu.actions()) {
        const QString caption = withoutMnemonics(entry->text());
        if (!entry->isVisible() || entry->isSeparator() || caption.isEmpty()) continue;
        if (entry->menu())
            addEntries(places, *entry->menu(), path + ", " + caption);
        else if (entry->isEnabled())
            places.push_back({caption, path, [chosen = QPointer<QAction>(entry)] {
                                  if (chosen) chosen->trigger();
                              }});
    }
}

void addMenus(std::vector<GoToPlace>& places, const QWidget& from)
{
    auto* bar = from.findChild<QMenuBar*>(QString(), Qt::FindDirectChildrenOnly);
    if (!bar) return;
    for (QAction* entry : bar->actions())
        if (entry->menu() && entry->isVisible())
            addEntries(places, *entry->menu(), "menu " + withoutMnemonics(entry->text()));
}

void addPlacesInWindows(std::vector<GoToPlace>& places, CalculatorWindows& windows)
{
    for (const CatalogueEntry& entry : windows.catalogue()) {
        if (!entry.places) continue;
        for (const CatalogueEntry::Place& each : entry.places())
            places.push_back(
                {each.symbol.isEmpty() ? each.caption : each.caption + " (" + each.symbol + ")",
                 withoutMnemonics(entry.caption),
                 [&windows, name = entry.name, place = each.place] { windows.openAt(name, place); },
                 each.symbol});
    }
}

void addManual(std::vector<GoToPlace>& places, HelpDesk& help)
{
    for (const QString& page : Manual::pages()) {
        const QString title = help.manual().title(page);
        for (const QString& line : help.manual().text(page).split('\n')) {
            if (!line.startsWith('#')) continue;
            const QString head = line.section(' ', 1);
            places.push_back({head, "manual, " + title, [&help, page, head] {
                                  help.open({{page}, head});
                              }});
        }
    }
}

/// 0 the best; nothing where it is not found.
std::optional<int> rankOf(const QString& name, const QStringList& words)
{
    for (const QString& word : words)
        if (!name.contains(word, Qt::CaseInsensitive)) return std::nullopt;
    const QString& first = words.front();
    if (name.startsWith(first, Qt::CaseInsensitive)) return 0;
    return (' ' + name).contains(' ' + first, Qt::CaseInsensitive) ? 1 : 2;
}

} // namespace

std::vector<GoToPlace> placesToGo(CalculatorWindows& windows, QWidget& from, HelpDesk& help)
{
    std::vector<GoToPlace> places;
    addWindows(places, windows);
    addPlacesInWindows(places, windows);
    addMenus(places, from);
    addManual(places, help);
    return places;
}

std::vector<const GoToPlace*> findPlaces(const std::vector<GoToPlace>& places, const QString& typed)
{
    constexpr qsizetype leastLetters = 3;
    const QString letters = typed.simplified();
    const QStringList words = letters.isEmpty() ? QStringList("") : letters.split(' ');
    std::vector<std::pair<int, const GoToPlace*>> ranked;
    for (const GoToPlace& place : places) {
        if (!letters.isEmpty() && place.symbol.compare(letters, Qt::CaseInsensitive) == 0) {
            ranked.emplace_back(place.symbol == letters ? -2 : -1, &place); // ST is not st
            continue;
        }
        if (letters.size() < leastLetters && place.where != windowKind) continue;
        if (const auto rank = rankOf(place.name, words)) ranked.emplace_back(*rank, &place);
    }
    std::ranges::stable_sort(ranked, {}, [](const auto& each) { return each.first; });
    std::vector<const GoToPlace*> found;
    found.reserve(ranked.size());
    for (const auto& [rank, place] : ranked)
        found.push_back(place);
    return found;
}

} // namespace korvel
