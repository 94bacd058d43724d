#pragma once

#include <kdQCore/kdReporter>

#include <QCoreApplication>
#include <QElapsedTimer>
#include <QTextStream>

/// Shows what the library reports: results and the account of what was done on standard output, errors and a
/// progress bar on standard error. Where standard error is no terminal, progress comes as plain lines,
/// until the first result is shown. Neither shows for what takes less than a second.
///
/// Commands reach it through reporter(), as any producer of the library reaches its receivers.
class ShellConsole {
    Q_DECLARE_TR_FUNCTIONS(ShellConsole)

public:
    /// Levels of messages: what the user should look at, what a query was asked for, and what a command tells
    /// about its work.
    enum Level { Warning = -1, Result = 0, Account = 1 };

    enum Colours { OnTerminals, Always, Never };

    ShellConsole();
    virtual ~ShellConsole() = default;
    ShellConsole(const ShellConsole&) = delete;
    ShellConsole& operator=(const ShellConsole&) = delete;

    kdReporter& reporter() { return m_reporter; }

    /// Leaves out everything but results and errors.
    void setQuiet(bool isQuiet) { m_maximalLevel = isQuiet ? Result : Account; }

    /// On terminals means: not where NO_COLOR is set to anything, or TERM to "dumb".
    void setColours(Colours colours);
    /// Whether standard output takes colours.
    bool paintsOutput() const { return m_paintsOut; }

    /// Opens every error line: where the command stands, and which one it is.
    void setPlace(const QString& place) { m_place = place; }

    void message(const QString& text, int level = Result);
    /// Writes one line, whatever line breaks the text has.
    void error(const QString& text);
    int errorCount() const { return m_errorCount; }

protected:
    // Where it all goes: here to the standard streams.
    virtual void showMessage(const QString& text, int level);
    virtual void showError(const QString& line);
    virtual void startOperation(const QString& text);
    virtual void showProgress(double fraction);
    virtual void finishOperation(const QString& text);

private:
    static QString painted(const QString& text, const char* style, bool isPainted);
    QString timeLeft(double done) const;
    void showBar(double done, const QString& percent);
    void eraseBar();

    kdReporter m_reporter;
    QTextStream m_out;
    QTextStream m_err;
    QString m_place;
    QString m_operation;
    QElapsedTimer m_operationTimer;
    int m_maximalLevel = Account;
    int m_errorCount = 0;
    int m_barLength = 0;
    int m_toldTenths = 0;
    bool m_hasResults = false; ///< of the running operation
    bool m_hasTerminal;
    bool m_paintsOut = false;
    bool m_paintsErrors = false;
};
