// SPDX-License-Identifier: MIT
#pragma once

#include "tests/SourceFolder.h"
#include "tests/app/FakeMachine.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <string>

namespace korvel
{

/// Data files in memory: a test's own, or copies of the shipped ones.
class TideFolder
{
public:
    void write(const std::string& name, const std::string& content) { files.files[name] = content; }

    /// What is shipped beside the program.
    static korvel::testing::FakeFiles& shipped()
    {
        static korvel::testing::FakeFiles all = [] {
            const std::filesystem::path data = sourceFile("data");
            korvel::testing::FakeFiles read;
            for (const auto& entry : std::filesystem::recursive_directory_iterator(data)) {
                if (!entry.is_regular_file()) continue;
                std::ifstream stream(entry.path(), std::ios::binary);
                read.files[std::filesystem::relative(entry.path(), data).generic_string()] = {
                    std::istreambuf_iterator<char>(stream), {}};
            }
            return read;
        }();
        return all;
    }
    static std::string shippedFactors() { return shipped().files["AF2005.txt"]; }

    korvel::testing::FakeFiles files;
};

/// A stream station. The constants are made up for the tests (no open ones exist for the Singapore
/// Strait): a mixed stream of some 3 knots with a residual ebb, flood setting to 072.
inline const std::string syntheticStream =
    "\"Brothers, synthetic\",8,-0.2,125,1.45,171,0.62,98,0.71,62,0.66,210,0.021,40,0.004,72\r\n";

} // namespace korvel
