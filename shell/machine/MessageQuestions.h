// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/Questions.h"

#include <QPointer>
#include <QWidget>

namespace korvel
{

/// The officer's real message and input boxes, in front of the window that asks.
class MessageQuestions : public Questions
{
public:
    MessageQuestions();

    Answer ask(const Message& message) override;
    std::optional<std::string> input(const std::string& prompt, const std::string& title,
                                     const std::string& defaultAnswer) override;
    std::optional<std::string> fileToWrite(const std::string& title,
                                           const std::string& offered) override;
    std::optional<std::string> fileToRead(const std::string& title,
                                          const std::string& ending) override;
    void beep() override;

private:
    QWidget* asker();
    std::optional<std::string> chosen(const QString& path);

    QPointer<QWidget> m_lastAsker;
    QString m_lastFolder; ///< where the officer last wrote or read a file of his own
};

} // namespace korvel
