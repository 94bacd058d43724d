#pragma once

#include "lineeditor.h"

#include <QFile>
#include <QTextStream>

/// Where the shell's lines come from.
class LineSource {
public:
    virtual ~LineSource() = default;

    /// The next line without its line end, false at the end. \a isContinuation: a statement is still open; it
    /// is set to false where the user has dropped that.
    virtual bool next(QString& line, bool& isContinuation) = 0;

    /// What error messages call the source; empty for the prompt, where the line is before everyone's eyes.
    virtual QString name() const = 0;
};

/// Lines of a file or of standard input, UTF-8 with or without a byte order mark.
class FileLines : public LineSource {
public:
    /// \a file must be open; \a name appears in error messages.
    FileLines(std::unique_ptr<QFile> file, const QString& name);

    bool next(QString& line, bool& isContinuation) override;
    QString name() const override { return m_name; }

private:
    std::unique_ptr<QFile> m_file;
    QTextStream m_stream;
    QString m_name;
};

/// Lines of a text from the command line.
class TextLines : public LineSource {
public:
    explicit TextLines(const QString& text) : m_lines(text.split(QLatin1Char('\n'))) { }

    bool next(QString& line, bool& isContinuation) override;
    QString name() const override { return QStringLiteral("-c"); }

private:
    QStringList m_lines;
};

/// Lines that a person types.
class PromptLines : public LineSource {
public:
    PromptLines(const QString& historyFile, LineEditor::Completer completer, bool isEmphasised);

    bool next(QString& line, bool& isContinuation) override;
    QString name() const override { return {}; }

private:
    LineEditor m_editor;
    bool m_isEmphasised;
};
