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
    if (level <= m_maximalLevel)
        showMessage(text, level);
}

void ShellConsole::error(const QString& text)
{
    ++m_errorCount;
    const QString line = text.simplified();
    showError(m_place.isEmpty() ? line : QStringLiteral("%1: %2").arg(m_place, line));
}

void ShellConsole::showMessage(const QString& text, int)
{
    eraseBar();
    m_out << text << Qt::endl;
}

void ShellConsole::showError(const QString& line)
{
    eraseBar();
    m_out.flush();
    m_err << line << Qt::endl;
}

void ShellConsole::startOperation(const QString& text)
{
    m_operation = text;
    if (!m_hasTerminal)
        message(text, Account);
}

void ShellConsole::showProgress(double fraction)
{
    if (m_maximalLevel < Account)
        return;
    const double done = std::clamp(fraction, 0.0, 1.0);
    const QString percent = tr("%1 %").arg(static_cast<int>(done * 100.0), 3);
    if (!m_hasTerminal) {
        message(percent, Account);
        return;
    }
    constexpr int width = 30;
    const int filled = static_cast<int>(done * width);
    const QString bar = QStringLiteral("[%1%2] %3 %4")
                            .arg(QString(filled, QLatin1Char('#')), QString(width - filled, QLatin1Char('.')),
                                 percent, m_operation)
                            .left(nPlatform::terminalColumns() - 1);
    eraseBar();
    m_err << bar << Qt::flush;
    m_barLength = bar.size();
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
