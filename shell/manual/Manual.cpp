// SPDX-License-Identifier: MIT
#include "shell/manual/Manual.h"

#include "shell/machine/AsQString.h"

namespace korvel
{
namespace
{

std::string fileOf(const QString& page)
{
    return "manual/" + page.toStdString() + ".md";
}

/// A path may hold what would be taken for markup.
QString escaped(QString text)
{
    for (const char* sign : {"\\", "_", "*", "`", "<"})
        text.replace(sign, QString("\\") + sign);
    return text;
}

} // namespace

const QStringList& Manual::pages()
{
    static const QStringList all = {
        "main-window", "first-start", "frmCDDR",    "frmGC2000",  "frmSunMoon", "frmPositionRecord",
        "frmSunSight", "frmCompass",  "frmETA",     "frmWind",    "frmWeather", "frmCRUDE",
        "conversion",  "frmTIDE",     "frmPassage", "frmNoon",    "frmUKC",     "frmSky",
        "frmTanks",    "paper",       "messages",   "installing", "about",
    };
    return all;
}

QString Manual::pageOf(const QString& window)
{
    static const QStringList conversions = {
        "frmLength", "frmVolume",  "frmArea", "frmWeight", "frmPressure", "frmTemperature",
        "frmSpeed",  "frmDensity", "frmFlow", "frmEnergy", "frmAngle"};
    static const QStringList papers = {"frmPaper", "frmJournal", "dlgPreview"};
    if (conversions.contains(window)) return "conversion";
    if (papers.contains(window)) return "paper";
    return pages().contains(window) ? window : pages().front();
}

bool Manual::has(const QString& page) const
{
    return m_files.look(fileOf(page)).status == FileStore::Content::Status::Read;
}

QString Manual::text(const QString& page) const
{
    const FileStore::Content content = m_files.read(fileOf(page));
    if (content.status != FileStore::Content::Status::Read)
        return "# No manual\n\nThis page should lie in\n\n    " +
               asQString(m_files.path(fileOf(page))) +
               "\n\nand cannot be read. Copy the folder `manual` of the program's package there.";
    QString text = asQString(content.bytes);
    if (m_facts.empty()) m_facts = facts();
    for (const auto& [name, fact] : m_facts)
        text.replace('{' + name + '}', escaped(fact));
    return text;
}

QString Manual::title(const QString& page) const
{
    for (const QString& line : text(page).split('\n'))
        if (line.startsWith('#')) return QString(line).remove(0, line.indexOf(' ') + 1);
    return page;
}

} // namespace korvel
