// SPDX-License-Identifier: MIT
#include "shell/main/GoToPlaces.h"

#include <gmock/gmock.h>

#include <string>
#include <vector>

namespace korvel
{
namespace
{

} // namespace
} // namespace korvel
