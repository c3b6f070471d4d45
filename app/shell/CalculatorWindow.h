// SPDX-License-Identifier: MIT
#pragma once

#include "app/SettingsFile.h"
#include "app/shell/Boxes.h"
#include "app/shell/Program.h"

#include <QMainWindow>

#include <array>
#include <functional>
#include <map>
#include <memory>
#include <set>
#include <utility>
#include <vector>

class QGridLayout;
class QMenu;
class QPainter;

namespace korvel
{

class FollowingScrollArea;

/// What repeats in every calculator window: its settings file, boxes and labels with their names,
/// calculations at every change, the notice line at the foot, the memo menus, links to the other
/// windows, printing.
///
/// A window's constructor makes its controls, adds its calculations and menus and calls
/// loadSettings() last.
class CalculatorWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param name    class name of the window, "frmCDDR"
    /// @param caption title of the window
    CalculatorWindow(Program& program, const QString& name, const QString& caption);

    /// The text of the notice line.
    QString notice() const;

protected:
    Program& program() { return m_program; }
    const Program& program() const { return m_program; }

    // Controls. They have no place yet: put them into layouts.

    /// Text boxes name(0) .. name(N - 1) with their accessible names, unit included.
    template <std::size_t N>
    std::array<EntryBox*, N> addTextBoxes(const QString& name,
                                          const std::array<const char*, N>& accessibleNames)
    {
        std::array<EntryBox*, N> boxes{};
        for (std::size_t i = 0; i < N; ++i)
            boxes[i] = addTextBox(memberName(name, static_cast<int>(i)), accessibleNames[i]);
        return boxes;
    }
    EntryBox* addTextBox(const QString& name, const QString& accessibleName);
    /// A text box that calculates when a key is released.
    KeyUpBox* addKeyUpBox(const QString& name, const QString& accessibleName);
    PositionBox* addPositionBox(const QString& name, Axis axis, const QString& accessibleName);

    /// Result labels name(0) .. name(N - 1).
    template <std::size_t N>
    std::array<ResultLabel*, N> addLabels(const QString& name)
    {
        std::array<ResultLabel*, N> labels{};
        for (std::size_t i = 0; i < N; ++i)
            labels[i] = addLabel(memberName(name, static_cast<int>(i)));
        return labels;
    }
    ResultLabel* addLabel(const QString& name);

    /// The texts of Count boxes from First on.
    template <std::size_t First, std::size_t Count, typename Boxes>
    static std::array<std::string, Count> texts(const Boxes& boxes)
    {
        std::array<std::string, Count> result;
        for (std::size_t i = 0; i < Count; ++i)
            result[i] = boxes[First + i]->value();
        return result;
    }

    // Rows of a grid: caption, control, unit.

    static void addEntryRow(QGridLayout* grid, int row, const QString& caption, EntryBox* box,
                            const QString& unit);
    static void addResultRow(QGridLayout* grid, int row, const QString& caption, ResultLabel* label,
                             const QString& unit);
    /// Makes the body scroll where the screen is too small for it. @return what takes the controls
    QWidget* scrollBody();
    /// Puts a scroll area of the window's own into the body.
    void setScrollArea(FollowingScrollArea* area);
    /// Puts a row of controls between the body and the notice line.
    void addBelow(QWidget* widget);

    // Calculations.

    /// A calculation of the window: what makes it run and what it fills.
    struct Calculation {
        QString title;                  ///< how the notice line calls it
        std::vector<QLineEdit*> inputs; ///< every change of one of these runs it, in a
                                        ///< KeyUpBox every key released
        std::vector<QLabel*> results;   ///< blanked when it ends in an arithmetic error
        std::function<void()> run;
    };
    /// Adds a calculation and returns its number. It runs at every change of its inputs, when the
    /// settings have been loaded, and when the distance unit changes.
    int addCalculation(Calculation calculation);
    void calculate(int number);
    void calculateAll();

    /// Shows results dimmed while they do not belong to the inputs any more.
    void setDimmed(const std::vector<QLabel*>& labels, bool dimmed);

    /// Says something in the notice line under a key of the caller's; an empty text takes it back.
    void setNotice(const QString& key, const QString& text);

    // Settings.

    using Save = std::function<Record()>;
    using Load = std::function<void(const Record&)>;
    using Salvage = std::function<void(const std::string& bytes)>;
    /// Names the window's settings file and how its record is filled and taken over.
    /// @param salvage what is done with the bytes of a file that is not the record; it stays as it
    ///                is until the officer consents
    void useSettings(const std::string& file, std::vector<Kind> kinds, Save save, Load load,
                     Salvage salvage = {});
    /// The same for a record that is the texts of boxes, in their order.
    void useTextSettings(const std::string& file, std::vector<QLineEdit*> boxes);
    /// Fills the window from its file, then calculates everything once.
    void loadSettings();
    bool isLoading() const { return m_loading; }
    /// Writes the file while the window stays open; a fault goes to the notice line.
    void saveSettingsNow();
    /// The same when the present user action is over: however often it is called meanwhile, the
    /// file is written once.
    void saveSettingsSoon();
    /// Writes the file at once when the officer asked for something to be kept. For a file that
    /// could not be read the officer is asked, once while the window is open; a refusal stays in
    /// the notice line.
    void saveSettingsAsked();

    // Menus. Indices count from 0 in the order of the calls.

    QMenu* addMenu(const QString& caption, const QString& name);
    QAction* addEntry(QMenu* menu, const QString& array, int index, const QString& caption,
                      std::function<void()> action);

    using Text = std::function<std::string()>;
    void addStoreSingle(const QString& caption, Text value);
    QAction* addStorePosition(const QString& caption, Text latitude, Text longitude);
    void addRecallSingle(const QString& caption, QLineEdit* box);
    /// What a recall entry does: asks and fills the box on Yes.
    void recallSingle(QLineEdit* box);
    void addRecallPosition(const QString& caption, QLineEdit* latitude, QLineEdit* longitude);

    /// The same for boxes that are chosen when the entry is: those of the row with the focus.
    using PositionBoxes = std::function<std::pair<QLineEdit*, QLineEdit*>()>;
    void addRecallPosition(const QString& caption, PositionBoxes boxes);

    /// A menu array that opens the other windows of the program.
    void addLinksMenu(const QString& array);

    /// Prints the window as it stands, through the system's print dialog.
    void printForm();
    /// Prints a page of the window's own making, through the system's print dialog.
    /// @param draw gets a painter in device pixels and the room of the page in them
    void printPage(const std::function<void(QPainter&, const QRect&)>& draw);

    /// The area for the window's own controls, above the notice line.
    QWidget* body() const { return m_body; }

    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    /// Applies the colour scheme to controls with colours of their own; call the base first.
    virtual void applyColours();

private:
    QMenu* memoMenu(QMenu*& menu, const QString& caption, const QString& name);
    QAction* addMemoEntry(QMenu*& menu, const QString& title, const QString& array,
                          const QString& caption, std::function<void()> action);

    Program& m_program;
    QWidget* m_body;
    QLabel* m_notice;
    std::map<QString, QString> m_notices;
    std::set<QLabel*> m_dimmed;
    std::vector<Calculation> m_calculations;
    std::unique_ptr<SettingsFile> m_settings;
    Save m_save;
    Load m_load;
    Salvage m_salvage;
    bool m_overwriteRefused = false;
    bool m_loading = false;
    bool m_savingSoon = false;
    FollowingScrollArea* m_scrollArea = nullptr;
    bool m_fitted = false;
    QMenu* m_mnuMemo = nullptr;
    QMenu* m_mnuRem = nullptr;
};

} // namespace korvel
