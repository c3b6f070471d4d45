// SPDX-License-Identifier: MIT
#include "shell/screen/Screen.h"

#include "shell/machine/Machine.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMessageBox>

#include <chrono>

namespace korvel
{
namespace
{

using namespace std::chrono_literals;

constexpr auto savingDelay = 1s; // places change in bursts

} // namespace

Screen::Screen(const Machine& machine, KV_Savedvalue& saved)
    : m_file(machine.files, machine.questions, machine.clock, ScreenChoices::file,
             ScreenChoices::kinds()),
      m_saved(saved), m_colours(ColourScheme::day())
{
    if (const auto record = m_file.load(m_choices.record())) m_choices = ScreenChoices::of(*record);
    m_onDisk = m_choices;
    m_saveSoon.setSingleShot(true);
    m_saveSoon.setInterval(savingDelay);
    connect(&m_saveSoon, &QTimer::timeout, this, &Screen::save);
    qApp->installEventFilter(this);
}

Screen::~Screen() = default;

void Screen::apply()
{
    const Looks wanted{m_saved.nightColours(), m_choices.dimStep, m_choices.zoom};
    const bool recoloured = wanted.night != m_applied.night || wanted.dimStep != m_applied.dimStep;
    const bool zoomed = wanted.zoom != m_applied.zoom;
    m_applied = wanted;
    if (zoomed) emit aboutToZoom();
    if (recoloured) m_colours = wanted.colours();
    applyLooks(wanted, m_colours);
    m_frames.apply(wanted.night, wanted.night && m_choices.ownFrames);
    if (recoloured) {
        for (QWidget* each : QApplication::topLevelWidgets()) // whose icon is a picture
            if (auto* box = qobject_cast<QMessageBox*>(each)) box->setIcon(box->icon());
        emit coloursChanged();
    }
    if (zoomed) emit zoomChanged();
}

void Screen::toggleNight()
{
    m_saved.setNightColours(!m_saved.nightColours());
    apply();
    emit chosen();
}

void Screen::dim()
{
    if (!m_saved.nightColours()) return toggleNight();
    m_choices.dimStep = (m_choices.dimStep + 1) % ScreenChoices::dimSteps;
    apply();
    save();
}

void Screen::zoom(int steps)
{
    if (!m_choices.changeZoom(steps)) return;
    apply();
    save();
}

void Screen::toggleReopening()
{
    m_choices.reopensWindows = !m_choices.reopensWindows;
    save();
    emit chosen();
}

void Screen::toggleClockOnTop()
{
    m_choices.clockOnTop = !m_choices.clockOnTop;
    save();
    emit chosen();
}

void Screen::toggleOwnFrames()
{
    m_choices.ownFrames = !m_choices.ownFrames;
    apply();
    save();
    emit chosen();
}

void Screen::keepPlace(const QString& window, const WindowPlace& place)
{
    m_choices.places[window.toStdString()] = place;
    if (m_choices != m_onDisk && !m_saveSoon.isActive()) m_saveSoon.start();
}

std::optional<WindowPlace> Screen::placeOf(const QString& window) const
{
    const auto place = m_choices.places.find(window.toStdString());
    if (place == m_choices.places.end()) return std::nullopt;
    return place->second;
}

void Screen::save()
{
    m_saveSoon.stop();
    // How the screen looks is not worth a box: a disk that fails is said by the windows' records.
    if (m_choices != m_onDisk && m_file.saveQuietly(m_choices.record()).empty())
        m_onDisk = m_choices;
}

void Screen::saveAtClose()
{
    m_saveSoon.stop();
    if (m_choices != m_onDisk && m_file.saveAtClose(m_choices.record())) m_onDisk = m_choices;
}

bool Screen::eventFilter(QObject* watched, QEvent* event)
{
    const bool goesDown = event->type() == QEvent::KeyPress;
    if (!goesDown && event->type() != QEvent::ShortcutOverride) return false;
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool dims = key.modifiers() == Qt::ShiftModifier;
    if (key.key() != Qt::Key_F8 || (!dims && key.modifiers() != Qt::NoModifier))
        return QObject::eventFilter(watched, event);
    event->accept(); // no menu is to have it as well
    // A key reaches the window of the screen first and then the control under the focus.
    if (goesDown && watched->isWidgetType() && !key.isAutoRepeat()) dims ? dim() : toggleNight();
    return !goesDown || watched->isWidgetType();
}

} // namespace korvel
