// SPDX-License-Identifier: MIT
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace korvel
{

/// The files beside the program. Names are as in "KV_GC.ini" or "Harmonic Constants/HC_Kobe.txt":
/// UTF-8, "/" between folder and file, without a leading separator.
///
/// Only plain files are files: a folder, a pipe or a device of that name is refused with a reason,
/// never waited for.
class FileStore
{
public:
    struct Content {
        enum class Status { Missing, Unreadable, Read };
        Status status = Status::Missing;
        std::string bytes;   ///< when Read
        std::string reason;  ///< in words, when Unreadable
        std::int64_t size{}; ///< of the whole file in bytes, when Read
    };

    virtual ~FileStore() = default;

    /// Reads a whole file. One that is larger than any file of the program's can be is Unreadable.
    virtual Content read(const std::string& name) = 0;

    /// Reads a piece of a file of any size.
    /// @param offset of its first byte, 0 or more
    /// @param length bytes wanted; the file's end may give fewer, and none beyond it
    virtual Content readAt(const std::string& name, std::int64_t offset, std::size_t length) = 0;

    /// Whether there is a file that can be read, and its size, without any of its bytes.
    Content look(const std::string& name) { return readAt(name, 0, 0); }

    /// Replaces a file whole or not at all.
    /// @return nothing on success, otherwise the reason in words
    virtual std::optional<std::string> save(const std::string& name, const std::string& bytes) = 0;

    /// Gives a file another name in the same folder.
    /// @param newName must not be taken
    /// @return nothing on success, otherwise the reason in words
    virtual std::optional<std::string> rename(const std::string& name,
                                              const std::string& newName) = 0;

    /// Removes a file; one that is missing is removed already.
    /// @return nothing on success, otherwise the reason in words
    virtual std::optional<std::string> remove(const std::string& name) = 0;

    /// Adds to the end of a file, which is made when it is missing. What is there stays as it is:
    /// an addition that cannot be written whole is taken back.
    /// @return nothing on success, otherwise the reason in words
    virtual std::optional<std::string> append(const std::string& name,
                                              const std::string& bytes) = 0;

    /// Names of the files that begin and end so, in their order.
    virtual std::vector<std::string> names(const std::string& beginning,
                                           const std::string& ending) const = 0;

    /// Reads a file that the officer chose, anywhere.
    /// @param path in full, as the system writes it
    virtual Content readAnywhere(const std::string& path) = 0;
    /// Replaces a file that the officer chose whole or not at all, as save() does.
    virtual std::optional<std::string> saveAnywhere(const std::string& path,
                                                    const std::string& bytes) = 0;

    /// Full path of a file as the system writes it, for messages.
    virtual std::string path(const std::string& name) const = 0;
};

} // namespace korvel
