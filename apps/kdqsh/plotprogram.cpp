#include "plotprogram.h"

#include "shellevents.h"
#include "shelloutput.h"

#include <kdQCore/kdCommandDispatcher>
#include <kdQCore/kdQLanguage>

#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

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

bool PlotProgram::draw(const ShellCall& call, const Figure& figure, const QString& file, const QString& size)
{
    const QString fault = figure.fault();
    if (!fault.isEmpty())
        return call.fail(fault);
    // The program may be ended while it writes: what it leaves behind goes with the folder.
    const QTemporaryDir folder;
    QFile picture(folder.filePath(QLatin1String("picture.") + QFileInfo(file).suffix()));
    if (!run(call, figure, {QStringLiteral("--size"), size, QStringLiteral("-"), picture.fileName()}, file))
        return false;
    if (!picture.open(QIODevice::ReadOnly))
        return call.fail(tr("'%1' cannot be read: %2").arg(picture.fileName(), picture.errorString()));
    const QByteArray bytes = picture.readAll();
    return nShellOutput::write(call, file, bytes.size(),
                               [&bytes](QIODevice& device) { return device.write(bytes) == bytes.size(); });
}

bool PlotProgram::run(const ShellCall& call, const Figure& figure, const QStringList& arguments,
                      const QString& file)
{
    const QString executable = path();
    if (executable.isEmpty())
        return call.fail(
            tr("No pictures can be drawn here: the program '%1' is neither in '%2' nor on the search path.")
                .arg(program, QCoreApplication::applicationDirPath()));
    QProcess process;
    ShellEvents events(call, tr("Drawing '%1'").arg(file), longest);
    QObject::connect(&process, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &process,
                     [&events] { events.end(ShellEvents::Done); });
    QObject::connect(&process, &QProcess::errorOccurred, &process, [&](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            events.end(ShellEvents::Closed);
    });
    process.setProcessEnvironment(environment());
    process.start(executable, arguments);
    process.write(figure.thinned().toJson());
    process.closeWriteChannel();
    switch (events.run()) {
    case ShellEvents::Done:
        break;
    case ShellEvents::Closed:
        return call.fail(tr("'%1' cannot be run: %2").arg(executable, process.errorString()));
    default:
        process.kill();
        process.waitForFinished();
        return call.fail(tr("'%1' was not drawn within %2 s.").arg(file, QString::number(longest / 1000)));
    }
    if (process.exitStatus() == QProcess::NormalExit && process.exitCode() == 0)
        return true;
    const QString reason = complaint(process);
    if (process.exitStatus() == QProcess::NormalExit && !reason.isEmpty())
        return call.fail(reason);
    return call.fail(tr("'%1' ended before the picture was drawn. %2").arg(executable, reason).trimmed());
}
