#include "coscriptmode.h"

#include <kdQCore/kdTypedException>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QStringList>
#include <QTextStream>

namespace {

using ScriptException = kdTypedException<QString>;

/// The name in an include statement: a null text for any other line.
QString includedName(const QString& line)
{
    const QString keyword = QStringLiteral("include");
    QString name = line.trimmed();
    if (!name.startsWith(keyword))
        return QString();
    name.remove(0, keyword.size());
    if (!name.isEmpty() && (name.at(0).isLetterOrNumber() || name.at(0) == QLatin1Char('_')))
        return QString();
    if (name.endsWith(QLatin1Char(';')))
        name.chop(1);
    name = name.trimmed();
    const bool quoted = name.size() > 1 && name.front() == name.back()
        && (name.front() == QLatin1Char('"') || name.front() == QLatin1Char('\''));
    return QLatin1String("") + (quoted ? name.mid(1, name.size() - 2) : name);
}

class ScriptReader {
public:
    QString read(const QString& path);

private:
    QString readIncluded(const QString& name, const QString& includingPath);

    static constexpr int s_maximumIncludes = 1000;
    QStringList m_open; ///< canonical paths from the first script to the one at hand
    int m_includes = 0;
};

QString ScriptReader::read(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        throw ScriptException(coScriptMode::tr("Failed to open script file."),
                              coScriptMode::tr("Path: %1, Error: %2").arg(path, file.errorString()));
    m_open.append(QFileInfo(path).canonicalFilePath());
    QTextStream stream(&file);
    stream.setCodec("UTF-8");
    QString content;
    QString line;
    while (stream.readLineInto(&line)) {
        const QString name = includedName(line);
        content += name.isNull() ? line + QLatin1Char('\n') : readIncluded(name, path);
    }
    m_open.removeLast();
    return content;
}

QString ScriptReader::readIncluded(const QString& name, const QString& includingPath)
{
    const QFileInfo included(QFileInfo(includingPath).absoluteDir(), name);
    if (name.isEmpty() || !included.isFile())
        throw ScriptException(coScriptMode::tr("Included script expected but not found"),
                              coScriptMode::tr("include script '%1' could not be found").arg(name));
    if (m_open.contains(included.canonicalFilePath()))
        throw ScriptException(
            coScriptMode::tr("Included script includes itself"),
            coScriptMode::tr("include script '%1' is included by '%2', which it includes itself")
                .arg(name, includingPath));
    if (++m_includes > s_maximumIncludes)
        throw ScriptException(coScriptMode::tr("Too many included scripts"),
                              coScriptMode::tr("include script '%1' is one more than the %2 that are allowed")
                                  .arg(name, QString::number(s_maximumIncludes)));
    return read(included.filePath());
}

} // namespace

QString coScriptMode::readScriptContentToExecute(const QString& path)
{
    return ScriptReader().read(path);
}
