// SPDX-License-Identifier: MIT
#pragma once

#include <optional>
#include <string>

namespace korvel
{

/// The files beside the program. Names are as in "KV_GC.ini", without a leading separator.
class FileStore
{
public:
    struct Content {
        enum class Status { Missing, Unreadable, Read };
        Status status = Status::Missing;
        std::string bytes;  ///< when Read
        std::string reason; ///< in words, when Unreadable
    };

    virtual ~FileStore() = default;

    /// Reads a whole file. A directory, or a file larger than any settings file can be, is
    /// Unreadable.
    virtual Content read(const std::string& name) = 0;

    /// Replaces a file whole or not at all.
    /// @return nothing on success, otherwise the reason in words
    virtual std::optional<std::string> save(const std::string& name, const std::string& bytes) = 0;

    /// Full path of a file, for messages and for readers of data files.
    virtual std::string path(const std::string& name) const = 0;
};

} // namespace korvel
