// SPDX-License-Identifier: MIT
#include "forms/frmTIDE/data/TideExtension.h"

#include "forms/frmTIDE/data/TideData.h"
#include "forms/frmTIDE/data/TideDates.h"
#include "navlib/datetime.h"
#include "tidedata/factors.h"

namespace korvel
{
namespace
{

constexpr const char* fileBefore = "AF2005.txt.before";

// Keeps the file that is replaced. What is no file stays where it is.
std::optional<std::string> replace(FileStore& files, const std::string& bytes)
{
    const FileStore::Content old = files.read(factorsFileName);
    if (old.status == FileStore::Content::Status::Unreadable) return old.reason;
    if (old.status == FileStore::Content::Status::Read) {
        if (auto fault = files.save(fileBefore, old.bytes)) return fault;
    }
    return files.save(factorsFileName, bytes);
}

} // namespace

std::optional<int> extensionYearFor(std::int64_t serial)
{
    if (serial < firstFactorsSerial) return std::nullopt;
    const int year = NavFunc113::DateOfSerial(serial).year;
    if (year <= offeredYear) return offeredYear;
    if (year <= tidedata::lastFactorYear) return tidedata::lastFactorYear;
    return std::nullopt;
}

std::string extensionOffer(int year)
{
    return "Extend the predictions to " + std::to_string(year) + "?";
}

ExtensionResult extendFactors(FileStore& files, int lastYear, const Progress& progress)
{
    const std::string bytes = tidedata::factorsFile(lastYear, progress);
    if (const std::optional<std::string> fault = replace(files, bytes))
        return {false, "The predictions were not extended. " + files.path(factorsFileName) + ": " +
                           *fault + "."};
    return {true, "Predictions reach to the end of " + std::to_string(lastYear) + " with " +
                      files.path(factorsFileName) + "; the file before is kept as " + fileBefore +
                      "."};
}

bool canUndoExtension(FileStore& files)
{
    return files.look(fileBefore).status == FileStore::Content::Status::Read;
}

ExtensionResult undoExtension(FileStore& files)
{
    const FileStore::Content before = files.read(fileBefore);
    std::optional<std::string> fault;
    if (before.status != FileStore::Content::Status::Read)
        fault = "there is no " + std::string(fileBefore);
    else if (!(fault = files.save(factorsFileName, before.bytes)))
        fault = files.remove(fileBefore);
    if (fault) return {false, "The extension was not taken back: " + *fault + "."};
    return {true, "The factors file is again as it was before."};
}

} // namespace korvel
