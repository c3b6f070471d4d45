// SPDX-License-Identifier: MIT
#pragma once

namespace korvel
{

/// Tells the processor that nothing lies in the upper halves of its vector registers.
///
/// The toolkit's fills leave them in use when they have painted (6.4 does, on x86 with AVX), and as
/// long as they are, every sum of doubles waits for them: a series of sines takes six to ten times
/// as long. No other processor has such halves; there it does nothing.
void releaseVectorRegisters();

} // namespace korvel
