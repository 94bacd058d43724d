#pragma once

#include "kdqtest.h"

#include <QProcess>
#include <QTemporaryDir>

/// Runs kdqsh as a user does, in a folder of its own, with its own data folder, in English where the test
/// does not say otherwise. The locale is that of the test: decimals with a comma.
class KdqshRun {
public:
    KdqshRun() { m_folder.setAutoRemove(false); }
    ~KdqshRun() { kdqRemoveFolder(folder()); }
    Q_DISABLE_COPY(KdqshRun)

    QString folder() const { return m_folder.path(); }
    QString path(const QString& name) const { return m_folder.filePath(name); }

    void setVariable(const QString& name, const QString& value) { m_environment.insert(name, value); }

    bool write(const QString& name, const QByteArray& content) const
    {
        QFile file(path(name));
        return file.open(QIODevice::WriteOnly) && file.write(content) == content.size();
    }

    QByteArray read(const QString& name) const
    {
        QFile file(path(name));
        return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
    }

    /// False where it did not end in time or crashed.
    bool run(const QStringList& arguments, const QByteArray& input = QByteArray())
    {
        QProcess process;
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("LANGUAGE"), QStringLiteral("en"));
        environment.insert(QStringLiteral("LOCALAPPDATA"), path(QStringLiteral("data")));
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), path(QStringLiteral("data/config")));
        environment.insert(m_environment);
        process.setProcessEnvironment(environment);
        process.setWorkingDirectory(folder());
        process.start(QStringLiteral(KDQSH_PROGRAM), arguments);
        process.write(input);
        process.closeWriteChannel();
        const bool isFinished = process.waitForFinished(60000);
        output = QString::fromLocal8Bit(kdqWithPlainLineEnds(process.readAllStandardOutput()));
        errors = QString::fromLocal8Bit(kdqWithPlainLineEnds(process.readAllStandardError()));
        status = process.exitCode();
        return isFinished && process.exitStatus() == QProcess::NormalExit;
    }

    bool runCommands(const QString& commands, const QStringList& options = {})
    {
        return run(options + QStringList{QStringLiteral("-c"), commands});
    }

    QString output;
    QString errors;
    int status = -1;

private:
    QTemporaryDir m_folder;
    QProcessEnvironment m_environment;
};
