// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/Questions.h"

namespace korvel
{

/// The officer's boxes for as long as there is an officer. When the session has ended (logout,
/// SIGTERM) nobody answers: every question is taken for refused, unseen.
class SessionQuestions : public Questions
{
public:
    /// @param questions must outlive this object
    explicit SessionQuestions(Questions& questions) : m_questions(questions) {}

    void endSession() { m_ended = true; }

    Answer ask(const Message& message) override;
    std::optional<std::string> input(const std::string& prompt, const std::string& title,
                                     const std::string& defaultAnswer) override;
    std::optional<std::string> fileToWrite(const std::string& title,
                                           const std::string& offered) override;
    std::optional<std::string> fileToRead(const std::string& title,
                                          const std::string& ending) override;
    bool haveEnded() const override { return m_ended; }
    void beep() override { m_questions.beep(); }

private:
    Questions& m_questions;
    bool m_ended = false;
};

} // namespace korvel
