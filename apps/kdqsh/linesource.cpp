#include "linesource.h"

#include "shellinterrupt.h"

FileLines::FileLines(std::unique_ptr<QFile> file, const QString& name)
    : m_file(std::move(file)), m_stream(m_file.get()), m_name(name)
{
    m_stream.setCodec("UTF-8");
}

bool FileLines::next(QString& line, bool&)
{
    return !nInterrupt::isRequested() && m_stream.readLineInto(&line);
}

bool TextLines::next(QString& line, bool&)
{
    if (m_lines.isEmpty() || nInterrupt::isRequested())
        return false;
    line = m_lines.takeFirst();
    return true;
}

PromptLines::PromptLines(const QString& historyFile, LineEditor::Completer completer, bool isEmphasised)
    : m_editor(historyFile, std::move(completer)), m_isEmphasised(isEmphasised)
{
}

bool PromptLines::next(QString& line, bool& isContinuation)
{
    for (;;) {
        nInterrupt::clear();
        const QString prompt = isContinuation ? QStringLiteral("...... ") : QStringLiteral("kdqsh> ");
        const LineEditor::Outcome outcome = m_editor.readLine(prompt, m_isEmphasised, line);
        if (outcome != LineEditor::Dropped)
            return outcome == LineEditor::Line;
        isContinuation = false;
    }
}
