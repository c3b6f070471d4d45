// SPDX-License-Identifier: MIT
#pragma once

#include <QStringList>

namespace korvel
{

/// @param file name of a shared library, without its folder
/// @return of "libicuuc.so.72.1" "icuuc 72.1"; empty for what bears no version, as plugins
QString nameAndVersion(const QString& file);

/// The libraries that this process has loaded, as "icuuc 72.1", in alphabetical order: what lies
/// beside the program or in the system, not what it was built with. Empty where everything is in
/// the program itself.
QStringList librariesInUse();

/// Compiler and standard library of the program.
QString compilerInUse();

} // namespace korvel
