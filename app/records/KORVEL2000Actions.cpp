// SPDX-License-Identifier: MIT
#include "app/records/KORVEL2000Actions.h"

#include "app/reading/Format.h"
#include "app/reading/PositionText.h"

#include <cmath>

namespace korvel
{

KORVEL2000Actions::KORVEL2000Actions(KV_Savedvalue& saved, Questions& questions,
                                     SettingsFile& settings, Hooks hooks)
    : m_saved(saved), m_questions(questions), m_settings(settings), m_hooks(std::move(hooks))
{
}

void KORVEL2000Actions::StoreInMemo(StoreKind kind, const std::string& valueText)
{
    // "valueis" is no slip to mend: officers know the line by it.
    const std::string refusal = "   ｢ " + valueText + "｣\rThis valueis NOT AVAILABLE for MEMO";
    const double value = readNumber(valueText);
    bool redraw = true;
    if (value == 0 || !isNumeric(valueText))
        m_questions.ask({refusal, confirmationTitle, Buttons::Ok});
    else if (kind == Latitude)
        acceptLatitude(valueText, refusal);
    else if (kind == Longitude)
        redraw = storeLongitude(value, refusal);
    else
        redraw = storeSingle(value, refusal);
    if (redraw) m_hooks.MemoHyoujiAtStart();
}

bool KORVEL2000Actions::acceptLatitude(const std::string& valueText, const std::string& refusal)
{
    const double value = readNumber(valueText);
    if (std::fabs(value) > 90) {
        m_questions.ask({"Lat " + refusal, programTitle, Buttons::Ok});
        return false;
    }
    PendingMemoLat = value;
    return true;
}

bool KORVEL2000Actions::storeLongitude(double value, const std::string& refusal)
{
    if (std::fabs(value) > 180) {
        m_questions.ask({"Long" + refusal, programTitle, Buttons::Ok});
        return true;
    }
    const Answer answer = m_questions.ask(
        {"PsnMemo  l:" + Format(PendingMemoLat, "00.-00'0") + " L:" + Format(value, "000.-00'0"),
         programTitle, Buttons::YesNo});
    if (answer != Answer::Yes) return false;
    m_saved.setPositionMemo(NavFunc113::DegMin(PendingMemoLat), NavFunc113::DegMin(value));
    return true;
}

bool KORVEL2000Actions::storeSingle(double value, const std::string& refusal)
{
    if (value <= 0) {
        m_questions.ask({"KV_Savedvalue(25)" + refusal, programTitle, Buttons::Ok});
        return true;
    }
    const Answer answer =
        m_questions.ask({"SingleMemo:" + Format(value, "0.0##"), programTitle, Buttons::YesNo});
    if (answer != Answer::Yes) return false;
    m_saved.setSingleMemo(value);
    return true;
}

std::optional<PositionTexts> positionForMemo(const std::string& figure)
{
    const auto position = parsePosition(figure, Axis::Latitude);
    if (!position || !position->latitude || !position->longitude) return std::nullopt;
    return PositionTexts{*position->latitude, *position->longitude};
}

bool isForMemo(const std::string& figure)
{
    return positionForMemo(figure) || (isNumeric(figure) && readNumber(figure) > 0);
}

void KORVEL2000Actions::storePosition(const PositionTexts& position)
{
    const double value = readNumber(position.latitude);
    const bool accepted = isNumeric(position.latitude) && value != 0 && std::fabs(value) <= 90;
    StoreInMemo(Latitude, position.latitude);
    if (accepted) StoreInMemo(Longitude, position.longitude);
}

Answer KORVEL2000Actions::ConfirmMemoRecall(MemoName memoName)
{
    std::string question;
    if (memoName == SinM)
        question = "Following value is stored in SINGLE MEMO now.\r\r" +
                   Format(m_saved.singleMemo(), "    0.00##") +
                   "\r\rAre you sure to input this value?";
    else
        question = "Following values are stored in POSITION MEMO now.\r\r    Lat=   " +
                   Format(m_saved.memoLatitude(), "00.00'0N;00.00'0S") +
                   "\r    Long= " + Format(m_saved.memoLongitude(), "000.00'0E;000.00'0W") +
                   "\r\rAre you sure to input these value?";
    const Answer answer = m_questions.ask({question, confirmationTitle, Buttons::YesNo});
    return answer == Answer::Yes ? Answer::Yes : Answer::No;
}

int KORVEL2000Actions::ExitApplication()
{
    const Answer answer = m_questions.ask(
        {std::string("Application：") + programTitle + "\r\r          Are you sure to exit?",
         confirmationTitle, Buttons::YesNo});
    if (answer != Answer::Yes) return 1;
    if (m_settings.saveAtClose(m_saved.record())) m_hooks.valuesSaved();
    m_hooks.endProgram();
    return 0;
}

std::string KORVEL2000Actions::memoLine() const
{
    return "Position Memo  LATITUDE: " + Format(m_saved.memoLatitude(), "00.-00'0N;00.-00'0S") +
           ", LONGITUDE: " + Format(m_saved.memoLongitude(), "000.-00'0E;000.-00'0W") +
           "\nSingle Memo:   " + Format(m_saved.singleMemo(), "0.0##");
}

std::string askNumberInRange(Questions& questions, const std::string& prompt,
                             const std::string& defaultAnswer, double low, double high)
{
    for (;;) {
        std::string answer = questions.input(prompt, programTitle, defaultAnswer).value_or("");
        if (questions.haveEnded()) return defaultAnswer;
        const double value = readNumber(answer);
        if (isNumeric(answer) && value >= low && value <= high) return answer;
        questions.ask({answer + " is incorrect value.", programTitle, Buttons::Ok});
    }
}

std::string memoText(double value)
{
    return Format(value, "0.###############");
}

} // namespace korvel
