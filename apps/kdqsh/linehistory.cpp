#include "linehistory.h"

#include <QDir>
#include <QFileInfo>
#include <QSaveFile>

namespace {

constexpr int maximalLines = 1000;
constexpr QFile::Permissions userOnly = QFile::ReadOwner | QFile::WriteOwner;

bool isWritten(QFileDevice& file, const QString& text)
{
    return file.setPermissions(userOnly) && file.write(text.toUtf8() + '\n') > 0;
}

} // namespace

LineHistory::LineHistory(const QString& path) : m_path(path)
{
    QFile file(path);
    if (path.isEmpty() || !file.open(QIODevice::ReadOnly))
        return;
    const QStringList lines = QString::fromUtf8(file.readAll()).split(QLatin1Char('\n'), Qt::SkipEmptyParts);
    for (const QString& line : lines)
        take(line);
    file.close();
    QSaveFile shorter(path);
    if (lines.size() > 2 * maximalLines && shorter.open(QIODevice::WriteOnly)
        && isWritten(shorter, m_lines.join(QLatin1Char('\n'))))
        shorter.commit();
}

void LineHistory::add(const QString& typed)
{
    const QString line = typed.trimmed();
    if (line.isEmpty() || typed.at(0).isSpace())
        return;
    take(line);
    QFile file(m_path);
    QDir().mkpath(QFileInfo(m_path).path());
    if (!m_path.isEmpty() && file.open(QIODevice::WriteOnly | QIODevice::Append))
        isWritten(file, line);
}

void LineHistory::take(const QString& line)
{
    m_lines.removeOne(line);
    m_lines.append(line);
    if (m_lines.size() > maximalLines)
        m_lines.removeFirst();
}
