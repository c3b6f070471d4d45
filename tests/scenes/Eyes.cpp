// SPDX-License-Identifier: MIT
#include "app/reading/Format.h"
#include "shell/controls/PictureBox.h"
#include "shell/paper/PaperWindow.h"
#include "tests/scenes/Steps.h"
#include "tests/shell/Pixels.h"
#include "tools/papers/ExamplePaper.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QAbstractSlider>
#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFile>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QPlainTextEdit>
#include <QRegularExpression>
#include <QTextEdit>

#include <algorithm>
#include <cmath>
#include <utility>

namespace korvel::testing
{
namespace
{

/// With the end of a long paper, which is written when its beginning has been painted.
QString wholePaper(QTextEdit& text)
{
    dynamic_cast<PaperWindow&>(*text.window()).finish();
    return text.toPlainText();
}

std::string shownBy(QWidget& widget)
{
    if (auto* choice = qobject_cast<QComboBox*>(&widget))
        return choice->currentText().toStdString();
    if (auto* button = qobject_cast<QAbstractButton*>(&widget)) return button->text().toStdString();
    if (auto* texts = qobject_cast<QPlainTextEdit*>(&widget))
        return texts->toPlainText().toStdString();
    if (auto* paper = qobject_cast<QTextEdit*>(&widget)) return wholePaper(*paper).toStdString();
    if (auto* list = qobject_cast<QListWidget*>(&widget)) {
        std::string rows;
        for (int row = 0; row < list->count(); ++row)
            rows += list->item(row)->text().toStdString() + "\n";
        return rows;
    }
    return text(*widget.window(), widget.objectName().toStdString());
}

void seeOne(Stage& stage, const Words& words)
{
    const std::vector<std::string> names = membersOf(wordAt(words, 0));
    for (std::size_t i = 0; i < names.size(); ++i) {
        const std::string seen = shownBy(stage.control(names[i]));
        if (names.size() == 1)
            expectText(seen, words, 1);
        else if (wordAt(words, i + 1) != seen)
            throw std::runtime_error(names[i] + " shows \"" + seen + "\"");
    }
    if (words.at(1).quoted && words.size() != names.size() + 1)
        throw std::runtime_error("not one text for each control");
}

/// One name behind the texts of another begins the next.
void see(Stage& stage, const Words& words)
{
    Words one;
    for (const Word& word : words) {
        if (!word.quoted && one.size() > 1 && one.back().quoted)
            seeOne(stage, std::exchange(one, {}));
        one.push_back(word);
    }
    seeOne(stage, one);
}

/// What a screen reader says of a control.
std::string heardOf(QWidget& widget, QAccessible::Text what)
{
    return QAccessible::queryAccessibleInterface(&widget)->text(what).toStdString();
}

std::string valueOf(QWidget& widget)
{
    if (auto* bar = qobject_cast<QAbstractSlider*>(&widget)) return std::to_string(bar->value());
    if (auto* choice = qobject_cast<QComboBox*>(&widget))
        return std::to_string(choice->currentIndex());
    if (auto* list = qobject_cast<QAbstractItemView*>(&widget))
        return std::to_string(list->model()->rowCount());
    throw std::runtime_error("no value in " + widget.objectName().toStdString());
}

bool isTickedThere(Stage& stage, const std::string& name)
{
    if (auto* button = stage.window().findChild<QAbstractButton*>(QString::fromStdString(name)))
        return button->isChecked();
    return stage.entry(name).isChecked();
}

/// A verb about several names that are all to be, or all not to be, something.
template <bool (*Is)(Stage&, const std::string&), bool Wanted>
void expectAll(Stage& stage, const Words& words)
{
    wordAt(words, 0);
    for (const Word& word : words)
        for (const std::string& name : membersOf(word.text))
            if (Is(stage, name) != Wanted) throw std::runtime_error("not so: " + name);
}

bool isVisible(Stage& stage, const std::string& name)
{
    if (auto* entry = stage.window().findChild<QAction*>(QString::fromStdString(name)))
        return entry->isVisible();
    return stage.control(name).isVisible();
}

bool isEnabled(Stage& stage, const std::string& name)
{
    if (auto* entry = stage.window().findChild<QAction*>(QString::fromStdString(name)))
        return entry->isEnabled();
    return stage.control(name).isEnabled();
}

bool isDimmed(Stage& stage, const std::string& name)
{
    const QWidget& control = stage.control(name);
    const bool isBox = qobject_cast<const QLineEdit*>(&control);
    const bool dimmed =
        control.palette().color(isBox ? QPalette::Text : control.foregroundRole()) ==
        stage.program().colours().dimmed;
    EXPECT_EQ(control.font().italic(), dimmed) << name << " without colours too";
    return dimmed;
}

/// Whether keys and clicks come to a window: an open question keeps them from all others.
bool isWithinReach(Stage&, const std::string& name)
{
    const QWidget* question = QApplication::activeModalWidget();
    return !question || question->objectName().toStdString() == name;
}

bool isOpen(Stage&, const std::string& name)
{
    for (QWidget* each : QApplication::topLevelWidgets())
        if (each->isVisible() && each->objectName().toStdString() == name) return true;
    return false;
}

void file(Stage& stage, const Words& words)
{
    QFile opened(QString::fromStdString(stage.filePath(wordAt(words, 0))));
    const bool there = opened.open(QIODevice::ReadOnly);
    const std::string bytes = there ? opened.readAll().toStdString() : std::string();
    wordAt(words, 1);
    if (!words[1].quoted && words[1].text == "missing") {
        if (there) throw std::runtime_error("it is there:\n" + bytes);
    } else if (!there) {
        throw std::runtime_error("it is missing");
    } else if (words[1].quoted || words[1].text == "record") {
        expectText(bytes, {{bytesAt(words, 1), true}}, 0);
    } else {
        expectText(bytes, words, 1);
    }
}

void memory(Stage& stage, const Words& words)
{
    const KV_Savedvalue& saved = stage.program().saved();
    const std::string& what = wordAt(words, 0);
    const std::map<std::string, double> values = {{"single", saved.singleMemo()},
                                                  {"latitude", saved.memoLatitude().packed()},
                                                  {"longitude", saved.memoLongitude().packed()},
                                                  {"TD", saved.TD()}};
    const auto found = values.find(what);
    if (found == values.end()) throw std::runtime_error("no memory of " + what);
    expectText(Format(found->second, "0.############"), words, 1);
}

QColor schemeColour(const ColourScheme& colours, const std::string& name)
{
    const std::map<std::string, QColor> named = {{"ink", colours.ink},
                                                 {"grid", colours.grid},
                                                 {"equator", colours.equator},
                                                 {"route", colours.route},
                                                 {"secondary", colours.secondary},
                                                 {"tertiary", colours.tertiary},
                                                 {"marker", colours.marker},
                                                 {"curve", colours.curve},
                                                 {"datum", colours.datum},
                                                 {"paper", colours.paper}};
    const auto found = named.find(name);
    if (found == named.end()) throw std::runtime_error("no colour " + name);
    return found->second;
}

template <bool Wanted>
void drawn(Stage& stage, const Words& words)
{
    const QImage image = onScreen(stage.control(wordAt(words, 0)));
    auto counts = coloursOf(image, image.rect());
    for (std::size_t i = 1; i < words.size(); ++i)
        if ((counts[schemeColour(stage.program().colours(), words[i].text).rgb()] > 0) != Wanted)
            throw std::runtime_error(words[i].text + (Wanted ? " is not drawn" : " is drawn"));
}

/// Marks in a colour at places of a picture, in its own units, within two pixels.
template <bool Wanted>
void drawnAt(Stage& stage, const Words& words)
{
    auto& picture = dynamic_cast<PictureBox&>(stage.control(wordAt(words, 0)));
    const QRgb colour = schemeColour(stage.program().colours(), wordAt(words, 1)).rgb();
    const QImage image = onScreen(picture);
    for (std::size_t i = 2; i < words.size(); i += 2) {
        const QPoint at = picture.toPixel(numberAt(words, i), numberAt(words, i + 1)).toPoint();
        if (coloursOf(image, QRect(at - QPoint(2, 2), QSize(5, 5))).contains(colour) != Wanted)
            throw std::runtime_error(words[1].text + (Wanted ? " is not" : " is") + " drawn at " +
                                     words[i].text + " " + words[i + 1].text);
    }
}

/// In both colour schemes; the one in force is put back.
void contrasts(Stage& stage, const Words& words)
{
    for (int scheme = 0; scheme < 2; ++scheme) {
        for (std::size_t i = 1; i < words.size(); ++i)
            for (const std::string& name : membersOf(words[i].text)) {
                const QImage image = onScreen(stage.control(name));
                const double seen = strongestContrast(image, image.rect());
                if (seen < numberAt(words, 0))
                    throw std::runtime_error(
                        name + " has a contrast of " + Format(seen, "0.0") +
                        (stage.program().saved().nightColours() ? " by night" : " by day"));
            }
        stage.program().screen().toggleNight();
        QApplication::processEvents();
    }
}

std::string focusedName()
{
    QWidget* focus = QApplication::focusWidget();
    return focus ? focus->objectName().toStdString() : "";
}

void selected(Stage&, const Words& words)
{
    auto* box = qobject_cast<QLineEdit*>(QApplication::focusWidget());
    auto* label = qobject_cast<QLabel*>(QApplication::focusWidget());
    if (!box && !label) throw std::runtime_error("no box and no result has the focus");
    expectText((box ? box->selectedText() : label->selectedText()).toStdString(), words, 0);
}

void count(const char* what, int seen, const Words& words)
{
    if (seen != static_cast<int>(numberAt(words, 0)))
        throw std::runtime_error(std::to_string(seen) + " " + what);
}

/// Every result of the window in hand stands in the working of its paper as it is shown.
void worked(Stage& stage, const Words&)
{
    pressKey("F2");
    auto& text = dynamic_cast<QTextEdit&>(stage.control("txtPaper"));
    const QString paper = wholePaper(text);
    for (const std::string& name : resultsWithoutStep(stage.window(), paper))
        throw std::runtime_error("no step leads to " + name);
    // Of such a step first what it comes from, then the result.
    const QStringList cells = paper.split('\n');
    QStringList shown;
    for (const auto* label : stage.window().findChildren<QLabel*>(QRegularExpression("^lbl")))
        shown << label->text();
    const auto isShown = [&shown](const QString& cell) {
        return std::ranges::any_of(shown, [&cell](const QString& each) {
            return !each.isEmpty() && cell.startsWith(each);
        });
    };
    for (qsizetype at = 0; at + 2 < cells.size(); ++at)
        if (cells[at] == "shown in the window as" && shown.contains(cells[at + 1]) &&
            !isShown(cells[at + 2]))
            throw std::runtime_error("a result among the figures of " +
                                     cells[at - 1].toStdString());
    text.window()->close();
    stage.turnTo(stage.window().objectName().toStdString());
}

void sheets(Stage& stage, const Words& words)
{
    const QString boxes = QString::fromStdString(stage.printedBoxes());
    count("sheets", static_cast<int>(boxes.count("<page ")), words);
    static const QRegularExpression word("<word .*yMin=\"([0-9.]+)\".*yMax=\"([0-9.]+)\"");
    double lowest = 1000;
    for (const QRegularExpressionMatch& each : word.globalMatch(boxes))
        lowest = std::min(lowest, each.captured(2).toDouble() - each.captured(1).toDouble());
    if (lowest < numberAt(words, 1))
        throw std::runtime_error("a word of " + Format(lowest, "0.00") + " points");
}

void size(Stage& stage, const Words& words)
{
    const QSize now = stage.window().size();
    if (wordAt(words, 0) == "noted") stage.notedSize = now;
    if (now != stage.notedSize)
        throw std::runtime_error("it is " + std::to_string(now.width()) + " wide now");
}

} // namespace

const std::map<std::string, Verb>& eyeVerbs()
{
    using S = Stage&;
    using W = const Words&;
    static const std::map<std::string, Verb> verbs = {
        {"see", see},
        {"notice", [](S s, W w) { expectText(shownBy(s.control("lblNotice")), w, 0); }},
        {"title", [](S s, W w) { expectText(s.window().windowTitle().toStdString(), w, 0); }},
        {"caption", [](S s, W w) { expectText(s.entry(wordAt(w, 0)).text().toStdString(), w, 1); }},
        {"tooltip",
         [](S s, W w) { expectText(s.control(wordAt(w, 0)).toolTip().toStdString(), w, 1); }},
        {"accessible",
         [](S s, W w) {
             expectText(s.control(wordAt(w, 0)).accessibleName().toStdString(), w, 1);
         }},
        {"described",
         [](S s, W w) {
             expectText(heardOf(s.control(wordAt(w, 0)), QAccessible::Description), w, 1);
         }},
        {"heard",
         [](S s, W w) { expectText(heardOf(s.control(wordAt(w, 0)), QAccessible::Name), w, 1); }},
        {"value", [](S s, W w) { expectText(valueOf(s.control(wordAt(w, 0))), w, 1); }},
        {"focus",
         [](S, W w) {
             expectText(focusedName(), {{wordAt(w, 0), true}}, 0);
         }},
        {"selected", selected},
        {"copied",
         [](S, W w) { expectText(QApplication::clipboard()->text().toStdString(), w, 0); }},
        {"ticked", expectAll<isTickedThere, true>},
        {"unticked", expectAll<isTickedThere, false>},
        {"visible", expectAll<isVisible, true>},
        {"hidden", expectAll<isVisible, false>},
        {"enabled", expectAll<isEnabled, true>},
        {"greyed", expectAll<isEnabled, false>},
        {"dimmed", expectAll<isDimmed, true>},
        {"undimmed", expectAll<isDimmed, false>},
        {"is-open", expectAll<isOpen, true>},
        {"is-closed", expectAll<isOpen, false>},
        {"within-reach", expectAll<isWithinReach, true>},
        {"out-of-reach", expectAll<isWithinReach, false>},
        {"file", file},
        {"memory", memory},
        {"drawn", drawn<true>},
        {"not-drawn", drawn<false>},
        {"drawn-at", drawnAt<true>},
        {"not-drawn-at", drawnAt<false>},
        {"contrast", contrasts},
        {"worked", worked},
        {"printed", [](S s, W w) { expectText(s.printedText(), w, 0); }},
        {"sheets", sheets},
        {"size", size},
        {"asked", [](S s, W w) { expectText(s.questions.asked.back(), w, 0); }},
        {"offered", [](S s, W w) { expectText(s.questions.offered.back(), w, 0); }},
        {"saves",
         [](S s, W w) {
             count("saves", s.files.saves, w);
             s.files.saves = 0;
         }},
        {"beeps", [](S s, W w) { count("beeps", s.questions.beeps, w); }},
        {"tones", [](S s, W w) { count("tones", s.bell.tones, w); }},
        {"ringing", [](S s, W w) { count("bells ring", s.bell.ringing, w); }},
    };
    return verbs;
}

} // namespace korvel::testing
