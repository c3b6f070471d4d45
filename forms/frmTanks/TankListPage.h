// SPDX-License-Identifier: MIT
#pragma once

#include "forms/frmTanks/TankTexts.h"
#include "shell/controls/FieldBoxes.h"
#include "shell/controls/Options.h"
#include "shell/controls/ResultLabels.h"
#include "shell/layout/FollowingScrollArea.h"

namespace korvel
{

class Program;
class RowsView;
class TankModel;
class WrappingRow;

/// The tanks of a list: the rows of both surveys, and the boxes of the row and the survey in hand.
/// What is typed goes into the sheet key by key.
class TankListPage : public ScrolledBody
{
    Q_OBJECT

public:
    /// What the list of cargo and that of bunkers have each of its own.
    struct Parts {
        ListKind kind = ListKind::Cargo;
        const char* table = "";   ///< name of the table
        const char* options = ""; ///< name of the switch between the surveys
        FieldBoxes boxes;         ///< by TankField
        ResultLabels<TankTexts> results;
        std::vector<QString> captions; ///< of the results, with their units
    };
    /// @param work outlives this object
    TankListPage(Program& program, SheetInHand& work, Parts parts);

    /// Fills the boxes from the sheet; that is no typing.
    void fill();
    bool isFilling() const { return m_isFilling; }
    /// Shows rows and results of the row in hand.
    void show();

    std::vector<EntryBox*> boxes() const { return m_parts.boxes.all(); }
    EntryBox* box(std::size_t field) const { return m_parts.boxes[field]; }
    void goToRow(std::size_t row);
    void goToSurvey(TankSurvey survey);

signals:
    /// The sheet, or what is in hand of it, changed by other means than keys in a box.
    void changed();
    void deleteWanted();
    void pasteWanted();
    void undoWanted();
    void redoWanted();

protected:
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QWidget* layOutBoxes();
    void layOutResults(WrappingRow& row);
    void connectBoxes();
    void showUnits();
    void typeRow(const QString& box);
    void typeInto(int column, const QString& text);

    SheetInHand& m_work;
    Parts m_parts;
    TankModel* m_model;
    RowsView* m_table;
    Options* m_optSurvey;
    QLabel* m_units[3]; ///< of volume, water, temperature
    bool m_isFilling = false;
};

} // namespace korvel
