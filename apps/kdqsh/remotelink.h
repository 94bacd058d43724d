#pragma once

#include <QString>

class ShellCall;
class ShellSocket;

/// The talk of two shells over signed lines: pieces of text, each with a word that says what it is. A signed
/// line carries some 2000 ASCII characters in one line; texts of any length and content are escaped and cut.
/// docs/messages.md has the form.
class RemoteLink {
public:
    enum Kind { Hello, Run, Result, Account, Error, Start, Progress, Finish, Done };

    /// \a call stops the waiting for a piece.
    RemoteLink(ShellSocket& socket, const ShellCall& call) : m_socket(socket), m_call(call) { }

    bool send(Kind kind, const QString& text);
    /// False after a failure, which errorText() tells; the connection is of no more use then.
    bool receive(Kind& kind, QString& text);
    QString errorText() const { return m_errorText; }

    /// In printable ASCII: "\\", "\n" for a line feed, "\uXXXX" for what else is none.
    static QString escaped(const QString& text);
    /// Takes any text; what is no escape stays as it is.
    static QString unescaped(const QString& text);

private:
    ShellSocket& m_socket;
    const ShellCall& m_call;
    QString m_errorText;
};
