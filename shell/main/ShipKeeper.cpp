// SPDX-License-Identifier: MIT
#include "shell/main/ShipKeeper.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"
#include "app/reading/Reading.h"
#include "navlib/angles.h"

namespace korvel
{
namespace
{

constexpr const char* title = "Ship now";

/// A position in whatever form, or two packed numbers.
std::optional<std::pair<std::string, std::string>> positionIn(const std::string& text)
{
    if (const auto parsed = parsePosition(text, Axis::Latitude);
        parsed && parsed->latitude && parsed->longitude)
        return std::pair(*parsed->latitude, *parsed->longitude);
    const std::string ascii = asciiForms(text);
    const std::size_t blank = ascii.find(' ', ascii.find_first_not_of(' '));
    if (blank == std::string::npos) return std::nullopt;
    std::pair halves(ascii.substr(0, blank), ascii.substr(blank + 1));
    if (!isNumeric(halves.first) || !isNumeric(halves.second)) return std::nullopt;
    return halves;
}

} // namespace

ShipKeeper::ShipKeeper(Program& program, Questions& questions, FileStore& files,
                       const ComputerClock& clock)
    : m_program(program), m_questions(questions), m_file(files, questions, clock, ShipNow::file)
{
    // A fix is typed key by key: the file is written once for all of them, soon after the first.
    m_burst.setSingleShot(true);
    m_burst.setInterval(std::chrono::milliseconds(1500));
    connect(&m_burst, &QTimer::timeout, this, [this] {
        m_burst.start(); // it is what says that there is something to write
        save();
    });
    connect(&m_program, &Program::shipNowChanged, this, [this] {
        if (!m_burst.isActive()) m_burst.start();
    });
    connect(&m_program, &Program::recordsWanted, this, &ShipKeeper::save);
}

void ShipKeeper::load()
{
    const FileStore::Content content = m_file.read();
    if (content.status != FileStore::Content::Status::Read) return;
    const std::string damage = m_program.shipNow.take(content.bytes);
    if (!damage.empty()) m_file.report("is damaged: " + damage, true);
}

void ShipKeeper::save()
{
    if (!m_burst.isActive()) return;
    m_burst.stop();
    const std::string fault = m_file.saveQuietly(m_program.shipNow.recordText());
    if (!fault.empty()) m_questions.ask({fault, programTitle, Buttons::Ok});
}

bool ShipKeeper::askPosition()
{
    const auto now = m_program.shipsPosition();
    std::string offered = now ? positionForCopy(now->latitude, now->longitude) : "";
    for (;;) {
        const auto typed = m_questions.input(
            "Position of this minute, 35°12.4'N 142°03.1'E or 35.124 142.031", title, offered);
        if (!typed) return false;
        const auto halves = positionIn(*typed);
        if (halves && IsInRange(halves->first, "-90", "90") &&
            IsInRange(halves->second, "-180", "180")) {
            m_program.shipNow.typeFix({NavFunc113::DegMin(readNumber(halves->first)),
                                       NavFunc113::DegMin(readNumber(halves->second)),
                                       instantOf(m_program.shipsTime().UTC()),
                                       ShipNow::Source::Typed});
            return true;
        }
        m_questions.ask({"\"" + *typed + "\" is no position.", programTitle, Buttons::Ok});
        offered = *typed;
    }
}

void ShipKeeper::askMotion()
{
    const auto& motion = m_program.shipNow.motion();
    const auto figure = [this](const char* prompt, const std::string& offered, double most) {
        for (;;) {
            const auto typed = m_questions.input(prompt, title, offered);
            if (!typed || typed->empty()) return std::optional<double>();
            const auto value = readLeadingNumber(*typed);
            if (value && isNumeric(*typed) && *value >= 0 && *value <= most) return value;
            m_questions.ask({"\"" + *typed + "\" is not within 0 to " + Format(most, "0") + ".",
                             programTitle, Buttons::Ok});
        }
    };
    const auto course = figure("Course, degrees true (empty: not known)",
                               motion ? Format(motion->course, "0.#") : "", 360);
    const auto speed = course ? figure("Speed, knots (empty: not known)",
                                       motion ? Format(motion->speed, "0.0#") : "", 100)
                              : std::nullopt;
    m_program.shipNow.tellMotion(speed ? std::optional(ShipNow::Motion{NavFunc113::Degrees(*course),
                                                                       NavFunc113::Knots(*speed)})
                                       : std::nullopt);
}

void ShipKeeper::ask()
{
    if (!askPosition()) return;
    askMotion();
    m_program.tellShipNow();
}

void ShipKeeper::toggleShown()
{
    m_program.shipNow.isShown = !m_program.shipNow.isShown;
    m_program.tellShipNow();
}

std::string ShipKeeper::line() const
{
    if (!m_program.shipNow.isShown) return {};
    const auto at = m_program.shipsPosition();
    if (!at) return "Ship now: not known";
    std::string line = "Ship now " + positionInFull(at->latitude, Axis::Latitude) + " " +
                       positionInFull(at->longitude, Axis::Longitude) + ", " + at->how;
    if (const auto& motion = m_program.shipNow.motion())
        line += "; " + courseText(motion->course, "000.0") + "° " + Format(motion->speed, "0.0") +
                " kn";
    return line;
}

} // namespace korvel
