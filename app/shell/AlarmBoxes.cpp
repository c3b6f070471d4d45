// SPDX-License-Identifier: MIT
#include "app/shell/AlarmBoxes.h"

#include "app/Questions.h"

#include <QMessageBox>

namespace korvel
{

AlarmBoxes::~AlarmBoxes()
{
    delete m_box;
}

void AlarmBoxes::show(const std::vector<Due>& due)
{
    m_waiting.insert(m_waiting.end(), due.begin(), due.end());
    if (!m_box) showNext();
}

void AlarmBoxes::showNext()
{
    if (m_waiting.empty()) return;
    const Due due = m_waiting.front();
    m_waiting.pop_front();
    m_box = new QMessageBox(QMessageBox::Warning, programTitle, QString::fromStdString(due.text),
                            QMessageBox::Ok);
    m_box->setObjectName("alarmBox");
    m_box->setTextFormat(Qt::PlainText);
    m_box->setAttribute(Qt::WA_DeleteOnClose);
    m_box->setWindowFlag(Qt::WindowStaysOnTopHint);
    m_box->setWindowModality(Qt::ApplicationModal);
    connect(m_box, &QMessageBox::finished, this, [this] {
        m_bell.stop();
        m_box.clear();
        showNext();
    });
    m_box->show();
    m_box->raise();
    m_box->activateWindow();
    if (due.alarm)
        m_bell.start();
    else
        m_bell.ringOnce();
}

} // namespace korvel
