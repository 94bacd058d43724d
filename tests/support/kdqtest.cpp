#include "kdqtest.h"

#include <QDir>
#include <QSettings>
#include <QStandardPaths>

void kdqPrepareTest(const char* testName)
{
    QStandardPaths::setTestModeEnabled(true);
    const QString settings = QDir::tempPath()
        + QStringLiteral("/kdqtest-%1-%2")
              .arg(QLatin1String(testName))
              .arg(QCoreApplication::applicationPid());
    QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, settings);
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, settings);
}

void kdqRemoveFolder(const QString& path)
{
    QTRY_VERIFY(QDir(path).removeRecursively());
}
