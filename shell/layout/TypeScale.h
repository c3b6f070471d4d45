// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Result.h"

#include <QFont>

namespace korvel
{

/// The letters of a weight, in proportion to those of captions, which are the desktop's own and
/// follow the zoom: beside captions of 9 points figures have 11 and answers 17, semibold.
QFont lettersOf(Weight weight);

/// The same in the row in hand of a table, whose height is that of its boxes.
QFont lettersOfRowInHand();

} // namespace korvel
