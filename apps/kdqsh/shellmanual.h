#pragma once

#include <QCommandLineOption>
#include <QList>

/// The manual page, made from the help texts, so that it cannot lag behind them.
namespace nShellManual {

/// In mdoc. Its date is that of SOURCE_DATE_EPOCH where this variable is set, else today.
QString page(const QString& description, const QList<QCommandLineOption>& options);

} // namespace nShellManual
