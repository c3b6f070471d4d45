// SPDX-License-Identifier: MIT
#pragma once

#include <fcntl.h>
#include <unistd.h>

#include <cstddef>
#include <cstdint>
#include <string>

namespace korvel
{

/// A data file open for reading at byte positions. The system's calls themselves: a stream would
/// take longer to open than the day's prediction to compute, and one is made at every step of the
/// date scroll bar.
class DataFile
{
public:
    explicit DataFile(const std::string& path)
        : m_descriptor(::open(path.c_str(), O_RDONLY | O_CLOEXEC))
    {
    }
    ~DataFile()
    {
        if (isOpen()) ::close(m_descriptor);
    }
    DataFile(const DataFile&) = delete;
    DataFile& operator=(const DataFile&) = delete;

    bool isOpen() const { return m_descriptor >= 0; }

    /// Reads up to count bytes at a position counted from 0.
    /// @return how many there were; 0 also when the file cannot be read (a folder, a bad disk)
    std::size_t read(char* bytes, std::size_t count, std::int64_t position) const
    {
        const ssize_t got = ::pread(m_descriptor, bytes, count, position);
        return got > 0 ? static_cast<std::size_t>(got) : 0;
    }

private:
    int m_descriptor;
};

} // namespace korvel
