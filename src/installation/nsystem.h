#pragma once

#include "coversionnumber.h"

#include <kdQCore/cError>
#include <kdqcore_export.h>

#include <QDateTime>
#include <QString>

/// Failures at the border to the operating system (cError, cWindowsError) and what can be learnt from the
/// executables of the Windows products. The readers go by the bytes of the file (PE32 and PE32+) and work on
/// every system; damaged and hostile files end in one of the errors below. Thread-safe.
///
/// \code
/// try {
///     const coVersionNumber installed = nSystem::nWin32::getFileVersionFromStringFileInfo(solverPath);
///     if (installed < required)
///         warn(installed.toString());
/// } catch (const nSystem::cError& failure) {
///     KD_LOG(kdLog::Fault, kdLog::General, failure.message());
/// }
/// \endcode
namespace nSystem {

namespace nWin32 {

/// When the executable was linked, in UTC, to the second. Reproducible builds store a hash in its place, so
/// the result may be any time from 1970 to 2106.
///
/// Throws cWindowsError where the file cannot be opened (a folder included) or mapped (an empty file cannot),
/// and cError where its DOS header, PE signature or file header is wrong or cut off.
KDQCORE_EXPORT QDateTime getLinkTimeStamp(const QString& file);

/// The text "FileVersion" of the executable's first translation. Commas and blanks between the numbers
/// ("1, 2, 0, 7") count as dots, and what follows the numbers after a blank is ignored.
///
/// Throws cWindowsError:
/// - "Could not get size of version info ...": the file cannot be read, is no executable or has no version
///   resource;
/// - "Could not get version info ...": the resource is listed, but its bytes are not in the file;
/// - "Failed to query version info translation values.": the resource has no list of translations;
/// - "Failed to query version info value.": it has no file version in the first translation.
///
/// and cError "Resource language unknown." where the list of translations holds not even one.
/// A resource in several languages is read in the first of them.
KDQCORE_EXPORT coVersionNumber getFileVersionFromStringFileInfo(const QString& file);

} // namespace nWin32

} // namespace nSystem
