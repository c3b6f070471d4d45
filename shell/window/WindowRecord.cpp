// SPDX-License-Identifier: MIT
#include "shell/window/WindowRecord.h"

#include "app/reading/Remarks.h"
#include "shell/machine/AsQString.h"
#include "shell/program/Program.h"

#include <QAbstractButton>
#include <QAbstractSlider>
#include <QComboBox>

namespace korvel
{
namespace
{

/// A killed program loses no more than what was typed in this time.
constexpr std::chrono::milliseconds burst{1500};

/// Which values of a record were too long for their boxes, in words; empty when none was.
std::string cutValues(const Record& read, const Record& held)
{
    std::vector<std::string> cut;
    for (std::size_t i = 0; i < std::min(read.size(), held.size()); ++i) {
        const std::string whole = withoutControls(textOf(read[i]));
        const std::string part = textOf(held[i]);
        if (part.size() < whole.size() && !part.empty() && whole.starts_with(part))
            cut.push_back("value " + std::to_string(i + 1));
    }
    return joined(cut);
}

} // namespace

WindowRecord::WindowRecord(Program& program, NoticeLine& notices, QWidget& window)
    : QObject(&window), m_program(program), m_notices(notices), m_window(window), m_burst(this)
{
    m_burst.setObjectName("tmrRecord");
    m_burst.setSingleShot(true);
    m_burst.setInterval(burst);
    connect(&m_burst, &QTimer::timeout, this, &WindowRecord::saveNow);
}

void WindowRecord::use(const std::string& file, std::vector<FieldKind> kinds, Save save, Load load,
                       Salvage salvage)
{
    m_file = std::make_unique<SettingsFile>(m_program.files(), m_program.questions(),
                                            m_program.clock(), file, std::move(kinds));
    m_save = std::move(save);
    m_load = std::move(load);
    m_salvage = std::move(salvage);
}

void WindowRecord::useTexts(const std::string& file, std::vector<EntryBox*> boxes,
                            std::function<void(Record&)> settle)
{
    std::vector<FieldKind> kinds = recordKinds(boxes);
    const Load load = [boxes](const Record& record) {
        for (std::size_t i = 0; i < boxes.size(); ++i)
            boxes[i]->setText(asQString(textOf(record[i])));
    };
    const Save save = [boxes = std::move(boxes), settle = std::move(settle)] {
        Record record;
        for (const EntryBox* box : boxes)
            record.emplace_back(box->value());
        if (settle) settle(record);
        return record;
    };
    use(file, std::move(kinds), save, load);
}

void WindowRecord::useText(const std::string& file, std::function<std::string()> save,
                           std::function<std::string(const std::string&)> take)
{
    m_text = std::make_unique<RecordFile>(m_program.files(), m_program.questions(),
                                          m_program.clock(), file);
    m_saveText = std::move(save);
    m_takeText = std::move(take);
}

bool WindowRecord::loadText()
{
    const FileStore::Content content = m_text->read();
    const bool isRead = content.status == FileStore::Content::Status::Read;
    m_isLoaded = false;
    const std::string damage = isRead ? m_takeText(content.bytes) : std::string();
    if (!damage.empty()) m_text->report("is damaged: " + damage, true);
    m_isLoaded = true;
    // A window in which nothing was typed is not worth a file either.
    const bool isMissing = content.status == FileStore::Content::Status::Missing;
    if (isMissing || (isRead && damage.empty())) m_onDisk = m_saveText();
    watchControls();
    return isRead;
}

bool WindowRecord::load()
{
    if (m_text) return loadText();
    if (!m_file) return false;
    m_isLoaded = false;
    const auto record = m_file->load(m_save());
    if (record) m_load(*record);
    const std::string cut = record ? cutValues(*record, m_save()) : std::string();
    if (!cut.empty()) m_file->protect("holds texts that are too long for their boxes: " + cut);
    const bool isWhole = record && !m_file->isProtected();
    if (m_salvage && m_file->damagedText()) m_salvage(*m_file->damagedText());
    m_isLoaded = true;
    if (isWhole) m_onDisk = bytes();
    watchControls();
    return record || m_file->damagedText();
}

void WindowRecord::watchControls()
{
    const auto watch = [this](auto* control, auto signal) {
        connect(control, signal, this, &WindowRecord::changed);
    };
    for (auto* box : m_window.findChildren<QLineEdit*>())
        watch(box, &QLineEdit::textChanged);
    for (auto* button : m_window.findChildren<QAbstractButton*>())
        watch(button, &QAbstractButton::toggled);
    for (auto* choice : m_window.findChildren<QComboBox*>())
        watch(choice, &QComboBox::currentIndexChanged);
    for (auto* bar : m_window.findChildren<QAbstractSlider*>())
        watch(bar, &QAbstractSlider::valueChanged);
}

void WindowRecord::changed()
{
    // Not started anew: whoever types on without a pause would never be saved.
    if (isUsed() && m_isLoaded && !m_burst.isActive()) m_burst.start();
}

void WindowRecord::saveNow()
{
    if (!isUsed() || !m_isLoaded) return;
    m_burst.stop();
    std::string now = bytes();
    if (now == m_onDisk) return; // typed and taken back, or only looked at
    const std::string fault = m_text ? m_text->saveQuietly(now) : m_file->saveQuietly(m_save());
    const bool isProtected = m_text ? m_text->isProtected() : m_file->isProtected();
    if (fault.empty() && !isProtected) m_onDisk = std::move(now);
    m_notices.say("save", asQString(fault), NoticeLevel::Fault);
}

void WindowRecord::saveSoon()
{
    if (isUsed() && m_isLoaded)
        QMetaObject::invokeMethod(this, &WindowRecord::saveNow, Qt::QueuedConnection);
}

void WindowRecord::saveAtClose()
{
    m_burst.stop();
    if (m_text) m_text->saveAtClose(m_saveText());
    if (m_file) m_file->saveAtClose(m_save());
}

} // namespace korvel
