// SPDX-License-Identifier: MIT
#pragma once

#include "app/Questions.h"

#include <QPointer>
#include <QWidget>

namespace korvel
{

/// The officer's real message and input boxes, in front of the window that asks.
class MessageQuestions : public Questions
{
public:
    Answer ask(const Message& message) override;
    std::optional<std::string> input(const std::string& prompt, const std::string& title,
                                     const std::string& defaultAnswer) override;
    void beep() override;

private:
    QWidget* asker();

    QPointer<QWidget> m_lastAsker;
};

} // namespace korvel
