#pragma once

#include <QStringList>

/// The lines typed in this and earlier sessions: each once, the last use counts; the last 1000 of them; in a
/// file that only the user may read (UTF-8). Every line is in the file as soon as it was typed, so sessions
/// that run side by side and such that crash lose none. Lines that begin with a blank are not kept.
class LineHistory {
public:
    /// Kept in no file where \a path is empty; a file that cannot be read or written is none.
    explicit LineHistory(const QString& path);

    /// Oldest first.
    const QStringList& lines() const { return m_lines; }
    void add(const QString& typed);

private:
    void take(const QString& line);

    QString m_path;
    QStringList m_lines;
};
