// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/TideExtender.h"

#include <QApplication>
#include <QProgressBar>

namespace korvel
{

TideExtender::TideExtender(Program& program, QProgressBar& bar, std::function<void()> onChanged)
    : m_program(program), m_bar(bar), m_onChanged(std::move(onChanged))
{
}

bool TideExtender::offer(std::int64_t date)
{
    const std::optional<int> year = extensionYearFor(date);
    if (!year) return false;
    const Message question{extensionOffer(*year), confirmationTitle, Buttons::YesNo};
    return m_program.questions().ask(question) == Answer::Yes && extend(*year);
}

bool TideExtender::extend(int year)
{
    const auto show = [this](int percent) {
        m_bar.setValue(percent);
        // The file is made in one go: whatever else happens waits, a window that closes too.
        m_bar.repaint();
    };
    m_bar.setFormat("Making the predictions to " + QString::number(year) + ": %p %");
    m_bar.show();
    QApplication::sendPostedEvents(nullptr, QEvent::LayoutRequest);
    const ExtensionResult result = extendFactors(m_program.files(), year, show);
    m_bar.hide();
    return tell(result);
}

void TideExtender::takeBack()
{
    tell(undoExtension(m_program.files()));
}

/// What was done shows in the window; only what was not needs a box.
bool TideExtender::tell(const ExtensionResult& result)
{
    if (result.isDone)
        m_onChanged();
    else
        m_program.questions().ask({result.text, programTitle, Buttons::Ok});
    return result.isDone;
}

} // namespace korvel
