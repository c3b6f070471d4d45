// SPDX-License-Identifier: MIT
#include "forms/frmSunSight/SightPicture.h"
#include "forms/frmSunSight/frmSunSight.h"

#include <QAction>
#include <QButtonGroup>
#include <QCheckBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QListWidget>
#include <QMenu>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

/// What the sun sight window is made of and where it stands; what it does is in frmSunSight.cpp.
namespace korvel
{
namespace
{

constexpr std::array<Field, 10> sightRows = {{
    {"txtSunSight(0)", "Date", "Date of the sight, year/month/day", FieldKind::Moment,
     "yyyy/mm/dd"},
    {"txtSunSight(1)", "Time by the watch", "Time of the sight by the watch, hours:minutes:seconds",
     FieldKind::Moment, "hh:mm:ss"},
    {"txtSunSight(2)", "TD", "Time difference of ship's mean time, hours, east positive",
     FieldKind::Number, "hours, east +"},
    {"txtSunSight(3)", "Watch error", "Watch error, seconds, fast positive", FieldKind::Number,
     "s, fast +"},
    {"txtSunSight(4)", "Sextant altitude Hs", "Sextant altitude, degrees.minutes",
     FieldKind::Number, "deg.min"},
    {"txtSunSight(5)", "Index error", "Index error, minutes of arc, on the arc positive",
     FieldKind::Number, "', on the arc +"},
    {"txtSunSight(6)", "Height of eye", "Height of eye, metres", FieldKind::Number, "m"},
    {"txtSunSight(7)", "Air temperature", "Air temperature, degrees Celsius", FieldKind::Number,
     "°C"},
    {"txtSunSight(8)", "Sea temperature", "Sea temperature, degrees Celsius", FieldKind::Number,
     "°C"},
    {"txtSunSight(9)", "Pressure", "Air pressure, hectopascals", FieldKind::Number, "hPa"},
}};
constexpr std::array<Field, 3> runRows = {{
    {"txtSunRun(0)", "Time of DR",
     "Time of the DR position, UTC, year/month/day hours:minutes:seconds", FieldKind::Moment,
     "UTC"},
    {"txtSunRun(1)", "Course", "Course made good, degrees true", FieldKind::Number, "° made good"},
    {"txtSunRun(2)", "Speed", "Speed made good, knots", FieldKind::Number, "kn made good"},
}};
constexpr std::array<Field, 3> sigmaRows = {{
    {"txtSunSigma(0)", "Sigma", "Standard deviation of one line, nautical miles", FieldKind::Number,
     "nm"},
    {"txtSunSigma(1)", "Run", "Error of the run, per cent of the distance", FieldKind::Number, "%"},
    {"txtSunSigma(2)", "Course", "Error of the course made good, degrees", FieldKind::Number, "°"},
}};

constexpr std::array<Field, 2> DRRows = {{
    {"txtSunDR(0)", "Latitude", "DR latitude, degrees.minutes, north positive, up to 89",
     FieldKind::Latitude},
    {"txtSunDR(1)", "Longitude", "DR longitude, degrees.minutes, east positive",
     FieldKind::Longitude},
}};

void addEntryRow(QGridLayout* grid, int row, const QString& caption, EntryBox* box,
                 const QString& unit)
{
    auto* label = new QLabel(caption);
    label->setBuddy(box);
    grid->addWidget(label, row, 0);
    grid->addWidget(box, row, 1);
    grid->addWidget(new QLabel(unit), row, 2, 1, -1);
}

/// Two options that exclude each other.
std::array<QRadioButton*, 2> options(QObject* owner, const char* array, const char* first,
                                     const char* second)
{
    auto* group = new QButtonGroup(owner);
    std::array<QRadioButton*, 2> made{new QRadioButton(first), new QRadioButton(second)};
    for (int i = 0; i < 2; ++i) {
        made[static_cast<std::size_t>(i)]->setObjectName(memberName(array, i));
        group->addButton(made[static_cast<std::size_t>(i)]);
    }
    made[0]->setChecked(true);
    return made;
}

QGridLayout* gridOf(QGroupBox* group)
{
    auto* grid = new QGridLayout(group);
    grid->setVerticalSpacing(1);
    grid->setContentsMargins(6, 2, 6, 2);
    return grid;
}

/// Sentences, not figures, are read in the size of captions. Their room is fixed, so that nothing
/// moves while the officer types.
void makeSentence(ResultLabel* label, int lines)
{
    label->setFont(QFont());
    label->setWordWrap(true);
    label->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
    label->setFixedHeight(lines * label->fontMetrics().lineSpacing());
    label->setAlignment(Qt::AlignLeft | Qt::AlignTop);
}

/// Room for a result that is still to come.
void setRoom(ResultLabel* label, const char* sample)
{
    const QFontMetrics metrics = label->fontMetrics();
    label->setMinimumSize(metrics.horizontalAdvance(sample), metrics.height());
}

} // namespace

void frmSunSight::addBoxes()
{
    const auto take = [](auto& boxes, const FieldBoxes& fields) {
        for (std::size_t i = 0; i < boxes.size(); ++i)
            boxes[i] = fields[i];
    };
    take(m_txtSunSight, addFields(sightRows));
    const FieldBoxes DR = addFields(DRRows);
    m_txtSunDR = {DR.position(0), DR.position(1)};
    take(m_txtSunRun, addFields(runRows));
    take(m_txtSunSigma, addFields(sigmaRows));
    m_txtSunRun[0]->setToolTip("Empty: the time of the last sight that is on");
    m_txtSunSight[7]->setPlaceholderText("10");
    m_txtSunSight[8]->setPlaceholderText("as the air");
    m_txtSunSight[9]->setPlaceholderText("1013");
    m_txtSunSigma[0]->setPlaceholderText("1");
    m_txtSunSigma[1]->setPlaceholderText("5");
    m_txtSunSigma[2]->setPlaceholderText("2");

    std::vector<EntryBox*> order(m_txtSunSight.begin(), m_txtSunSight.end());
    order.insert(order.end(), m_txtSunDR.begin(), m_txtSunDR.end());
    order.insert(order.end(), m_txtSunRun.begin(), m_txtSunRun.end());
    setEntryOrder(order);
    setEntryOrder({m_txtSunSigma.begin(), m_txtSunSigma.end()});
}

void frmSunSight::addOptions()
{
    m_optSunScale = options(this, "optSunScale", "UTC", "SMT");
    m_optSunLimb = options(this, "optSunLimb", "Lower", "Upper");
    m_optSunScale[0]->setAccessibleName("The watch keeps UTC");
    m_optSunScale[1]->setAccessibleName("The watch keeps ship's mean time");
    m_optSunLimb[0]->setAccessibleName("Lower limb");
    m_optSunLimb[1]->setAccessibleName("Upper limb");
    m_chkSunMeasured = new QCheckBox("Scale by the residuals");
    m_chkSunMeasured->setObjectName("chkSunMeasured");
    m_chkSunMeasured->setToolTip("Ellipse from the sigma that the residuals of three or more lines "
                                 "say, instead of the assumed one");
}

void frmSunSight::addResults()
{
    m_lblSunTime = addLabels<3>("lblSunTime");
    m_lblSunValue = addLabels<worksheetLines>("lblSunValue");
    for (std::size_t i = 0; i < worksheetLines; ++i) {
        m_lblSunTerm[i] = new QLabel;
        m_lblSunTerm[i]->setObjectName(memberName("lblSunTerm", static_cast<int>(i)));
        m_lblSunValue[i]->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
        setRoom(m_lblSunValue[i], "000.-00'0");
    }
    m_lblSunLine = addLabels<6>("lblSunLine");
    m_lblSunNoon = addLabels<4>("lblSunNoon");
    m_lblSunFix = addLabels<5>("lblSunFix");
    m_lblSunCursor = addLabels<2>("lblSunCursor");
    for (ResultLabel* label : m_lblSunTime)
        makeSentence(label, 1);
    makeSentence(m_lblSunNoon[0], 1);
    makeSentence(m_lblSunNoon[1], 1);
    makeSentence(m_lblSunNoon[3], 2);
    makeSentence(m_lblSunFix[2], 1);
    makeSentence(m_lblSunFix[3], 2);
    makeSentence(m_lblSunFix[4], 3);
    for (ResultLabel* label : m_lblSunLine)
        setRoom(label, "00-.00'0N 000-.00'0W");
    setRoom(m_lblSunNoon[2], "00-.00'0N");
    setRoom(m_lblSunFix[0], "00-.00'0N ");
    setRoom(m_lblSunFix[1], "000-.00'0W");
}

QPushButton* frmSunSight::addButton(const QString& name, const QString& caption, const QString& tip,
                                    void (frmSunSight::*action)())
{
    auto* button = new QPushButton(caption, body());
    button->setObjectName(name);
    button->setToolTip(tip);
    button->setAutoDefault(false);
    connect(button, &QPushButton::clicked, this, action);
    return button;
}

void frmSunSight::addList()
{
    m_lstSunSight = new QListWidget(body());
    m_lstSunSight->setObjectName("lstSunSight");
    m_lstSunSight->setAccessibleName("Recorded sights; the space bar switches one on and off");
    m_lstSunSight->setToolTip("The space bar switches the chosen sight on and off");
    // What height there is goes to the plot and the list; neither asks for any.
    m_lstSunSight->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Ignored);
    const QFontMetrics metrics = m_lstSunSight->fontMetrics();
    m_lstSunSight->setMinimumHeight(metrics.height() * 5);
    m_lstSunSight->setMinimumWidth(
        metrics.horizontalAdvance("[] 0000/00/00 00:00:00 UTC  Hs 00.-00'0  Ho 00.-00'0 []"));
    connect(m_lstSunSight, &QListWidget::itemChanged, this, [this](QListWidgetItem* item) {
        m_list.setOn(static_cast<std::size_t>(m_lstSunSight->row(item)),
                     item->checkState() == Qt::Checked);
        calculations().run(m_fixCalculation);
        record().saveNow();
    });
    m_picSunSight = new SightPicture(body());
    connect(m_picSunSight, &PictureBox::pointed, this,
            [this](QPointF user, Qt::MouseButtons) { showCursor(user); });
    connect(m_picSunSight, &PictureBox::left, this, [this] {
        for (ResultLabel* label : m_lblSunCursor)
            label->clear();
    });
}

void frmSunSight::addMenus()
{
    QMenu* sight = menus().add("&Sight", "mnuSight");
    menus()
        .addEntry(sight, "mnuSight", 0, "&Mark: present time into the sight",
                  [this] { cmdMark_Click(); })
        ->setShortcut(Qt::Key_F5);
    menus()
        .addEntry(sight, "mnuSight", 1, "&Record the sight", [this] { cmdRecord_Click(); })
        ->setShortcut(Qt::Key_F6);
    menus().addEntry(sight, "mnuSight", 2, "&Edit the chosen sight", [this] { cmdEdit_Click(); });
    menus().addEntry(sight, "mnuSight", 3, "&Delete the chosen sight",
                     [this] { cmdDelete_Click(); });
    menus().addEntry(sight, "mnuSight", 4, "&Fix becomes the DR position",
                     [this] { fixBecomesDR(); });
    menus().addEntry(sight, "mnuSight", 5, "&Print", [this] { printForm(); });
    QMenu* clear = menus().add("&Clear", "mnuAC");
    menus().addEntry(clear, "mnuAC", 0, "&Sight being entered", [this] { clearSight(); });
    menus().addEntry(clear, "mnuAC", 1, "&All recorded sights", [this] { deleteAll(); });

    menus().addStorePosition(
        "&Fix", [this] { return m_fix.memoLatitude; }, [this] { return m_fix.memoLongitude; });
    menus().addStorePosition(
        "&DR position", [this] { return m_txtSunDR[0]->value(); },
        [this] { return m_txtSunDR[1]->value(); });
    menus().addStoreSingle("&Azimuth Zn", [this] {
        return m_line.azimuth ? memoText(*m_line.azimuth) : std::string();
    });
    menus().addRecallPosition("into &DR position", m_txtSunDR[0], m_txtSunDR[1]);
    menus().addLinks("mnuSunSight");
}

void frmSunSight::layOut()
{
    QWidget* content = scrollBody();
    auto* columns = new QHBoxLayout(content);
    columns->setContentsMargins(0, 0, 0, 0);
    const auto column = [columns](std::initializer_list<QWidget*> parts, int stretch) {
        auto* made = new QVBoxLayout;
        made->setSpacing(4);
        for (QWidget* part : parts)
            made->addWidget(part);
        columns->addLayout(made, stretch);
        return made;
    };
    column({layOutSight(), layOutTrack(), layOutQuality()}, 0)->addStretch(1);
    column({layOutWorksheet(), layOutLine(), layOutNoon()}, 0)->addStretch(1);
    auto* right = column({layOutPlot(), layOutSights(), layOutFix()}, 1);
    right->setStretch(0, 3);
    right->setStretch(1, 1);
}

QGroupBox* frmSunSight::layOutSight()
{
    auto* group = new QGroupBox("Sight of the Sun");
    auto* grid = gridOf(group);
    int row = 0;
    const auto addOptionRow = [&](const char* caption, const auto& buttons) {
        auto* line = new QHBoxLayout;
        for (QRadioButton* button : buttons)
            line->addWidget(button);
        line->addStretch(1);
        grid->addWidget(new QLabel(caption), row, 0);
        grid->addLayout(line, row++, 1, 1, 2);
    };
    for (std::size_t i = 0; i < sightRows.size(); ++i) {
        if (i == 2) addOptionRow("The watch keeps", m_optSunScale);
        if (i == 5) addOptionRow("Limb", m_optSunLimb);
        addEntryRow(grid, row++, sightRows[i].caption, m_txtSunSight[i], sightRows[i].unit);
        m_txtSunSight[i]->setMinimumWidth(
            m_txtSunSight[i]->fontMetrics().horizontalAdvance("0000/00/00 00"));
    }
    auto* buttons = new QHBoxLayout;
    buttons->addWidget(addButton("cmdMark", "Mar&k (F5)", "Present time, to the second",
                                 &frmSunSight::cmdMark_Click));
    m_cmdRecord = addButton("cmdRecord", "Rec&ord (F6)", "Keeps the sight in the list",
                            &frmSunSight::cmdRecord_Click);
    m_cmdNew = addButton("cmdNew", "&New", "Leaves the sight in the list as it was",
                         &frmSunSight::cmdNew_Click);
    m_cmdNew->setEnabled(false);
    buttons->addWidget(m_cmdRecord);
    buttons->addWidget(m_cmdNew);
    grid->addLayout(buttons, row, 0, 1, 3);
    return group;
}

QGroupBox* frmSunSight::layOutTrack()
{
    auto* group = new QGroupBox("Dead reckoning");
    auto* grid = gridOf(group);
    const char* const captions[] = {"DR latitude", "DR longitude"};
    for (std::size_t i = 0; i < 2; ++i) {
        m_txtSunDR[i]->setBriefEcho();
        const int row = static_cast<int>(i);
        auto* label = new QLabel(captions[i]);
        label->setBuddy(m_txtSunDR[i]);
        grid->addWidget(label, row, 0);
        grid->addWidget(m_txtSunDR[i], row, 1);
        grid->addWidget(m_txtSunDR[i]->echo(), row, 2);
    }
    for (std::size_t i = 0; i < runRows.size(); ++i)
        addEntryRow(grid, static_cast<int>(i) + 2, runRows[i].caption, m_txtSunRun[i],
                    runRows[i].unit);
    m_txtSunRun[0]->setMinimumWidth(
        m_txtSunRun[0]->fontMetrics().horizontalAdvance("0000/00/00 00:00:00 0"));
    return group;
}

QGroupBox* frmSunSight::layOutWorksheet()
{
    auto* group = new QGroupBox("Worksheet");
    auto* grid = gridOf(group);
    grid->setVerticalSpacing(0);
    int row = 0;
    for (ResultLabel* label : m_lblSunTime)
        grid->addWidget(label, row++, 0, 1, 2);
    for (std::size_t i = 0; i < worksheetLines; ++i, ++row) {
        grid->addWidget(m_lblSunTerm[i], row, 0);
        grid->addWidget(m_lblSunValue[i], row, 1);
    }
    grid->setColumnMinimumWidth(0,
                                fontMetrics().horizontalAdvance("Upper limb: less the diameter"));
    return group;
}

QGroupBox* frmSunSight::layOutLine()
{
    auto* group = new QGroupBox("Line of position");
    auto* grid = gridOf(group);
    const char* const captions[] = {"Declination (south -)", "Greenwich hour angle",
                                    "DR at the sight",       "Computed altitude Hc",
                                    "Intercept, nm",         "Azimuth Zn, true"};
    for (std::size_t i = 0; i < m_lblSunLine.size(); ++i)
        addResultRow(grid, static_cast<int>(i), captions[i], m_lblSunLine[i], {});
    m_lblSunLine[4]->setToolTip("T: towards the Sun, A: away");
    return group;
}

QGroupBox* frmSunSight::layOutNoon()
{
    auto* group = new QGroupBox("Meridian passage");
    auto* grid = gridOf(group);
    grid->addWidget(new QLabel("Local apparent noon"), 0, 0);
    grid->addWidget(m_lblSunNoon[1], 0, 1);
    grid->addWidget(m_lblSunNoon[0], 1, 0, 1, 2);
    grid->addWidget(new QLabel("Latitude by the sight"), 2, 0);
    grid->addWidget(m_lblSunNoon[2], 2, 1);
    grid->addWidget(m_lblSunNoon[3], 3, 0, 1, 2);
    grid->setColumnStretch(1, 1);
    return group;
}

QWidget* frmSunSight::layOutPlot()
{
    auto* part = new QWidget;
    auto* grid = new QGridLayout(part);
    grid->setContentsMargins(0, 0, 0, 0);
    grid->setVerticalSpacing(1);
    grid->addWidget(m_picSunSight, 0, 0, 1, 4);
    grid->addWidget(new QLabel("At the pointer"), 1, 0);
    grid->addWidget(m_lblSunCursor[0], 1, 1);
    grid->addWidget(m_lblSunCursor[1], 1, 2);
    setRoom(m_lblSunCursor[0], "  00.-00'0N");
    setRoom(m_lblSunCursor[1], "000.-00'0E");
    grid->setColumnStretch(3, 1);
    grid->setRowStretch(0, 1);
    return part;
}

QGroupBox* frmSunSight::layOutSights()
{
    auto* group = new QGroupBox("Recorded sights");
    auto* grid = gridOf(group);
    grid->addWidget(m_lstSunSight, 0, 0, 1, 3);
    grid->addWidget(addButton("cmdEdit", "&Edit", "The chosen sight back into the boxes",
                              &frmSunSight::cmdEdit_Click),
                    1, 1);
    grid->addWidget(addButton("cmdDelete", "&Delete", "Deletes the chosen sight, after a question",
                              &frmSunSight::cmdDelete_Click),
                    1, 2);
    grid->setColumnStretch(0, 1);
    return group;
}

QGroupBox* frmSunSight::layOutFix()
{
    auto* group = new QGroupBox("Fix");
    auto* grid = gridOf(group);
    auto* position = new QHBoxLayout;
    position->addWidget(m_lblSunFix[0]);
    position->addWidget(m_lblSunFix[1]);
    position->addStretch(1);
    grid->addLayout(position, 0, 0);
    for (std::size_t i = 2; i < m_lblSunFix.size(); ++i)
        grid->addWidget(m_lblSunFix[i], static_cast<int>(i), 0);
    return group;
}

QGroupBox* frmSunSight::layOutQuality()
{
    auto* group = new QGroupBox("How good the lines are");
    auto* grid = gridOf(group);
    auto* line = new QHBoxLayout;
    line->setSpacing(fontMetrics().averageCharWidth() / 2);
    for (std::size_t i = 0; i < sigmaRows.size(); ++i) {
        auto* caption = new QLabel(sigmaRows[i].caption);
        caption->setBuddy(m_txtSunSigma[i]);
        m_txtSunSigma[i]->setMaximumWidth(
            m_txtSunSigma[i]->fontMetrics().horizontalAdvance("00.000"));
        line->addWidget(caption);
        line->addWidget(m_txtSunSigma[i]);
        line->addWidget(new QLabel(sigmaRows[i].unit));
        line->addStretch(1);
    }
    grid->addLayout(line, 0, 0);
    grid->addWidget(m_chkSunMeasured, 1, 0);
    return group;
}

} // namespace korvel
