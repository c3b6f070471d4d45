// SPDX-License-Identifier: MIT
#pragma once

#include "shell/machine/ProgramFolder.h"

#include <optional>

namespace korvel
{

/// Where a run of the program finds its files.
struct Places {
    QString data;    ///< tide data as shipped
    QString records; ///< the officer's settings and extended tide data; often the same folder
};

/// A portable program keeps its records beside itself. One that is installed for everybody
/// (bin/ beside share/korvel2000/), or whose folder cannot be written to, keeps them in the
/// officer's own folder.
/// @param programFolder where the program lies
/// @param officersFolder need not exist yet; it is made when it is chosen
Places choosePlaces(const QString& programFolder, const QString& officersFolder);

/// The officer's own folder for this program on this system.
QString officersFolder();

/// The records before the shipped data: what is written lies in the officer's folder and hides the
/// shipped file of the same name.
class RecordsFolder : public FileStore
{
public:
    explicit RecordsFolder(const Places& places);

    /// Where records are written, without a trailing separator.
    QString folder() const { return m_places.records; }

    Content read(const std::string& name) override;
    Content readAt(const std::string& name, std::int64_t offset, std::size_t length) override;
    std::optional<std::string> save(const std::string& name, const std::string& bytes) override;
    std::optional<std::string> rename(const std::string& name, const std::string& newName) override;
    std::optional<std::string> remove(const std::string& name) override;
    std::optional<std::string> append(const std::string& name, const std::string& bytes) override;
    std::vector<std::string> names(const std::string& beginning,
                                   const std::string& ending) const override;
    Content readAnywhere(const std::string& path) override;
    std::optional<std::string> saveAnywhere(const std::string& path,
                                            const std::string& bytes) override;
    std::string path(const std::string& name) const override;

private:
    ProgramFolder& holderOf(const std::string& name);
    bool isOnlyShipped(const std::string& name) const;

    Places m_places;
    ProgramFolder m_records;
    ProgramFolder m_shipped;
};

} // namespace korvel
