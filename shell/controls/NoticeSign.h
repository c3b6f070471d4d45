// SPDX-License-Identifier: MIT
#pragma once

#include "app/reading/Remarks.h"

#include <optional>

class QPainter;
class QRectF;

namespace korvel
{

/// Draws the sign of what a window says, in the painter's pen: a ring for a hint, a tick for what
/// was done, a triangle for a remark, a filled disc with a cross for a fault. Shapes, because not
/// every font has such letters, and not every eye tells the colours apart.
/// @param level nothing for a hint
void drawNoticeSign(QPainter& painter, const QRectF& room, std::optional<NoticeLevel> level);

/// The same in a word, for those who hear it.
const char* noticeWord(NoticeLevel level);

} // namespace korvel
