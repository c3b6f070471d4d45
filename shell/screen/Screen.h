// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/KV_Savedvalue.h"
#include "app/records/ScreenChoices.h"
#include "app/records/SettingsFile.h"
#include "shell/screen/Frames.h"
#include "shell/screen/Looks.h"

#include <QObject>
#include <QTimer>

namespace korvel
{

struct Machine;

/// The program on the screen: its colours by day and by night, the size of everything, the places
/// of the windows, and the keys for the colours, which hold in every window, question and alarm.
class Screen : public QObject
{
    Q_OBJECT

public:
    /// @param machine, saved must outlive this object
    Screen(const Machine& machine, KV_Savedvalue& saved);
    ~Screen() override;

    /// The colours in force, by KV_Savedvalue(21) and the step of the night.
    const ColourScheme& colours() const { return m_colours; }
    const ScreenChoices& choices() const { return m_choices; }

    /// Shows what the saved values and the choices say, now and in every window to come.
    void apply();

    void toggleNight();
    /// Goes to the next darker step of the night and from the last one to the brightest; by day it
    /// brings the night on with the step it had.
    void dim();
    /// @param steps as of ScreenChoices::changeZoom
    void zoom(int steps);
    void toggleReopening();
    void toggleClockOnTop();
    void toggleOwnFrames();

    /// Keeps the place of a window for its next opening; written shortly afterwards.
    void keepPlace(const QString& window, const WindowPlace& place);
    std::optional<WindowPlace> placeOf(const QString& window) const;
    /// Writes what is not written yet.
    void save();
    /// The same at the end of the program: a disk that fails is said, with the file's name.
    void saveAtClose();

    /// Takes the keys for the colours before anybody else: boxes that stand before all windows
    /// would keep menu shortcuts from them.
    bool eventFilter(QObject* watched, QEvent* event) override;

signals:
    void coloursChanged();
    void zoomChanged();
    /// Before anything is of another size.
    void aboutToZoom();
    /// A tick in a menu is to be shown anew.
    void chosen();

private:
    SettingsFile m_file;
    KV_Savedvalue& m_saved;
    ScreenChoices m_choices;
    ScreenChoices m_onDisk;
    Looks m_applied;
    ColourScheme m_colours;
    QTimer m_saveSoon;
    Frames m_frames{nullptr};
};

} // namespace korvel
