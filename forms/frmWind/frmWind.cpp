// SPDX-License-Identifier: MIT
#include "forms/frmWind/frmWind.h"

#include "app/reading/Reading.h"
#include "forms/frmWind/WindFields.h"
#include "forms/frmWind/WindPictureBox.h"
#include "forms/frmWind/WindWorking.h"
#include "shell/controls/Options.h"
#include "shell/layout/Panels.h"
#include "shell/machine/AsQString.h"

#include <QGridLayout>
#include <QGroupBox>
#include <QRadioButton>
#include <QSignalBlocker>

namespace korvel
{

frmWind::frmWind(Program& program)
    : CalculatorWindow(program, "frmWind", "True wind"), m_txtWind(addFields(WindFields)),
      m_lblWind(addResults(WindResults))
{
    m_picWind = new WindPictureBox;
    addOptions();

    auto* columns = new QHBoxLayout(scrollBody());
    layOutBody(*columns, Spacing::Groups);
    auto* left = new QVBoxLayout;
    layOutBody(*left, Spacing::Groups);
    left->addWidget(layOutInputs());
    left->addWidget(layOutResults());
    left->addWidget(layOutOptions());
    left->addStretch();
    columns->addLayout(left);
    columns->addWidget(m_picWind, 1);
    foldColumns();
    menus().addShipNow(WindowMenus::ShipFigure::Course, "into course", m_txtWind[0]);
    menus().addShipNow(WindowMenus::ShipFigure::Speed, "into speed", m_txtWind[1]);
    menus().addLinks("mnuWind");

    m_calculation =
        calculations().add({"True wind", m_txtWind.all(), m_lblWind.all(), [this] { runWind(); }});
    connectPicture();
    nameSettings();
    loadSettings();
    m_txtWind[0]->setFocus();
}

void frmWind::addOptions()
{
    const char* const captions[] = {"Head &up", "&North up"};
    for (std::size_t i = 0; i < m_optWind.size(); ++i) {
        m_optWind[i] = new QRadioButton(captions[i]);
        m_optWind[i]->setObjectName(memberName("optWind", static_cast<int>(i)));
        connect(m_optWind[i], &QRadioButton::clicked, this, &frmWind::optWind_Click);
    }
    m_optWind[0]->setChecked(true);
}

QGroupBox* frmWind::layOutInputs()
{
    auto* group = new QGroupBox("Ship and apparent wind");
    auto* grid = gridOf(group);
    for (std::size_t i = 0; i < m_txtWind.size(); ++i)
        m_txtWind.addRow(grid, static_cast<int>(i), i);
    grid->setColumnStretch(2, 1);
    return group;
}

QGroupBox* frmWind::layOutResults()
{
    auto* group = new QGroupBox("True wind");
    auto* answers = new AnswerStrip;
    m_lblWind.addAnswer(answers, 0, "WNWbW <000>");
    m_lblWind.addAnswer(answers, 1, "Beaufort 9 (100.0Kn)");
    gridOf(group)->addWidget(answers, 0, 0);
    return group;
}

QGroupBox* frmWind::layOutOptions()
{
    auto* group = new QGroupBox("Picture");
    auto* row = new QHBoxLayout(group);
    row->setContentsMargins(0, 8, 0, 0);
    row->addLayout(switchOf(m_optWind));
    row->addStretch();
    return group;
}

void frmWind::connectPicture()
{
    connect(m_picWind, &PictureBox::pressed, this, [this](QPointF place, Qt::MouseButtons buttons) {
        if (buttons == Qt::LeftButton) picWind_MouseDown(place);
    });
    connect(m_picWind, &PictureBox::pointed, this, [this](QPointF place) {
        if (m_dragging) picWind_MouseMove(place);
    });
    connect(m_picWind, &PictureBox::released, this, [this] {
        if (m_dragging) picWind_MouseUp();
    });
}

void frmWind::nameSettings()
{
    std::vector<FieldKind> kinds = recordKinds(m_txtWind.all());
    kinds.push_back(FieldKind::Number);
    record().use(
        "KV_Wind.ini", std::move(kinds),
        [this] {
            Record values;
            for (const EntryBox* box : m_txtWind.all())
                values.emplace_back(box->value());
            values.emplace_back(orientation() == WindOrientation::NorthUp ? 1.0 : 0.0);
            return values;
        },
        [this](const Record& values) {
            for (std::size_t i = 0; i < m_txtWind.size(); ++i)
                m_txtWind[i]->setText(asQString(textOf(values[i])));
            m_optWind[numberOf(values[4]) == 1 ? 1 : 0]->setChecked(true);
        });
}

WindOrientation frmWind::orientation() const
{
    return m_optWind[1]->isChecked() ? WindOrientation::NorthUp : WindOrientation::HeadUp;
}

void frmWind::runWind()
{
    m_wind = {};
    m_picWind->setWind({}, orientation()); // also when the library stops the calculation
    m_wind = CalculateWind(m_txtWind.texts<0, 4>());
    m_lblWind.show(m_wind);
    m_picWind->setWind(m_wind.figures, orientation());
    setNotice("input", asQString(m_wind.notice), levelBeside(m_wind.figures.has_value()));
}

WorkingPaper frmWind::paper() const
{
    WorkingPaper paper = CalculatorWindow::paper();
    paper.workings = {trueWindWorking(m_wind)};
    paper.limits = {"True north is that of the course: a gyro or compass error goes into the "
                    "direction of the wind whole",
                    "Leeway and current are not allowed for: the wind is that over the water"};
    return paper;
}

std::vector<PaperPicture> frmWind::paperPictures()
{
    if (!m_wind.figures) return {};
    const QString up = orientation() == WindOrientation::NorthUp ? "north up" : "head up";
    return {paperPicture(*m_picWind, "Wind triangle, knots, " + up, QSize(460, 480))};
}

void frmWind::optWind_Click()
{
    m_picWind->setWind(m_wind.figures, orientation());
}

void frmWind::picWind_MouseDown(QPointF place)
{
    m_dragging = true;
    m_picWind->holdScale(true);
    picWind_MouseMove(place);
}

void frmWind::picWind_MouseMove(QPointF place)
{
    const WindPointer pointer = windAt({place.x(), place.y()}, orientation(),
                                       NavFunc113::Degrees(readNumber(m_txtWind[0]->value())));
    m_picWind->setPointerText(place, asQString(pointer.text));
    const auto write = [](EntryBox* box, const std::string& text) {
        const QSignalBlocker quiet(box);
        box->setText(asQString(text));
    };
    write(m_txtWind[2], pointer.relative);
    write(m_txtWind[3], pointer.apparentSpeed);
    // Direction and speed change together: one calculation for both.
    calculations().run(m_calculation);
}

void frmWind::picWind_MouseUp()
{
    m_dragging = false;
    m_picWind->holdScale(false);
    m_picWind->setPointerText({}, {});
}

} // namespace korvel
