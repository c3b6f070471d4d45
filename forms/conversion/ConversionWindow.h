// SPDX-License-Identifier: MIT
#pragma once

#include "forms/conversion/ConversionFields.h"
#include "forms/conversion/ConversionWorking.h"
#include "navlib/ship/unit_tables.h"
#include "shell/layout/FocusFollower.h"
#include "shell/window/CalculatorWindow.h"

class QGridLayout;

namespace korvel
{

/// A box a unit; whichever is typed in leads the others, at every key released.
///
/// Record of the settings file: the texts of the boxes in the order of the unit table, then the
/// index of the box that leads. A record of lines with keys holds the box that leads alone, and the
/// conditions.
class ConversionWindow : public CalculatorWindow
{
public:
    ConversionWindow(Program& program, NavFunc113::Quantity quantity);

protected:
    WorkingPaper paper() const override;
    void applyColours() override;

private:
    struct Kind;
    static const Kind& kindOf(NavFunc113::Quantity quantity);
    ConversionWindow(Program& program, const Kind& kind);

    void addBoxes(const char* name);
    void addCalculation();
    void layOut();
    void addMenus();
    void useConversionSettings(const char* file);
    void useConversionLines(const Kind& kind);
    void addConditions(QGridLayout& grid);
    NavFunc113::UnitConditions conditions(Remarks& remarks) const;
    NavFunc113::UnitConditions conditions() const;
    Converted converted() const;
    void convert();
    void dimOthers();
    void clearBoxes();
    void focusMoved(const QWidget* now);
    void dressBoxes();

    NavFunc113::Quantity m_quantity;
    ConditionFields m_needs;
    FieldBoxes m_conditions;
    std::vector<KeyUpBox*> m_boxes;
    std::size_t m_lead{};               ///< the box that was typed in last
    const KeyUpBox* m_inHand = nullptr; ///< the box that has the focus, or had it last
    FocusFollower m_focus;
};

/// The windows, by the names that the menus know.
class frmArea : public ConversionWindow
{
public:
    explicit frmArea(Program& program) : ConversionWindow(program, NavFunc113::Quantity::Area) {}
};

class frmLength : public ConversionWindow
{
public:
    explicit frmLength(Program& program) : ConversionWindow(program, NavFunc113::Quantity::Length)
    {
    }
};

class frmVolume : public ConversionWindow
{
public:
    explicit frmVolume(Program& program) : ConversionWindow(program, NavFunc113::Quantity::Volume)
    {
    }
};

class frmPressure : public ConversionWindow
{
public:
    explicit frmPressure(Program& program)
        : ConversionWindow(program, NavFunc113::Quantity::Pressure)
    {
    }
};

class frmWeight : public ConversionWindow
{
public:
    explicit frmWeight(Program& program) : ConversionWindow(program, NavFunc113::Quantity::Weight)
    {
    }
};

class frmTemperature : public ConversionWindow
{
public:
    explicit frmTemperature(Program& program)
        : ConversionWindow(program, NavFunc113::Quantity::Temperature)
    {
    }
};

class frmSpeed : public ConversionWindow
{
public:
    explicit frmSpeed(Program& program) : ConversionWindow(program, NavFunc113::Quantity::Speed) {}
};

class frmDensity : public ConversionWindow
{
public:
    explicit frmDensity(Program& program) : ConversionWindow(program, NavFunc113::Quantity::Density)
    {
    }
};

class frmFlow : public ConversionWindow
{
public:
    explicit frmFlow(Program& program) : ConversionWindow(program, NavFunc113::Quantity::Flow) {}
};

class frmEnergy : public ConversionWindow
{
public:
    explicit frmEnergy(Program& program) : ConversionWindow(program, NavFunc113::Quantity::Energy)
    {
    }
};

class frmAngle : public ConversionWindow
{
public:
    explicit frmAngle(Program& program) : ConversionWindow(program, NavFunc113::Quantity::Angle) {}
};

} // namespace korvel
