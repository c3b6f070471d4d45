// SPDX-License-Identifier: MIT
#include "shell/machine/SessionQuestions.h"

namespace korvel
{

Answer SessionQuestions::ask(const Message& message)
{
    const Answer refusal = message.buttons == Buttons::Ok ? Answer::Ok : Answer::Cancel;
    if (m_ended) return refusal;
    const Answer answer = m_questions.ask(message);
    return m_ended ? refusal : answer;
}

std::optional<std::string> SessionQuestions::input(const std::string& prompt,
                                                   const std::string& title,
                                                   const std::string& defaultAnswer)
{
    if (m_ended) return std::nullopt;
    auto answer = m_questions.input(prompt, title, defaultAnswer);
    return m_ended ? std::nullopt : answer;
}

std::optional<std::string> SessionQuestions::fileToWrite(const std::string& title,
                                                         const std::string& offered)
{
    if (m_ended) return std::nullopt;
    return m_questions.fileToWrite(title, offered);
}

std::optional<std::string> SessionQuestions::fileToRead(const std::string& title,
                                                        const std::string& ending)
{
    if (m_ended) return std::nullopt;
    return m_questions.fileToRead(title, ending);
}

} // namespace korvel
