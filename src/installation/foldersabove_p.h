#pragma once

#include <QDir>
#include <QFileInfo>
#include <QString>

/// The absolute path of the nearest folder, from \a start upwards to the root, that is \a wanted; empty where
/// there is none. The folders need not exist.
template <typename Predicate>
QString nearestFolderAbove(const QString& start, Predicate wanted)
{
    QString path = QDir(start).absolutePath();
    int length = 0;
    do {
        if (wanted(QDir(path)))
            return path;
        length = path.size();
        path = QFileInfo(path).path();
    } while (path.size() < length);
    return QString();
}

/// Whether \a path is the folder or lies below it, as the file system sees it. Both must exist.
inline bool liesInFolder(const QString& path, const QString& folder)
{
    const QFileInfo wanted(folder);
    return !nearestFolderAbove(path, [&wanted](const QDir& dir) {
                return QFileInfo(dir.path()) == wanted;
            }).isEmpty();
}
