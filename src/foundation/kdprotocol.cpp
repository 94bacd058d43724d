#include "kdprotocol.h"

#include <QDateTime>
#include <QDir>
#include <QLocale>

namespace {

bool writeAll(QFile& file, const QByteArray& bytes)
{
    // Flushed here, because a full disk would otherwise first be noticed by a close() that returns nothing.
    return file.write(bytes) == bytes.size() && file.flush();
}

} // namespace

kdProtocol::kdProtocol(const QString& subjectFile)
{
    if (!subjectFile.isEmpty())
        m_subject.setFile(subjectFile);
    m_subject.setCaching(false);
}

QString kdProtocol::absoluteFilePath() const
{
    const QString folder = absolutePath();
    return folder.isEmpty() ? QString() : folder + m_subject.fileName() + QLatin1String(".log");
}

bool kdProtocol::addMessage(QStringList lines)
{
    lines.removeAll(QString());
    if (lines.isEmpty())
        return true;
    if (!createLog())
        return false;
    QFile file(absoluteFilePath());
    if (!file.open(QIODevice::Append))
        return false;
    QByteArray bytes;
    for (const QString& line : qAsConst(lines))
        bytes += line.toLocal8Bit() + '\n';
    if (!writeAll(file, bytes))
        return false;
    m_isFirstWrite = false;
    return true;
}

bool kdProtocol::addMessage(const QString& line)
{
    return addMessage(QStringList{line});
}

QString kdProtocol::absolutePath() const
{
    if (m_subject.filePath().isEmpty() || !m_subject.exists())
        return QString();
    QString folder = QDir::toNativeSeparators(m_subject.absolutePath());
    if (folder.endsWith(QDir::separator())) // the root folder
        folder.chop(1);
    return folder + relativePath();
}

QString kdProtocol::relativePath() const
{
    return QDir::separator() + QLatin1String("_log") + QDir::separator();
}

bool kdProtocol::createLog()
{
    const QString folder = absolutePath();
    if (folder.isEmpty())
        return false;
    const bool isNew = !QFileInfo::exists(absoluteFilePath());
    if (!isNew && !m_isFirstWrite)
        return true;
    if (!QFileInfo(folder).isDir() && !QDir().mkdir(folder))
        return false;
    return writeHeader(isNew);
}

bool kdProtocol::writeHeader(bool isNew) const
{
    QFile file(absoluteFilePath());
    if (!file.open(isNew ? QIODevice::WriteOnly : QIODevice::Append))
        return false;
    const QString rule = QLatin1Char('$') + QString(80, QLatin1Char('-')) + QLatin1Char('\n');
    QString header = rule;
    if (isNew)
        header += QLatin1String("$Command log file for process: ") + m_subject.fileName() + QLatin1Char('\n');
    header += QLatin1Char('$') + QLocale().toString(QDateTime::currentDateTime(), QLocale::ShortFormat)
        + QLatin1Char('\n');
    header += rule + QLatin1Char('\n');
    return writeAll(file, header.toLocal8Bit());
}
