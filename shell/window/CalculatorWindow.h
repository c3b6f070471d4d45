// SPDX-License-Identifier: MIT
#pragma once

#include "shell/controls/FieldBoxes.h"
#include "shell/controls/NoticeLine.h"
#include "shell/controls/ResultLabels.h"
#include "shell/paper/PagePrinter.h"
#include "shell/paper/PaperMenu.h"
#include "shell/program/Program.h"
#include "shell/program/WindowMenus.h"
#include "shell/screen/ZoomSizes.h"
#include "shell/window/CalculationRunner.h"
#include "shell/window/WindowRecord.h"

#include <QMainWindow>
#include <QPointer>

#include <array>
#include <set>
#include <vector>

namespace korvel
{

class FollowingScrollArea;
class PaperWindow;
class PictureBox;

/// A calculator window: its body, its notice line at the foot, and the parts that it is made of.
///
/// A window's constructor makes its fields and labels, adds its calculations and menus, names its
/// record and calls loadSettings() last.
class CalculatorWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// @param name    class name of the window, "frmCDDR"
    /// @param caption title of the window
    CalculatorWindow(Program& program, const QString& name, const QString& caption);

    /// Goes to a place of the catalogue: the page whose button has this name, or the control of the
    /// name, where the window knows no other.
    virtual void goTo(const QString& place);

    /// The text of the notice line.
    QString notice() const { return m_notices->text(); }

protected:
    Program& program() { return m_program; }
    const Program& program() const { return m_program; }

    // The parts.

    CalculationRunner& calculations() { return *m_calculations; }
    WindowRecord& record() { return *m_record; }
    WindowMenus& menus() { return m_menus; }
    const PagePrinter& printer() const { return m_printer; }

    // The working paper.

    /// What the paper says. The base tells all fields as inputs, all results that are there and
    /// the notice line; a window adds what it calculated.
    virtual WorkingPaper paper() const;
    /// The pictures of the paper, drawn in the colours of paper.
    virtual std::vector<PaperPicture> paperPictures() { return {}; }
    /// A picture drawn for paper, whatever size and shape it has in the window.
    /// @param size in pixels of a screen; a sheet is 640 wide
    static PaperPicture paperPicture(PictureBox& picture, const QString& caption,
                                     const QSize& size);
    /// A result as it goes into a paper.
    /// @param inFull how the figure is written out, when the label shows it otherwise
    static PaperFigure paperFigure(const ResultLabel& label, const std::string& inFull = {});
    /// Shows the pages of the paper, and prints them when the officer wants it.
    void printPaper() { m_paperMenu->print(); }

    /// Says something in the notice line under a key of the caller's; an empty text takes it back.
    void setNotice(const QString& key, const QString& text, NoticeLevel level = NoticeLevel::Remark)
    {
        m_notices->say(key, text, level);
    }

    /// Says what was done; no remark on the figures, it goes after a moment.
    void sayForAWhile(const QString& said) { sayForAWhileAs(NoticeLevel::Done, said); }
    void sayForAWhileAs(NoticeLevel level, const QString& said);

    /// Fills the window from its record, then calculates everything once.
    void loadSettings();

    // Controls. They have no place yet: put them into layouts.

    /// The boxes of a table of fields, which lasts as long as the program.
    FieldBoxes addFields(std::span<const Field> table);

    /// The labels of a table of results, which lasts as long as the program.
    template <typename Source, std::size_t N>
    ResultLabels<Source> addResults(const std::array<Result<Source>, N>& table)
    {
        ResultLabels<Source> labels(table, m_body);
        m_labels.insert(m_labels.end(), labels.all().begin(), labels.all().end());
        return labels;
    }

    ResultLabel* addLabel(const QString& name);

    // Places.

    /// The area for the window's own controls, above the notice line.
    QWidget* body() const { return m_body; }
    /// Makes the body scroll where the screen is too small for it. @return what takes the controls
    QWidget* scrollBody();
    /// Lets the groups in it stand one below the other where the window is narrow; called when they
    /// are laid out.
    void foldColumns();
    /// Keeps the answers above what scrolls.
    void pinAnswers(QWidget* answers);
    /// Puts a scroll area of the window's own into the body.
    void setScrollArea(FollowingScrollArea* area);
    /// Opens the window as large as it wants and the screen allows. A scroll area asks for this by
    /// itself; so should a window with a picture.
    void fitToScreen() { m_fitsScreen = true; }
    /// Puts a row of controls between the body and the notice line.
    void addBelow(QWidget* widget);
    /// The same for what may need many lines: it is as high as its content, up to a third of the
    /// window, and scrolls beyond that.
    void addStrip(QWidget* content);

    // Colours.

    /// Shows results dimmed while they do not belong to the inputs any more.
    void setDimmed(const std::vector<QLabel*>& labels, bool dimmed);
    void setDimmed(QWidget& result, bool dimmed);
    bool isDimmed(QWidget* result) const { return m_dimmed.contains(result); }
    /// Applies the colour scheme to controls with colours of their own; call the base first.
    virtual void applyColours();

    void closeEvent(QCloseEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    PaperDocument paperDocument();
    void addPaperMenu();
    void sayThatItIsFull(const EntryBox& box);
    void openPaper();
    void letResultsBeStored();
    void storeInMemo(const QString& figure);
    void fit();
    void placeStrip();
    void zoom();

    Program& m_program;
    QWidget* m_body;
    NoticeLine* m_notices;
    CalculationRunner* m_calculations;
    WindowRecord* m_record;
    WindowMenus m_menus;
    PagePrinter m_printer;
    PaperMenu* m_paperMenu;
    QPointer<PaperWindow> m_paperWindow;
    std::vector<FieldBoxes> m_fields;
    std::vector<ResultLabel*> m_labels;
    std::set<QWidget*> m_dimmed;
    FollowingScrollArea* m_scrollArea = nullptr;
    FollowingScrollArea* m_strip = nullptr;
    ZoomSizes m_sizes;
    bool m_fitsScreen = false;
    bool m_wasShown = false;
};

} // namespace korvel
