// SPDX-License-Identifier: MIT
#include "app/reading/Field.h"
#include "forms/frmNoon/NoonBoxes.h"
#include "forms/frmPassage/PassageFields.h"
#include "forms/frmTanks/TankFields.h"
#include "forms/frmUKC/UKCFields.h"
#include "tests/golden/Golden.h"

#include <gmock/gmock.h>

#include <cmath>
#include <iomanip>
#include <map>
#include <sstream>
#include <string>

namespace korvel
{
namespace
{

using namespace korvel::testing;

template <typename Table>
void take(std::map<std::string, Field>& all, const Table& table)
{
    for (const Field& field : table)
        if (field.kind == FieldKind::Figure) all.emplace(field.name, field);
}

bool isTaken(const Field& field, double value)
{
    std::ostringstream text;
    text << std::fixed << std::setprecision(9) << value;
    Remarks remarks;
    return readIfTyped(text.str(), field, remarks).has_value();
}

TEST(FieldLimits, aBoxTakesWhatThereIsAndNothingBeyond)
{
    std::map<std::string, Field> fields;
    take(fields, NoonFields);
    take(fields, UKCFields);
    take(fields, CargoTankFields);
    take(fields, BunkerTankFields);
    take(fields, PlanHeadFields);
    take(fields, PlanRowFields);
    for (const Golden& row : golden("field_limits")) {
        const auto found = fields.find(row.text("box"));
        ASSERT_NE(found, fields.end()) << row;
        const double least = row.number("least"), most = row.number("most");
        const double beyond = std::max(1e-8, std::fabs(most) * 1e-12);
        EXPECT_TRUE(isTaken(found->second, least)) << row;
        EXPECT_TRUE(isTaken(found->second, most)) << row;
        EXPECT_FALSE(isTaken(found->second, least - beyond)) << row;
        EXPECT_FALSE(isTaken(found->second, most + beyond)) << row;
        fields.erase(found);
    }
    for (const auto& [name, field] : fields)
        ADD_FAILURE() << name << " has no row";
}

} // namespace
} // namespace korvel
