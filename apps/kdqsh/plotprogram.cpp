#include "plotprogram.h"

#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdQLanguage>

#include <QProcess>
#include <QStandardPaths>

namespace {

constexpr int longest = 120000; // ms
const QLatin1String program("kdqplot");

/// It speaks the language of the shell.
QProcessEnvironment environment()
{
    QProcessEnvironment variables = QProcessEnvironment::systemEnvironment();
    variables.insert(QStringLiteral("LANGUAGE"), kdQLanguage::code(kdCommandDispatcher::I().language()));
    return variables;
}

/// What it said, without its name, which a user of the shell need not know.
QString complaint(QProcess& process)
{
    QString text = QString::fromLocal8Bit(process.readAllStandardError()).trimmed();
    const QString name = program + QLatin1String(": ");
    return text.startsWith(name) ? text.mid(name.size()) : text;
}

} // namespace

QString PlotProgram::path()
{
    const QString beside = QStandardPaths::findExecutable(program, {QCoreApplication::applicationDirPath()});
    return beside.isEmpty() ? QStandardPaths::findExecutable(program) : beside;
}

bool PlotProgram::draw(const Figure& figure, const QString& file, const QString& size, QString& error)
{
    error = figure.fault();
    const QString executable = path();
    if (error.isEmpty() && executable.isEmpty())
        error =
            tr("No pictures can be drawn here: the program '%1' is neither in '%2' nor on the search path.")
                .arg(program, QCoreApplication::applicationDirPath());
    if (!error.isEmpty())
        return false;
    QProcess process;
    process.setProcessEnvironment(environment());
    process.start(executable, {QStringLiteral("--size"), size, QStringLiteral("-"), file});
    process.write(figure.toJson());
    process.closeWriteChannel();
    if (!process.waitForFinished(longest)) {
        error = process.error() == QProcess::Timedout
            ? tr("'%1' was not drawn within %2 s.").arg(file, QString::number(longest / 1000))
            : tr("'%1' cannot be run: %2").arg(executable, process.errorString());
        process.kill();
        process.waitForFinished();
        return false;
    }
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return true;
    error = complaint(process);
    if (process.exitStatus() != QProcess::NormalExit || error.isEmpty())
        error = tr("'%1' ended before the picture was drawn. %2").arg(executable, error).trimmed();
    return false;
}
