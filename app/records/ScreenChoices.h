// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/SettingsRecord.h"

#include <map>
#include <string>

namespace korvel
{

/// Where a window stood on the screen and how large it was, in pixels, without its frame.
struct WindowPlace {
    int x{}; ///< upper left corner inside the frame
    int y{};
    int width{};
    int height{};
    int zoom = 100;    ///< percent that the size belongs to
    bool open = false; ///< at the last exit

    bool operator==(const WindowPlace&) const = default;
};

/// How the officer wants the program on the screen: kept in a file of its own, for the values of
/// the main window's file are fixed.
struct ScreenChoices {
    static constexpr const char* file = "KV_Screen.ini";
    static constexpr int dimSteps = 3;

    int dimStep{};  ///< of the night colours, 0 the brightest .. dimSteps - 1
    int zoom = 100; ///< percent, one of zoomSteps()
    bool reopensWindows = false;
    bool clockOnTop = false;
    bool ownFrames = false; ///< at night the windows do without the desktop's frames
    std::map<std::string, WindowPlace> places; ///< by name of the window

    /// The percentages that can be chosen, ascending, from 80 to 300.
    static const std::vector<int>& zoomSteps();
    /// Goes to a neighbouring percentage.
    /// @param steps positive for larger letters, negative for smaller ones, 0 for 100
    /// @return false when there is none
    bool changeZoom(int steps);

    static std::vector<FieldKind> kinds();
    Record record() const;
    /// What a file holds; a value that is none of those above keeps its default.
    static ScreenChoices of(const Record& record);

    bool operator==(const ScreenChoices&) const = default;
};

} // namespace korvel
