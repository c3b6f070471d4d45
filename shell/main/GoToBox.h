// SPDX-License-Identifier: MIT
#pragma once

#include "shell/main/GoToPlaces.h"

#include <QDialog>

class QLineEdit;
class QListWidget;

namespace korvel
{

/// Goes to a window, an entry, a station, a unit or a head of the manual by some letters of its
/// name: Enter goes to the first that is found, arrow keys choose another, Escape stays. It deletes
/// itself when it closes.
class GoToBox : public QDialog
{
public:
    GoToBox(QWidget& from, std::vector<GoToPlace> places);

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void find();
    void go();

    std::vector<GoToPlace> m_places;
    std::vector<const GoToPlace*> m_found;
    QLineEdit* m_txtGoTo;
    QListWidget* m_lstGoTo;
};

} // namespace korvel
