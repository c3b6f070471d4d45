// SPDX-License-Identifier: MIT
#pragma once

#include "app/records/FileStore.h"

#include <QString>

namespace korvel
{

/// The folder that the program was started from, where its settings and data lie.
class ProgramFolder : public FileStore
{
public:
    /// What a save leaves that was cut off in an earlier run. Another program may hold the folder
    /// and be saving: nobody removes them before it is known that none does.
    enum class Remnants { Removed, Left };

    /// @param folder without a trailing separator
    explicit ProgramFolder(QString folder, Remnants remnants = Remnants::Removed);

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
    QString pathOf(const std::string& name) const;

    QString m_folder;
};

} // namespace korvel
