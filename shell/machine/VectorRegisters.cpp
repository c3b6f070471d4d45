// SPDX-License-Identifier: MIT
#include "shell/machine/VectorRegisters.h"

#if defined(__x86_64__)
#include <immintrin.h>
#endif

namespace korvel
{

#if defined(__x86_64__)
namespace
{

[[gnu::target("avx")]] void zeroUpperHalves()
{
    _mm256_zeroupper();
}

} // namespace

void releaseVectorRegisters()
{
    static const bool hasUpperHalves = __builtin_cpu_supports("avx");
    if (hasUpperHalves) zeroUpperHalves();
}
#else
void releaseVectorRegisters() {}
#endif

} // namespace korvel
