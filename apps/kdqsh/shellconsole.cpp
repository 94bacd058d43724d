#include "shellconsole.h"

#include "platform.h"

#include <algorithm>
#include <cstdio>

ShellConsole::ShellConsole()
    : m_out(stdout), m_err(stderr), m_hasTerminal(nPlatform::isTerminal(nPlatform::StandardStream::Error))
{
    QObject::connect(&m_reporter, &kdReporter::signalErrorMessage, &m_reporter,
                     [this](const QString& text) { error(text); });
    QObject::connect(&m_reporter, &kdReporter::signalMessage, &m_reporter,
                     [this](const QString& text, int level) { message(text, level); });
    QObject::connect(&m_reporter, &kdReporter::signalStartOperation, &m_reporter,
                     [this](const QString& text) { startOperation(text); });
    QObject::connect(&m_reporter, &kdReporter::signalProgress, &m_reporter,
                     [this](double fraction) { showProgress(fraction); });
    QObject::connect(&m_reporter, &kdReporter::signalFinishOperation, &m_reporter,
                     [this](const QString& text) { finishOperation(text); });
}

void ShellConsole::message(const QString& text, int level)
{
    m_hasResults = m_hasResults || level == Result;
    if (level <= m_maximalLevel)
        showMessage(text, level);
}

void ShellConsole::error(const QString& text)
{
    ++m_errorCount;
    const QString line = text.simplified();
    showError(m_place.isEmpty() ? line : QStringLiteral("%1: %2").arg(m_place, line));
}

void ShellConsole::setColours(Colours colours)
{
    const bool isWanted = colours == Always
        || (colours == OnTerminals && qEnvironmentVariableIsEmpty("NO_COLOR")
            && qEnvironmentVariable("TERM") != QLatin1String("dumb"));
    const auto paints = [&](nPlatform::StandardStream stream) {
        return isWanted && (nPlatform::enableEscapeSequences(stream) || colours == Always);
    };
    m_paintsOut = paints(nPlatform::StandardStream::Output);
    m_paintsErrors = paints(nPlatform::StandardStream::Error);
}

QString ShellConsole::painted(const QString& text, const char* style, bool isPainted)
{
    return isPainted ? QStringLiteral("\033[%1m%2\033[0m").arg(QLatin1String(style), text) : text;
}

void ShellConsole::showMessage(const QString& text, int level)
{
    eraseBar();
    m_out << painted(text, "33", m_paintsOut && level == Warning) << Qt::endl;
}

void ShellConsole::showError(const QString& line)
{
    eraseBar();
    m_out.flush();
    m_err << painted(line, "31", m_paintsErrors) << Qt::endl;
}

void ShellConsole::startOperation(const QString& text)
{
    m_operation = text;
    m_operationTimer.start();
    m_toldTenths = -1;
    m_hasResults = false;
}

void ShellConsole::showProgress(double fraction)
{
    if (m_maximalLevel < Account)
        return;
    const double done = std::clamp(fraction, 0.0, 1.0);
    const int tenths = static_cast<int>(done * 10.0);
    const QString percent = tr("%1 %").arg(static_cast<int>(done * 100.0), 3);
    if (m_hasTerminal) {
        showBar(done, percent);
    } else if (tenths > m_toldTenths && !m_hasResults) { // neither fill a log nor part a table in a file
        message(QStringLiteral("%1 %2").arg(percent, m_operation), Account);
        m_toldTenths = tenths;
    }
}

QString ShellConsole::timeLeft(double done) const
{
    constexpr double tooEarlyToTell = 0.02;
    if (done < tooEarlyToTell)
        return QString();
    const auto seconds =
        qRound64(static_cast<double>(m_operationTimer.elapsed()) / 1000.0 * (1.0 - done) / done);
    return tr(", %1:%2 left")
        .arg(QString::number(seconds / 60),
             QString::number(seconds % 60).rightJustified(2, QLatin1Char('0')));
}

void ShellConsole::showBar(double done, const QString& percent)
{
    constexpr int brackets = 3; // with the blank behind them
    const QString text = percent + timeLeft(done) + QLatin1Char(' ') + m_operation;
    const int columns = nPlatform::terminalColumns() - 1;
    const int width = std::clamp(columns - brackets - static_cast<int>(text.size()), 10, 40);
    const int filled = static_cast<int>(done * width);
    const QString bar =
        QStringLiteral("[%1%2] %3")
            .arg(QString(filled, QLatin1Char('#')), QString(width - filled, QLatin1Char('.')), text)
            .left(columns);
    eraseBar();
    m_err << bar << Qt::flush;
    m_barLength = static_cast<int>(bar.size());
}

void ShellConsole::finishOperation(const QString& text)
{
    eraseBar();
    if (!text.isEmpty())
        message(text, Account);
}

void ShellConsole::eraseBar()
{
    if (m_barLength == 0)
        return;
    m_err << '\r' << QString(m_barLength, QLatin1Char(' ')) << '\r' << Qt::flush;
    m_barLength = 0;
}
