// SPDX-License-Identifier: MIT
#pragma once

#include <QDialog>
#include <QPointer>

namespace korvel
{

/// Shows a dialog until it is left, and deletes it. The window that it belongs to may be gone
/// before, as at the end of the session, and takes it along: whoever gets Rejected must not rely on
/// that window.
inline int execOwned(QDialog* dialog)
{
    const QPointer<QDialog> still = dialog;
    const int outcome = dialog->exec();
    delete still.data();
    return outcome;
}

} // namespace korvel
