// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Field.h"

#include <array>
#include <optional>
#include <string>

namespace korvel
{

/// The boxes as typed; an empty one takes what record and plan say.
struct NoonBoxes {
    std::array<std::string, 2> fixes; ///< rows of the record; empty: the last two at noon
    std::string fullAway;             ///< row of the record where the passage began
    std::string stopped;              ///< hours
    std::string next;                 ///< row of the plan that comes next
    std::string toGo;                 ///< miles, where there is no plan
    std::string portTD; ///< hours; empty: that of the plan's last row, else the ship's
    std::array<std::string, 3> speeds;  ///< knots; the first empty: the day's average
    std::string wanted;                 ///< arrival, port time
    std::string pitch;                  ///< metres
    std::array<std::string, 2> counter; ///< revolutions, at both fixes
    std::string wake;                   ///< fraction, 0 to 1
    std::array<std::string, 3> before;  ///< fuel on board, tons
    std::array<std::string, 3> onBoard;
    std::string wave;       ///< height, metres
    std::string swell;      ///< height, metres
    std::string visibility; ///< kilometres
    std::string letters;    ///< of the weather, "bc"
    std::string weather;    ///< words: wind, barometer ..
    std::string remark;
    std::string order; ///< of the fields of the mail

    bool operator==(const NoonBoxes&) const = default;
};

/// Places of NoonFields. Of an array that of its first box.
enum class NoonBox : std::size_t {
    FirstFix,
    LastFix,
    FullAway,
    Stopped,
    Next,
    ToGo,
    PortTD,
    Speed,
    Wanted = Speed + 3,
    Pitch,
    CounterFirst,
    CounterLast,
    Wake,
    Before, ///< behind each its box of what is on board
    Wave = Before + 6,
    Swell,
    Visibility,
    Letters,
    Weather,
    Remark,
    Order,
    End
};
constexpr std::size_t placeOf(NoonBox which)
{
    return static_cast<std::size_t>(which);
}

/// The boxes, group by group, in their Enter order and in that of the record.
inline constexpr std::array<Field, placeOf(NoonBox::End)> NoonFields = {{
    {"txtNoonFix(0)", "First fix, row", "First fix", "row of the record", FieldKind::Figure, "", 1,
     29},
    {"txtNoonFix(1)", "Last fix, row", "Last fix", "row of the record", FieldKind::Figure, "", 1,
     29},
    {"txtFullAway", "Full away, row", "Full away", "row of the record", FieldKind::Figure, "", 1,
     29},
    {"txtStopped", "Stopped", "Stopped", "hours", FieldKind::Figure, "h", 0, 1000},
    {"txtNext", "Next waypoint, row", "Next waypoint", "row of the plan", FieldKind::Figure, "", 1,
     500},
    {"txtToGo", "To go", "To go without a plan", "nautical miles", FieldKind::Figure, "nm", 0,
     30000},
    {"txtPortTD", "TD of the port", "TD of the port", "hours", FieldKind::Figure, "h", -12, 14,
     "east positive"},
    {"txtNoonSpeed(0)", "Speed", "First speed", "knots", FieldKind::Figure, "kn", 0, 100},
    {"txtNoonSpeed(1)", "Speed", "Second speed", "knots", FieldKind::Figure, "kn", 0, 100},
    {"txtNoonSpeed(2)", "Speed", "Third speed", "knots", FieldKind::Figure, "kn", 0, 100},
    {"txtNoonWanted", "Wanted arrival", "Wanted arrival", "port time, year/month/day hh:mm",
     FieldKind::Moment},
    {"txtPitch", "Pitch", "Pitch", "metres", FieldKind::Figure, "m", 0, 20},
    {"txtCounter(0)", "Counter, first fix", "Counter at the first fix", "revolutions",
     FieldKind::Figure, "", 0, 1e9},
    {"txtCounter(1)", "Counter, last fix", "Counter at the last fix", "revolutions",
     FieldKind::Figure, "", 0, 1e9},
    {"txtWake", "Wake fraction", "Wake fraction", "part of 1", FieldKind::Figure, "", 0, 0.99},
    {"txtFuel(0)", "Fuel 1 the day before", "Fuel 1 the day before", "tons", FieldKind::Figure, "t",
     0, 99999},
    {"txtROB(0)", "Fuel 1 on board", "Fuel 1 on board", "tons", FieldKind::Figure, "t", 0, 99999},
    {"txtFuel(1)", "Fuel 2 the day before", "Fuel 2 the day before", "tons", FieldKind::Figure, "t",
     0, 99999},
    {"txtROB(1)", "Fuel 2 on board", "Fuel 2 on board", "tons", FieldKind::Figure, "t", 0, 99999},
    {"txtFuel(2)", "Fuel 3 the day before", "Fuel 3 the day before", "tons", FieldKind::Figure, "t",
     0, 99999},
    {"txtROB(2)", "Fuel 3 on board", "Fuel 3 on board", "tons", FieldKind::Figure, "t", 0, 99999},
    {"txtNoonWave", "Wave height", "Wave height", "metres", FieldKind::Figure, "m", 0, 50},
    {"txtNoonSwell", "Swell height", "Swell height", "metres", FieldKind::Figure, "m", 0, 50},
    {"txtNoonVisibility", "Visibility", "Visibility", "kilometres", FieldKind::Figure, "km", 0,
     1000},
    {"txtNoonLetters", "Weather letters", "Weather letters", "letters of the log", FieldKind::Text},
    {"txtNoonWeather", "Weather", "Weather", "words", FieldKind::Text},
    {"txtNoonRemark", "Remark", "Remark", "words", FieldKind::Text},
    {"txtOrder", "Fields of the mail", "Fields of the mail", "in their order", FieldKind::Text},
}};

/// The text of a box.
/// @param place in NoonFields
std::string& noonText(NoonBoxes& boxes, std::size_t place);

/// Reads the boxes, each within the limits of its field.
class NoonReader
{
public:
    explicit NoonReader(const NoonBoxes& boxes) : m_boxes(boxes) {}

    /// @param index of an array of boxes
    /// @return nothing while the box is empty, and when it cannot be used: that is remarked
    std::optional<double> number(NoonBox which, std::size_t index = 0);
    const std::string& text(NoonBox which, std::size_t index = 0);
    /// Reads them all: what cannot be used is remarked, whether anything needs it yet or not.
    void readAll();
    /// Whether there is nothing but blanks in it.
    bool isBlank(NoonBox which);

    Remarks remarks;

private:
    NoonBoxes m_boxes;
};

} // namespace korvel
