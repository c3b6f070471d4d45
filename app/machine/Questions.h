// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace korvel
{

enum class Buttons { Ok, OkCancel, YesNo };
enum class Answer { Ok, Cancel, Yes, No };

/// A message box. Line breaks in the text are single carriage returns.
struct Message {
    std::string text;
    std::string title;
    Buttons buttons = Buttons::Ok;
};

/// What the program asks and tells the officer. Handed in, so that tests can answer.
class Questions
{
public:
    virtual ~Questions() = default;

    /// Shows a message and waits. A box that is left without a button (Escape, its cross) answers
    /// Cancel where it asks something and Ok where it only tells: whoever asks takes everything but
    /// Yes and Ok for a refusal.
    virtual Answer ask(const Message& message) = 0;

    /// Asks for a line of text. @return nothing when the officer cancelled
    virtual std::optional<std::string> input(const std::string& prompt, const std::string& title,
                                             const std::string& defaultAnswer) = 0;

    /// Asks for a file to write; the officer has agreed to replace one that is there.
    /// @param offered name with its ending, "Course 2026-11-21.pdf"
    /// @return its full path; nothing when the officer cancelled
    virtual std::optional<std::string> fileToWrite(const std::string& title,
                                                   const std::string& offered) = 0;
    /// Asks for a file to read.
    /// @param ending of the files that are shown, "csv"; several parted by blanks
    virtual std::optional<std::string> fileToRead(const std::string& title,
                                                  const std::string& ending) = 0;

    /// True when nobody answers any more, as after the end of the session. Whoever asks until an
    /// answer will do gives up then and touches no calculator window: they have gone before.
    virtual bool haveEnded() const { return false; }

    virtual void beep() = 0;
};

/// The title of questions and confirmations, and of the refusals of the memories.
inline constexpr const char* confirmationTitle = "Brinemark";
/// The program's own title: on what only tells, and on the questions of alarms and storing.
inline constexpr const char* programTitle = "KORVEL2000";

} // namespace korvel
