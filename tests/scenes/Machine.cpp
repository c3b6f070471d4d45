// SPDX-License-Identifier: MIT
#include "app/reading/Reading.h"
#include "tests/SourceFolder.h"
#include "tests/scenes/Steps.h"

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QTest>

#include <csignal>

#include <sys/resource.h>

namespace korvel::testing
{
namespace
{

Answer answerOf(const std::string& name)
{
    if (name == "Yes") return Answer::Yes;
    if (name == "No") return Answer::No;
    if (name == "Ok") return Answer::Ok;
    if (name == "Cancel") return Answer::Cancel;
    throw std::runtime_error("no answer " + name);
}

/// The answer to the next message box, a part of the question, and one step that happens while the
/// box is open.
void answer(Stage& stage, const Words& words)
{
    const std::string expected = words.size() > 1 && words[1].quoted ? words[1].text : "";
    Words meanwhile;
    for (std::size_t i = 1; i < words.size(); ++i)
        if (!words[i].quoted && words[i].text == "while")
            meanwhile.assign(words.begin() + static_cast<std::ptrdiff_t>(i) + 1, words.end());
    stage.questions.willAnswer(answerOf(wordAt(words, 0)), [&stage, expected, meanwhile] {
        EXPECT_THAT(stage.questions.asked.back(), ::testing::HasSubstr(expected));
        if (!meanwhile.empty())
            play(stage, meanwhile.front().text, {meanwhile.begin() + 1, meanwhile.end()});
    });
}

/// What is typed into the next input box; "offered" alone takes what stands there.
void input(Stage& stage, const Words& words)
{
    wordAt(words, 0);
    stage.questions.willType(words[0].quoted ? words[0].text : FakeQuestions::acceptDefault);
}

NavFunc113::DateTime timeAt(const Words& words, std::size_t place)
{
    const auto time = readDateTime(wordAt(words, place));
    if (!time) throw std::runtime_error("no time: " + words[place].text);
    return *time;
}

void tick(Stage& stage, const Words& words)
{
    if (!words.empty()) stage.clock.time = timeAt(words, 0);
    stage.main().tmrClock_Timer();
}

void writeFile(Stage& stage, const Words& words)
{
    const QString path = QString::fromStdString(stage.filePath(wordAt(words, 0)));
    QDir().mkpath(QFileInfo(path).path());
    QFile file(path);
    const std::string bytes = bytesAt(words, 1);
    if (!file.open(QIODevice::WriteOnly) ||
        file.write(bytes.data(), static_cast<qint64>(bytes.size())) < 0)
        throw std::runtime_error(words[0].text + " cannot be written");
}

/// Lays a file or folder of the shipped data beside the program.
void takeData(Stage& stage, const Words& words)
{
    for (const Word& word : words) {
        const QString target = stage.folder.filePath(QString::fromStdString(word.text));
        QDir().mkpath(QFileInfo(target).path());
        if (!QFile::copy(QString::fromStdString(sourceFile("data/" + word.text)), target))
            throw std::runtime_error("no data " + word.text);
    }
}

/// The limit on file sizes makes every further byte fail, as a full disk does.
std::shared_ptr<void> makeDiskFull()
{
    rlimit before{};
    getrlimit(RLIMIT_FSIZE, &before);
    const rlimit full{1024, before.rlim_max};
    const auto handler = std::signal(SIGXFSZ, SIG_IGN);
    setrlimit(RLIMIT_FSIZE, &full);
    return {nullptr, [before, handler](void*) {
                setrlimit(RLIMIT_FSIZE, &before);
                std::signal(SIGXFSZ, handler);
            }};
}

/// Refuses to save, to set the clock or to take a page, with a reason; no reason ends that.
void refuse(Stage& stage, const Words& words)
{
    const std::string& what = wordAt(words, 0);
    std::optional<std::string> reason;
    if (words.size() > 1) reason = words[1].text;
    if (what == "saving")
        stage.files.refusal = reason;
    else if (what == "clock")
        stage.clock.refusal = reason;
    else if (what == "paper")
        stage.fullDisk = reason ? makeDiskFull() : nullptr;
    else
        throw std::runtime_error("nothing refuses " + what);
}

void remember(Stage& stage, const Words& words)
{
    KV_Savedvalue& saved = stage.program().saved();
    const std::string& what = wordAt(words, 0);
    if (what == "TD") {
        saved.setTD(static_cast<float>(numberAt(words, 1)));
    } else if (what == "position") {
        saved.setPositionMemo(NavFunc113::DegMin(numberAt(words, 1)),
                              NavFunc113::DegMin(numberAt(words, 2)));
    } else if (what == "single") {
        saved.setSingleMemo(numberAt(words, 1));
    } else {
        throw std::runtime_error("no memory of " + what);
    }
}

void expectBox(Stage& stage, const Words& words)
{
    wordAt(words, 0);
    stage.boxes.push_back({words[0].text, {words.begin() + 1, words.end()}});
}

void wait(Stage&, const Words& words)
{
    QTest::qWait(static_cast<int>(numberAt(words, 0)));
}

} // namespace

const std::map<std::string, Verb>& machineVerbs()
{
    static const std::map<std::string, Verb> verbs = {
        {"answer", answer},
        {"input", input},
        {"real-boxes", [](Stage& stage, const Words&) { stage.realQuestions = true; }},
        {"box", expectBox},
        {"clock", [](Stage& stage, const Words& words) { stage.clock.time = timeAt(words, 0); }},
        {"tick", tick},
        {"zone", [](Stage& stage, const Words& words) { stage.clock.zone = numberAt(words, 0); }},
        {"log-out", [](Stage& stage, const Words&) { stage.main().endSession(); }},
        {"wait", wait},
        {"settle", [](Stage&, const Words&) { QApplication::processEvents(); }},
        {"kill", [](Stage& stage, const Words&) { stage.end(); }},
        {"write-file", writeFile},
        {"take-data", takeData},
        {"refuse", refuse},
        {"remember", remember},
    };
    return verbs;
}

} // namespace korvel::testing
