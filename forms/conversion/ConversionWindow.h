// SPDX-License-Identifier: MIT
#pragma once

#include "navlib/ship/unit_tables.h"
#include "shell/layout/FocusFollower.h"
#include "shell/window/CalculatorWindow.h"

namespace korvel
{

/// What one conversion window has of its own.
struct ConversionKind {
    const char* name;              ///< class name of the window
    const char* caption;           ///< its title
    const char* file;              ///< its settings file
    const char* box;               ///< name of its control array
    NavFunc113::Quantity quantity; ///< its unit table
};

/// A box a unit; whichever is typed in leads the others, at every key released.
///
/// Record of the settings file: the texts of the boxes in the order of the unit table, then the
/// index of the box that leads.
class ConversionWindow : public CalculatorWindow
{
public:
    ConversionWindow(Program& program, const ConversionKind& kind);

protected:
    WorkingPaper paper() const override;
    void applyColours() override;

private:
    void addBoxes(const char* name);
    void addCalculation();
    void layOut();
    void addMenus();
    void useConversionSettings(const char* file);
    void convert();
    void dimOthers();
    void clearBoxes();
    void focusMoved(const QWidget* now);
    void dressBoxes();

    NavFunc113::Quantity m_quantity;
    std::vector<KeyUpBox*> m_boxes;
    std::size_t m_lead = 0;             ///< the box that was typed in last
    const KeyUpBox* m_inHand = nullptr; ///< the box that has the focus, or had it last
    FocusFollower m_focus;
};

/// The five windows, by the names that the menus know.
class frmArea : public ConversionWindow
{
public:
    explicit frmArea(Program& program);
};

class frmLength : public ConversionWindow
{
public:
    explicit frmLength(Program& program);
};

class frmVolume : public ConversionWindow
{
public:
    explicit frmVolume(Program& program);
};

class frmPressure : public ConversionWindow
{
public:
    explicit frmPressure(Program& program);
};

class frmWeight : public ConversionWindow
{
public:
    explicit frmWeight(Program& program);
};

} // namespace korvel
