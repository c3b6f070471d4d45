// SPDX-License-Identifier: MIT
#pragma once

#include "tests/SourceFolder.h"
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace korvel
{

/// A program's folder of a test, empty at first and removed in the end.
class TideFolder
{
public:
    TideFolder()
    {
        std::string pattern = (std::filesystem::temp_directory_path() / "tide XXXXXX").string();
        folder = mkdtemp(pattern.data());
        std::filesystem::create_directory(folder / "Harmonic Constants");
    }
    ~TideFolder() { std::filesystem::remove_all(folder); }
    TideFolder(const TideFolder&) = delete;
    TideFolder& operator=(const TideFolder&) = delete;

    void write(const std::string& name, const std::string& content) const
    {
        std::ofstream(folder / name, std::ios::binary) << content;
    }
    /// The shipped factors, lines of 46 bytes.
    static std::string shippedFactors()
    {
        std::ifstream stream(shipped() / "AF2005.txt", std::ios::binary);
        return {std::istreambuf_iterator<char>(stream), {}};
    }
    static std::filesystem::path shipped() { return sourceFile("data"); }

    std::filesystem::path folder;
};

/// A stream station. The constants are made up for the tests (no open ones exist for the Singapore
/// Strait): a mixed stream of some 3 knots with a residual ebb, flood setting to 072.
inline const std::string syntheticStream =
    "\"Brothers, synthetic\",8,-0.2,125,1.45,171,0.62,98,0.71,62,0.66,210,0.021,40,0.004,72\r\n";

} // namespace korvel
