// SPDX-License-Identifier: MIT
#include "shell/window/KeptPages.h"

#include "shell/machine/AsQString.h"
#include "shell/window/WindowRecord.h"

namespace korvel
{

void keepPages(WindowRecord& record, const char* file, const char* kind,
               const std::vector<PageRecord>& pages)
{
    PageRecord kept;
    for (const PageRecord& each : pages) {
        kept.boxes.insert(kept.boxes.end(), each.boxes.begin(), each.boxes.end());
        kept.choices.insert(kept.choices.end(), each.choices.begin(), each.choices.end());
    }
    std::vector<FieldKind> kinds = recordKinds(kept.boxes);
    kinds.insert(kinds.begin(), FieldKind::Text);
    kinds.insert(kinds.end(), kept.choices.size(), FieldKind::Number);
    record.use(
        file, std::move(kinds),
        [kept, kind] {
            Record values = {std::string(kind)};
            for (const EntryBox* box : kept.boxes)
                values.emplace_back(box->value());
            for (const PageRecord::Choice& choice : kept.choices)
                values.emplace_back(static_cast<double>(choice.get()));
            return values;
        },
        [kept](const Record& values) {
            std::size_t next = 1;
            for (EntryBox* box : kept.boxes)
                box->setText(asQString(textOf(values[next++])));
            for (const PageRecord::Choice& choice : kept.choices)
                choice.set(static_cast<int>(numberOf(values[next++])));
        });
}

} // namespace korvel
