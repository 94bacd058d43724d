#pragma once

#include <kdqcore_export.h>

#include <QString>
#include <QStringList>

/// The fixed texts of the demos application.
namespace nKaldoranDemos {

KDQCORE_EXPORT QString productName();                    ///< "Kaldoran Demos"
KDQCORE_EXPORT QString productNameForFilePath();         ///< "kaldoran.demos"
KDQCORE_EXPORT QString productVersion();                 ///< "2018"
KDQCORE_EXPORT QString fullRevisionVersion();            ///< the version and the revision: "2018.345"
KDQCORE_EXPORT QString productNameAndVersion();          ///< "Kaldoran Demos 2018"
KDQCORE_EXPORT QString iniFileName();                    ///< "kaldoran.demos"
KDQCORE_EXPORT QString exeFileName(bool withExtension);  ///< "kaldoran.demos" or "kaldoran.demos.exe"
KDQCORE_EXPORT QString startMenuName();                  ///< "Demos & Examples"
KDQCORE_EXPORT QString demosFileExtension(bool withDot); ///< "kddemos" or ".kddemos"
/// The files that the application opens, for file dialogues: "*.xml", "*.kddemos".
KDQCORE_EXPORT QStringList standardNameFilter();

} // namespace nKaldoranDemos
