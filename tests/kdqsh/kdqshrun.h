#pragma once

#include "kdqtest.h"

#include <QProcess>
#include <QRegularExpression>
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

    /// Another copy of the program.
    void setProgram(const QString& program) { m_program = program; }
    void setVariable(const QString& name, const QString& value) { m_environment.insert(name, value); }

    bool write(const QString& name, const QByteArray& content) const { return kdqWrite(path(name), content); }
    QByteArray read(const QString& name) const { return kdqContentOf(path(name)); }

    /// False where it did not end in time or crashed.
    bool run(const QStringList& arguments, const QByteArray& input = QByteArray())
    {
        start(arguments);
        m_process.write(input);
        m_process.closeWriteChannel();
        return finish();
    }

    void start(const QStringList& arguments)
    {
        m_process.setProcessEnvironment(environment(path(S("data"))));
        m_process.setWorkingDirectory(folder());
        m_process.start(m_program, arguments);
        output.clear();
    }

    QProcessEnvironment environment(const QString& data) const
    {
        QProcessEnvironment result = QProcessEnvironment::systemEnvironment();
        result.insert(S("LANGUAGE"), S("en"));
        result.insert(S("LOCALAPPDATA"), data);
        result.insert(S("XDG_CONFIG_HOME"), data + S("/config"));
        result.insert(m_environment);
        return result;
    }

    /// The next line of a shell that runs; empty where none comes.
    QString nextLine()
    {
        while (!m_process.canReadLine() && m_process.waitForReadyRead(60000)) { }
        const QString line = text(m_process.readLine());
        output += line;
        return line;
    }

    bool finish()
    {
        const bool isFinished = m_process.waitForFinished(60000);
        output += text(m_process.readAllStandardOutput());
        errors = text(m_process.readAllStandardError());
        status = m_process.exitCode();
        return isFinished && m_process.exitStatus() == QProcess::NormalExit;
    }

    bool runCommands(const QString& commands, const QStringList& options = {})
    {
        return run(options + QStringList{S("-c"), commands});
    }

    QString output;
    QString errors;
    int status = -1;

private:
    /// Without progress, which is told after a second only: a matter of the machine.
    static QString text(const QByteArray& bytes)
    {
        static const QRegularExpression progress(QStringLiteral("^ *\\d+ % .*\\n"),
                                                 QRegularExpression::MultilineOption);
        return QString::fromLocal8Bit(kdqWithPlainLineEnds(bytes)).remove(progress);
    }

    QTemporaryDir m_folder;
    QString m_program = S(KDQSH_PROGRAM);
    QProcess m_process;
    QProcessEnvironment m_environment;
};
