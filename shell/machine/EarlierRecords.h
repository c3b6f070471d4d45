// SPDX-License-Identifier: MIT
#pragma once

#include "app/machine/Questions.h"
#include "shell/machine/RecordsFolder.h"

#include <QStringList>

#include <functional>
#include <string>

namespace korvel
{

/// Copies the records of an earlier portable folder, and its tide data where they reach further
/// than the shipped ones. A record that is there already stays as it is.
/// @return what was done, for the officer: lines are ended by carriage returns
std::string takeRecords(const QString& earlierFolder, const Places& places);

/// What the start of the program does about records of an earlier portable folder: takes over those
/// of the folder that follows --take-records on the command line; otherwise, while the officer's
/// own folder holds no record yet, says which folder that is and offers to take some over.
/// @param chooseFolder asks for a folder; an empty answer is a refusal
void settleRecords(const Places& places, const QStringList& arguments, Questions& questions,
                   const std::function<QString()>& chooseFolder);

} // namespace korvel
