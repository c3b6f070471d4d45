// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/PositionText.h"
#include "shell/controls/Boxes.h"
#include "shell/controls/ResultLabel.h"

namespace korvel
{

/// A box for a latitude or a longitude. Beside it stands what was understood; what is pasted from
/// other instruments is turned into the packed form, a pair fills both boxes.
class PositionBox : public EntryBox
{
    Q_OBJECT

public:
    PositionBox(Axis axis, QWidget* parent = nullptr);

    /// The label that shows the value in full, with a quiet hint where one is due. Place it beside
    /// the box; it belongs to the same parent.
    QLabel* echo() const { return m_echo; }

    /// For tables: the echo has room for the figure alone, a hint shows as "!" and in the tool tip.
    void setBriefEcho();
    /// What the echo says in full, hint included.
    QString fullEcho() const { return accessibleDescription(); }

    /// Makes a latitude and a longitude box one position.
    static void pair(PositionBox* latitude, PositionBox* longitude);

    /// Pastes a text as the box would from the clipboard.
    void pasteText(const QString& text);

protected:
    /// It tells what was understood.
    bool describesLimits() const override { return false; }

    void keyPressEvent(QKeyEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void dropEvent(QDropEvent* event) override;

private:
    void showEcho();
    QString positionToCopy() const;

    Axis m_axis;
    PositionBox* m_partner = nullptr;
    bool m_briefEcho = false;
    ResultLabel* m_echo;
    QString m_remark;     ///< how a pasted text was taken
    QString m_remarkedAt; ///< the box text that the remark belongs to
};

} // namespace korvel
