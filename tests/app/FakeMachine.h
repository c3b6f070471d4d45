// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/ComputerClock.h"
#include "app/machine/Questions.h"
#include "app/records/FileStore.h"

#include <gmock/gmock.h>

#include <deque>
#include <functional>
#include <map>
#include <string>
#include <vector>

/// A machine of fakes: what the program asks of it is answered by the test.
namespace korvel::testing
{

/// Answers that a test has prepared. A question that nobody expects fails the test.
class FakeQuestions : public Questions
{
public:
    ~FakeQuestions() override;

    Answer ask(const Message& message) override;
    std::optional<std::string> input(const std::string& prompt, const std::string& title,
                                     const std::string& defaultAnswer) override;
    std::optional<std::string> fileToWrite(const std::string& title,
                                           const std::string& name) override
    {
        return input(title, {}, name);
    }
    std::optional<std::string> fileToRead(const std::string& title,
                                          const std::string& ending) override
    {
        if (ending.size() > 12) throw std::runtime_error(ending + " is no ending of a file");
        return input(title, {}, ending);
    }
    void beep() override { ++beeps; }

    /// Answers the next message box, in order. @param run happens while the box is open
    void willAnswer(Answer answer, std::function<void()> run = {});
    /// Answers the next input box. An answer of acceptDefault takes what is offered, nothing is
    /// Cancel. @param run happens while the box is open
    void willType(const std::optional<std::string>& answer, std::function<void()> run = {});
    static constexpr const char* acceptDefault = "\x01";
    /// Answers a row of boxes as a table writes them: "Yes; 24:00; OK; Esc". Yes, No, OK and Cancel
    /// answer message boxes, Esc and whatever else is typed input boxes.
    void will(const std::string& answers);

    std::vector<std::string> asked;  ///< texts of the message boxes, in order
    std::vector<std::string> titles; ///< their titles
    std::vector<std::string> prompts;
    std::vector<std::string> offered; ///< default answers of the input boxes
    std::vector<std::string>
        conversation; ///< all boxes in order, input boxes as "prompt <default>"
    int beeps = 0;

private:
    struct Prepared {
        Answer answer;
        std::function<void()> run;
    };
    struct Typed {
        std::optional<std::string> answer;
        std::function<void()> run;
    };
    std::deque<Prepared> m_answers;
    std::deque<Typed> m_typed;
};

/// A clock that shows what the test wants and can be set without touching the machine's.
class FakeClock : public ComputerClock
{
public:
    NavFunc113::DateTime now() const override { return time; }
    double hoursAheadOfUTC() const override { return zone; }
    std::optional<std::string> set(NavFunc113::DateTime value) override;

    NavFunc113::DateTime time = 38425.40625; ///< 2005-03-14 09:45
    double zone = 9;                         ///< hours ahead of UTC, as a new installation expects
    std::optional<std::string> refusal;      ///< reason for which the clock cannot be set
    std::vector<NavFunc113::DateTime> sets;
};

/// Files in memory.
class FakeFiles : public FileStore
{
public:
    Content read(const std::string& name) override;
    Content readAt(const std::string& name, std::int64_t offset, std::size_t length) override;
    std::optional<std::string> save(const std::string& name, const std::string& bytes) override;
    std::optional<std::string> rename(const std::string& name, const std::string& newName) override;
    std::optional<std::string> remove(const std::string& name) override;
    std::optional<std::string> append(const std::string& name, const std::string& bytes) override
    {
        return refusal ? refusal : (files[name] += bytes, std::nullopt);
    }
    std::vector<std::string> names(const std::string& beginning,
                                   const std::string& ending) const override;
    Content readAnywhere(const std::string& path) override { return read(path); }
    std::optional<std::string> saveAnywhere(const std::string& path,
                                            const std::string& bytes) override
    {
        return save(path, bytes);
    }
    std::string path(const std::string& name) const override { return "folder/" + name; }

    std::map<std::string, std::string> files;
    std::optional<std::string> refusal;       ///< reason for which nothing can be saved
    std::optional<std::string> renameRefusal; ///< reason for which nothing can be renamed
    int saves = 0;
};

} // namespace korvel::testing
