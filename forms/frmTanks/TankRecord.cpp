// SPDX-License-Identifier: MIT
#include "forms/frmTanks/TankRecord.h"

#include "app/reading/Utf8.h"
#include "app/records/KeyedLines.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <optional>
#include <string>
#include <string_view>

namespace korvel
{
namespace
{

constexpr std::string_view recordKind = "KORVEL2000 tank list ";
constexpr std::string_view recordVersion = "1";

template <typename Owner>
struct Text {
    std::string_view key;
    std::string Owner::*box;
};

constexpr std::array gradeTexts{
    Text<GradeBoxes>{"name", &GradeBoxes::name},
    Text<GradeBoxes>{"table", &GradeBoxes::table},
    Text<GradeBoxes>{"density", &GradeBoxes::density},
    Text<GradeBoxes>{"coefficient", &GradeBoxes::coefficient},
    Text<GradeBoxes>{"sediment", &GradeBoxes::sediment},
    Text<GradeBoxes>{"bill m3", &GradeBoxes::billVolume},
    Text<GradeBoxes>{"bill bbl", &GradeBoxes::billBarrels},
    Text<GradeBoxes>{"bill t", &GradeBoxes::billWeight},
    Text<GradeBoxes>{"fuel", &GradeBoxes::fuel},
    Text<GradeBoxes>{"received", &GradeBoxes::received},
};
constexpr std::array readingTexts{
    Text<TankReading>{"sounding", &TankReading::sounding},
    Text<TankReading>{"volume", &TankReading::volume},
    Text<TankReading>{"water", &TankReading::water},
    Text<TankReading>{"temperature", &TankReading::temperature},
    Text<TankReading>{"grade", &TankReading::grade},
};
constexpr std::array voyageTexts{
    Text<VoyageBoxes>{"name", &VoyageBoxes::name},
    Text<VoyageBoxes>{"ship", &VoyageBoxes::ship},
    Text<VoyageBoxes>{"shore", &VoyageBoxes::shore},
};

constexpr std::array<std::string_view, surveyCount> surveyKeys{"first ", "last "};
constexpr std::array<std::string_view, 2> listKeys{"cargo", "bunkers"};
constexpr std::array<std::string_view, 2> movementKeys{"loading", "discharge"};

// By their enumerations; the first of each is what an absent line means.
constexpr std::array<std::string_view, 2> editions{"1980", "2004"};
constexpr std::array<std::string_view, 3> roundings{"5", "4", "1980"};
constexpr std::array<std::string_view, 2> airs{"1.1", "56"};
constexpr std::array<std::string_view, 2> volumes{"m3", "bbl"};
constexpr std::array<std::string_view, 2> temperatures{"C", "F"};

template <typename Choice, std::size_t N>
void addChoice(std::string& text, std::string_view key, Choice choice,
               const std::array<std::string_view, N>& words)
{
    if (choice != Choice()) addKeyedLine(text, key, words[static_cast<std::size_t>(choice)]);
}

/// @return false when the value is none of the words
template <typename Choice, std::size_t N>
bool takeChoice(std::string_view value, Choice& choice,
                const std::array<std::string_view, N>& words)
{
    const auto found = std::ranges::find(words, value);
    if (found == words.end()) return false;
    choice = static_cast<Choice>(found - words.begin());
    return true;
}

template <typename Owner, std::size_t N>
void addTexts(std::string& file, const Owner& owner, const std::array<Text<Owner>, N>& texts,
              std::string_view before = {})
{
    for (const Text<Owner>& each : texts)
        addKeyedLine(file, std::string(before) + std::string(each.key), owner.*(each.box));
}

template <typename Owner, std::size_t N>
void takeText(Owner& owner, const std::array<Text<Owner>, N>& texts, std::string_view key,
              std::string_view value)
{
    const auto found = std::ranges::find(texts, key, &Text<Owner>::key);
    if (found != texts.end()) owner.*(found->box) = unescapedLine(value);
}

void addList(std::string& text, const TankList& list)
{
    for (std::size_t i = 0; i < surveyCount; ++i)
        addKeyedLine(text, std::string(surveyKeys[i]) + "time", list.times[i]);
    for (std::size_t i = 0; i < gradeCount; ++i) {
        if (list.grades[i].isEmpty()) continue;
        text += "grade " + std::to_string(i + 1) + "\n";
        addTexts(text, list.grades[i], gradeTexts);
    }
    for (const TankRow& row : list.rows) {
        text += "tank\n";
        addKeyedLine(text, "name", row.tank);
        for (std::size_t i = 0; i < surveyCount; ++i)
            addTexts(text, row.surveys[i], readingTexts, surveyKeys[i]);
    }
}

/// The number behind a word, "grade 3": from 0; nothing when it is beyond.
std::optional<std::size_t> placeOf(std::string_view line, std::string_view word, std::size_t most)
{
    if (!line.starts_with(word)) return std::nullopt;
    std::size_t number = 0;
    const char* const end = line.data() + line.size();
    const auto read = std::from_chars(line.data() + word.size(), end, number);
    if (read.ec != std::errc() || read.ptr != end || number < 1 || number > most)
        return std::nullopt;
    return number - 1;
}

/// Takes the lines of a record one by one.
class Lines
{
public:
    explicit Lines(ReadTankRecord& read) : m_read(read) {}

    void take(std::string_view line, int number)
    {
        const std::size_t sign = line.find('=');
        if (sign == std::string_view::npos) return open(line, number);
        if (!isUtf8(line)) return damage(number, "it cannot be read");
        const std::string_view key = line.substr(0, sign);
        const std::string_view value = line.substr(sign + 1);
        if (m_grade) return takeText(*m_grade, gradeTexts, key, value);
        if (m_voyage) return takeText(*m_voyage, voyageTexts, key, value);
        if (m_isBeyond) return;
        if (m_isInTank) return takeOfTank(key, value);
        for (std::size_t i = 0; m_list && i < surveyCount; ++i)
            if (key == std::string(surveyKeys[i]) + "time") m_list->times[i] = unescapedLine(value);
        if (!m_list && !takeOfHead(key, value)) damage(number, "no such choice");
    }

private:
    void damage(int number, const std::string& what)
    {
        if (m_read.damage.empty()) m_read.damage = "line " + std::to_string(number) + ": " + what;
    }

    void open(std::string_view line, int number)
    {
        m_grade = nullptr;
        m_voyage = nullptr;
        m_isInTank = m_isBeyond = false;
        for (std::size_t i = 0; i < listKeys.size(); ++i) {
            if (line == listKeys[i]) {
                m_list = &m_read.sheet.lists[i];
                return;
            }
            const auto voyage =
                placeOf(line, std::string(movementKeys[i]) + " voyage ", voyageCount);
            if (!voyage) continue;
            m_voyage = &m_read.sheet.voyages[i][*voyage];
            return;
        }
        const auto grade = placeOf(line, "grade ", gradeCount);
        if (m_list && grade)
            m_grade = &m_list->grades[*grade];
        else if (m_list && line == "tank")
            openTank(number);
        else {
            m_isBeyond = true; // whatever belongs to it
            damage(number, "it cannot be read");
        }
    }

    void openTank(int number)
    {
        m_isInTank = true;
        m_isBeyond = m_list->rows.size() == mostTanks;
        if (m_isBeyond)
            damage(number, "more than " + std::to_string(mostTanks) + " tanks");
        else
            m_list->rows.emplace_back();
    }

    void takeOfTank(std::string_view key, std::string_view value)
    {
        TankRow& row = m_list->rows.back();
        if (key == "name") row.tank = unescapedLine(value);
        for (std::size_t i = 0; i < surveyCount; ++i)
            if (key.starts_with(surveyKeys[i]))
                takeText(row.surveys[i], readingTexts, key.substr(surveyKeys[i].size()), value);
    }

    bool takeOfHead(std::string_view key, std::string_view value)
    {
        TankChoices& choices = m_read.sheet.choices;
        if (key == "port") m_read.sheet.port = unescapedLine(value);
        if (key == "edition") return takeChoice(value, choices.edition, editions);
        if (key == "rounding") return takeChoice(value, choices.rounding, roundings);
        if (key == "air") return takeChoice(value, choices.air, airs);
        if (key == "volume") return takeChoice(value, choices.volume, volumes);
        if (key == "temperature") return takeChoice(value, choices.temperature, temperatures);
        if (key == "movement") return takeChoice(value, choices.movement, movementKeys);
        return true;
    }

    ReadTankRecord& m_read;
    TankList* m_list = nullptr;
    GradeBoxes* m_grade = nullptr;
    VoyageBoxes* m_voyage = nullptr;
    bool m_isInTank = false;
    bool m_isBeyond = false; ///< what is in hand is one too many, or not known
};

} // namespace

std::string tankRecordText(const TankSheet& sheet)
{
    std::string text = std::string(recordKind) + std::string(recordVersion) + "\n";
    const TankChoices& choices = sheet.choices;
    addKeyedLine(text, "port", sheet.port);
    addChoice(text, "edition", choices.edition, editions);
    addChoice(text, "rounding", choices.rounding, roundings);
    addChoice(text, "air", choices.air, airs);
    addChoice(text, "volume", choices.volume, volumes);
    addChoice(text, "temperature", choices.temperature, temperatures);
    addChoice(text, "movement", choices.movement, movementKeys);
    for (std::size_t i = 0; i < sheet.lists.size(); ++i) {
        text += std::string(listKeys[i]) + "\n";
        addList(text, sheet.lists[i]);
    }
    for (std::size_t i = 0; i < sheet.voyages.size(); ++i) {
        for (std::size_t voyage = 0; voyage < voyageCount; ++voyage) {
            if (sheet.voyages[i][voyage].isEmpty()) continue;
            text += std::string(movementKeys[i]) + " voyage " + std::to_string(voyage + 1) + "\n";
            addTexts(text, sheet.voyages[i][voyage], voyageTexts);
        }
    }
    return text;
}

ReadTankRecord readTankRecord(std::string_view text)
{
    ReadTankRecord read;
    if (!text.starts_with(recordKind)) return {{}, "line 1: it is no tank list"};
    Lines lines(read);
    int number = 0;
    for (const std::string_view line : recordLines(text))
        if (++number > 1 && !line.empty()) lines.take(line, number);
    return read;
}

} // namespace korvel
