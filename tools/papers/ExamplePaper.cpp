// SPDX-License-Identifier: MIT
#include "tools/papers/ExamplePaper.h"

#include "app/reading/Reading.h"
#include "calculator_windows.h"
#include "shell/controls/ResultLabel.h"
#include "shell/layout/PageBar.h"
#include "shell/paper/PaperWindow.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QLineEdit>
#include <QMainWindow>
#include <QRegularExpression>
#include <QTextCursor>
#include <QTextEdit>

namespace korvel
{
namespace
{

struct ExampleLine {
    std::string word;
    QString rest;
};

std::vector<ExampleLine> linesOf(const std::string& example)
{
    std::vector<ExampleLine> lines;
    for (const QString& line : QString::fromStdString(example).split('\n')) {
        if (line.startsWith('#')) continue;
        // What belongs together stands in one line: a sight, a row of a record.
        for (const QString& step : line.split(" | ", Qt::SkipEmptyParts))
            lines.push_back(
                {step.section(' ', 0, 0).toStdString(), step.section(' ', 1).trimmed()});
    }
    return lines;
}

void use(QWidget& window, const ExampleLine& line)
{
    const QString name = QString::fromStdString(line.word);
    auto* control = window.findChild<QObject*>(name);
    if (auto* box = qobject_cast<QLineEdit*>(control))
        box->setText(line.rest);
    else if (auto* list = qobject_cast<QComboBox*>(control))
        list->setCurrentIndex(line.rest.toInt());
    else if (auto* button = qobject_cast<QAbstractButton*>(control))
        button->click();
    else if (auto* entry = qobject_cast<QAction*>(control))
        entry->trigger();
    else
        throw std::runtime_error("no control " + line.word);
    QApplication::processEvents();
}

QMainWindow& windowNamed(const QString& name)
{
    for (QWidget* each : QApplication::topLevelWidgets())
        if (auto* window = qobject_cast<QMainWindow*>(each); window && each->objectName() == name)
            return *window;
    throw std::runtime_error("no window " + name.toStdString());
}

void writeFile(FileStore& files, const QString& rest)
{
    const QString name = rest.section('"', 1, 1);
    const QString text = rest.section('"', 2).trimmed().replace("\\n", "\r\n");
    QDir().mkpath(QFileInfo(QString::fromStdString(files.path(name.toStdString()))).path());
    if (const auto reason = files.save(name.toStdString(), text.toStdString()))
        throw std::runtime_error(*reason);
}

/// The files of the machine as they are before the program starts, and its clock.
FileStore& prepared(ExampleMachine& machine, const std::string& example)
{
    for (const ExampleLine& line : linesOf(example)) {
        if (line.word == "clock") machine.clock.UTC = readDateTime(line.rest.toStdString()).value();
        if (line.word == "file") writeFile(machine.files, line.rest);
    }
    return machine.files;
}

/// What the officer does.
QMainWindow& work(frmKORVEL2000& main, const std::vector<ExampleLine>& lines, std::string& source)
{
    QMainWindow* window = nullptr;
    main.program().saved().setClockZone(ClockZone::UTC);
    for (const ExampleLine& line : lines) {
        if (line.word == "source")
            source = line.rest.toStdString();
        else if (line.word == "TD")
            main.program().saved().setTD(line.rest.toFloat());
        else if (line.word == "mile")
            main.program().saved().setUnitOfLatitude(line.rest != "1852");
        else if (line.word == "window") {
            main.openWindow(line.rest);
            window = &windowNamed(line.rest);
        } else if (line.word != "clock" && line.word != "file") {
            if (!window) throw std::runtime_error("no window for " + line.word);
            use(*window, line);
        }
    }
    if (!window) throw std::runtime_error("the example opens no window");
    return *window;
}

/// The toolkit's Markdown, in which a stroke of a formula would end its cell of a table.
std::string markdownOf(const QTextDocument& paper)
{
    constexpr char16_t stroke = 0xe000; // for private use: in no text
    const std::unique_ptr<QTextDocument> copy(paper.clone());
    for (QTextCursor at = copy->find("|"); !at.isNull(); at = copy->find("|", at))
        at.insertText(QString(QChar(stroke)));
    return copy->toMarkdown()
        .remove(QChar::ObjectReplacementCharacter)
        .replace(QChar(stroke), "\\|")
        .toStdString();
}

} // namespace

WorkedExample::WorkedExample(const std::string& example, const QString& data)
    : m_machine(data),
      m_main({m_machine.officer, m_machine.clock, prepared(m_machine, example), m_machine.bell},
             calculatorWindows()),
      m_window(&work(m_main, linesOf(example), m_source))
{
}

PaperWindow& WorkedExample::openPaper() const
{
    m_window->findChild<QAction*>("mnuPaper(0)")->trigger();
    return *m_window->findChild<PaperWindow*>("frmPaper");
}

ExamplePaper workExample(const std::string& example, const QString& data)
{
    const WorkedExample worked(example, data);
    PaperWindow& paper = worked.openPaper();
    paper.finish();
    const QTextDocument& text = *paper.findChild<QTextEdit*>("txtPaper")->document();
    const std::string head =
        "Worked by the program (see examples). Source: " + worked.source() + ".\n\n";
    return {head + markdownOf(text), paper.paper().PDF(),
            resultsWithoutStep(worked.window(), text.toPlainText())};
}

std::vector<std::string> resultsWithoutStep(const QWidget& window, const QString& paperText)
{
    // They tell inputs, where nothing has to be worked out, or what is said beside a result.
    static const QRegularExpression others(
        "^(echo .*|lblNotice|lblWpNo.*|lblPlace|lblDate|lblTD|lblNow)$");
    const QString working = paperText.section("Working: ", 1).simplified();
    std::vector<std::string> missing;
    const auto* pages = window.findChild<PageBar*>();
    for (const auto* label : window.findChildren<ResultLabel*>())
        if (!(pages && pages->isTurnedAway(*label)) &&
            !others.match(label->objectName()).hasMatch() &&
            !working.contains(label->text().simplified()))
            missing.push_back(label->objectName().toStdString());
    return missing;
}

} // namespace korvel
