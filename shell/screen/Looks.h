// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"
#include "shell/screen/ColourScheme.h"

namespace korvel
{

/// Colours and size of everything on the screen.
struct Looks {
    bool night = false;
    int dimStep{};
    int zoom = 100; ///< percent

    ColourScheme colours() const
    {
        return night ? ColourScheme::night(dimStep) : ColourScheme::day();
    }
    bool operator==(const Looks&) const = default;
};

/// How the files of the last run want it, without a word about a file that is damaged and without
/// touching anything, for another program may hold the folder: for what is shown before the program
/// reads them itself. After a run that did not end by its exit the colours of the recovery file
/// hold.
/// @param files as they were found, ProgramFolder::Remnants::Left
Looks looksOfLastRun(FileStore& files);

/// Gives it to the application: every window, menu, box and tool tip that there is and that will
/// be. Needs ScreenStyle to be the application's style for all of it.
void applyLooks(const Looks& looks, const ColourScheme& colours);

} // namespace korvel
