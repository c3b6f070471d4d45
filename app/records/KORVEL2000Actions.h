// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/Questions.h"
#include "app/reading/Reading.h"
#include "app/records/KV_Savedvalue.h"
#include "app/records/SettingsFile.h"
#include "navlib/units.h"

#include <functional>
#include <optional>
#include <string>

namespace korvel
{

/// A position as the texts of its two halves.
struct PositionTexts {
    std::string latitude;
    std::string longitude;
};

/// The actions of the main window that the other windows share: both memories, range questions and
/// the end of the program. (The range check itself is `IsInRange` of reading.h.)
class KORVEL2000Actions
{
public:
    /// What is stored; a position is two calls, its latitude first.
    enum StoreKind { Latitude = 1, Longitude = 2, Single = 3 };
    /// What is recalled: the Single Memo, or the Position Memo.
    enum MemoName { SinM, PsnM };

    struct Hooks {
        std::function<void()> MemoHyoujiAtStart;   ///< redraws the memo line
        std::function<void()> endProgram;          ///< closes every window and ends
        std::function<void()> valuesSaved = [] {}; ///< the settings file holds what is kept
    };

    /// All references must outlive this object.
    KORVEL2000Actions(KV_Savedvalue& saved, Questions& questions, SettingsFile& settings,
                      Hooks hooks);

    /// Checks one half of a position, or a single value, asks, and stores it. A position is stored
    /// by two calls, latitude first. The value 0 is refused, so the equator and the meridian of
    /// Greenwich cannot be kept. The memo line is redrawn unless the officer answers No.
    /// @param valueText the number as text with full precision
    void StoreInMemo(StoreKind kind, const std::string& valueText);

    /// Stores a position: the longitude only when its latitude was accepted, so that a refused
    /// latitude is never paired with an older one.
    void storePosition(const PositionTexts& position);

    /// Shows what a memory holds and asks whether to use it.
    /// @return Yes or No
    Answer ConfirmMemoRecall(MemoName memoName);

    /// Asks whether to end the program; on Yes saves the values and ends it.
    /// @return 1 when the officer declined, 0 otherwise
    int ExitApplication();

    /// The memo line of the main window, its two parts on two lines.
    std::string memoLine() const;

private:
    bool acceptLatitude(const std::string& valueText, const std::string& refusal);
    bool storeLongitude(double value, const std::string& refusal);
    bool storeSingle(double value, const std::string& refusal);

    KV_Savedvalue& m_saved;
    Questions& m_questions;
    SettingsFile& m_settings;
    Hooks m_hooks;
    double PendingMemoLat{}; ///< between the two halves of a position store
};

/// Latitude and longitude of a text that holds both, as the Position Memo keeps them.
std::optional<PositionTexts> positionForMemo(const std::string& figure);
/// Whether a memory can keep a figure: a position, or a number above 0.
bool isForMemo(const std::string& figure);

/// Asks until the answer is a number in low .. high; a wrong answer is named.
/// @return defaultAnswer when nobody answers any more
std::string askNumberInRange(Questions& questions, const std::string& prompt,
                             const std::string& defaultAnswer, double low, double high);

/// Text of a memory's number as it is written into a box.
std::string memoText(double value);

inline std::string memoText(NavFunc113::DegMin value)
{
    return memoText(value.packed());
}

template <typename Unit>
std::string memoText(NavFunc113::Measure<Unit> value)
{
    return memoText(value.value());
}

} // namespace korvel
