#include "linesource.h"

FileLines::FileLines(std::unique_ptr<QFile> file, const QString& name)
    : m_file(std::move(file)), m_stream(m_file.get()), m_name(name)
{
    m_stream.setCodec("UTF-8");
}

bool FileLines::next(QString& line, bool)
{
    return m_stream.readLineInto(&line);
}

bool TextLines::next(QString& line, bool)
{
    if (m_lines.isEmpty())
        return false;
    line = m_lines.takeFirst();
    return true;
}

PromptLines::PromptLines(const QString& historyFile, LineEditor::Completer completer)
    : m_editor(historyFile, std::move(completer))
{
}

bool PromptLines::next(QString& line, bool isContinuation)
{
    return m_editor.readLine(isContinuation ? QStringLiteral("...... ") : QStringLiteral("kdqsh> "), line);
}
