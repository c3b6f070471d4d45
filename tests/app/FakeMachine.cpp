// SPDX-License-Identifier: MIT
#include "tests/app/FakeMachine.h"

#include <sstream>
#include <stdexcept>

namespace korvel::testing
{

FakeQuestions::~FakeQuestions()
{
    EXPECT_TRUE(m_answers.empty()) << m_answers.size() << " prepared answers were never asked for";
    EXPECT_TRUE(m_typed.empty()) << m_typed.size() << " prepared inputs were never asked for";
}

void FakeQuestions::willAnswer(Answer answer, std::function<void()> run)
{
    m_answers.push_back({answer, std::move(run)});
}

void FakeQuestions::willType(const std::optional<std::string>& answer, std::function<void()> run)
{
    m_typed.push_back({answer, std::move(run)});
}

void FakeQuestions::will(const std::string& answers)
{
    const std::map<std::string, Answer> buttons{
        {"Yes", Answer::Yes}, {"No", Answer::No}, {"OK", Answer::Ok}, {"Cancel", Answer::Cancel}};
    std::istringstream each(answers);
    for (std::string answer; std::getline(each >> std::ws, answer, ';');)
        if (const auto button = buttons.find(answer); button != buttons.end())
            willAnswer(button->second);
        else
            willType(answer == "Esc" ? std::nullopt : std::optional(answer));
}

Answer FakeQuestions::ask(const Message& message)
{
    asked.push_back(message.text);
    titles.push_back(message.title);
    conversation.push_back(message.text);
    if (m_answers.empty()) {
        ADD_FAILURE() << "unexpected message: " << message.text;
        return message.buttons == Buttons::YesNo ? Answer::No : Answer::Ok;
    }
    const Prepared prepared = std::move(m_answers.front());
    m_answers.pop_front();
    if (prepared.run) prepared.run();
    return prepared.answer;
}

std::optional<std::string> FakeQuestions::input(const std::string& prompt, const std::string&,
                                                const std::string& defaultAnswer)
{
    prompts.push_back(prompt);
    conversation.push_back(prompt + " <" + defaultAnswer + ">");
    offered.push_back(defaultAnswer);
    if (m_typed.empty()) {
        // The caller repeats the question until it is satisfied: only an exception ends that.
        throw std::runtime_error("unexpected input box: " + prompt);
    }
    const auto [answer, run] = std::move(m_typed.front());
    m_typed.pop_front();
    if (run) run();
    return answer == acceptDefault ? defaultAnswer : answer;
}

std::optional<std::string> FakeClock::set(NavFunc113::DateTime value)
{
    if (refusal) return refusal;
    sets.push_back(value);
    time = value;
    return std::nullopt;
}

FileStore::Content FakeFiles::read(const std::string& name)
{
    return readAt(name, 0, std::string::npos);
}

FileStore::Content FakeFiles::readAt(const std::string& name, std::int64_t offset,
                                     std::size_t length)
{
    const auto found = files.find(name);
    if (found == files.end()) return {};
    const std::string& bytes = found->second;
    const auto from = std::min(static_cast<std::size_t>(offset), bytes.size());
    return {Content::Status::Read, bytes.substr(from, length), {}, std::int64_t(bytes.size())};
}

std::optional<std::string> FakeFiles::save(const std::string& name, const std::string& bytes)
{
    if (refusal) return refusal;
    files[name] = bytes;
    ++saves;
    return std::nullopt;
}

std::optional<std::string> FakeFiles::rename(const std::string& name, const std::string& newName)
{
    if (renameRefusal) return renameRefusal;
    if (files.contains(newName) || !files.contains(name))
        return "no such file, or the name is taken";
    files[newName] = files.extract(name).mapped();
    return std::nullopt;
}

std::optional<std::string> FakeFiles::remove(const std::string& name)
{
    if (refusal) return refusal;
    files.erase(name);
    return std::nullopt;
}

std::vector<std::string> FakeFiles::names(const std::string& beginning,
                                          const std::string& ending) const
{
    std::vector<std::string> found;
    for (const auto& [name, bytes] : files)
        if (name.starts_with(beginning) && name.ends_with(ending)) found.push_back(name);
    return found;
}

} // namespace korvel::testing
