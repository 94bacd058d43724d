#include "lineeditor.h"

#include <QFile>
#include <QSet>

#include <cstdio>
#include <histedit.h>

namespace {
constexpr int maximalHistory = 1000;
}

class LineEditor::Private {
public:
    static char* prompt(EditLine* editor) { return self(editor)->promptBytes.data(); }
    static unsigned char complete(EditLine* editor, int) { return self(editor)->completeWord(); }
    unsigned char completeWord();
    bool insertCommonPart(const QString& word, const QStringList& candidates);

    EditLine* editor = nullptr;
    History* history = nullptr;
    HistEvent event = {};
    QByteArray historyPath;
    QByteArray promptBytes;
    Completer completer;

private:
    static Private* self(EditLine* editor)
    {
        void* data = nullptr;
        el_get(editor, EL_CLIENTDATA, &data);
        return static_cast<Private*>(data);
    }
};

unsigned char LineEditor::Private::completeWord()
{
    const LineInfo* info = el_line(editor);
    const QString before =
        QString::fromLocal8Bit(info->buffer, static_cast<int>(info->cursor - info->buffer));
    int wordBegin = before.size();
    while (wordBegin > 0 && !before.at(wordBegin - 1).isSpace())
        --wordBegin;
    const QStringList candidates = completer(before);
    if (candidates.isEmpty())
        return CC_ERROR;
    if (insertCommonPart(before.mid(wordBegin), candidates))
        return CC_REFRESH;
    std::printf("\n%s\n", candidates.join(QLatin1String("  ")).toLocal8Bit().constData());
    return CC_REDISPLAY;
}

bool LineEditor::Private::insertCommonPart(const QString& word, const QStringList& candidates)
{
    QString common = candidates.first();
    for (const QString& candidate : candidates)
        while (!candidate.startsWith(common))
            common.chop(1);
    if (candidates.size() == 1 && !common.endsWith(QLatin1Char('/')))
        common.append(QLatin1Char(' '));
    if (common.size() <= word.size())
        return false;
    return el_insertstr(editor, common.mid(word.size()).toLocal8Bit().constData()) == 0;
}

LineEditor::LineEditor(const QString& historyFile, Completer completer) : d(new Private)
{
    d->historyPath = QFile::encodeName(historyFile);
    d->completer = std::move(completer);
    d->editor = el_init("kdqsh", stdin, stdout, stderr);
    d->history = history_init();
    history(d->history, &d->event, H_SETSIZE, maximalHistory);
    history(d->history, &d->event, H_SETUNIQUE, 1);
    if (!historyFile.isEmpty())
        history(d->history, &d->event, H_LOAD, d->historyPath.constData());
    el_set(d->editor, EL_CLIENTDATA, d.get());
    el_set(d->editor, EL_SIGNAL, 1);
    el_set(d->editor, EL_EDITOR, "emacs");
    el_set(d->editor, EL_PROMPT, &Private::prompt);
    el_set(d->editor, EL_HIST, history, d->history);
    el_set(d->editor, EL_ADDFN, "kdqsh-complete", "complete the word", &Private::complete);
    el_set(d->editor, EL_BIND, "^I", "kdqsh-complete", nullptr);
    // Ctrl-C drops the line instead of the session.
    el_set(d->editor, EL_SETTY, "-d", "-isig", nullptr);
    el_set(d->editor, EL_BIND, "^C", "em-kill-line", nullptr);
    el_set(d->editor, EL_BIND, "^R", "em-inc-search-prev", nullptr);
    el_source(d->editor, nullptr);
}

LineEditor::~LineEditor()
{
    if (!d->historyPath.isEmpty())
        history(d->history, &d->event, H_SAVE, d->historyPath.constData());
    history_end(d->history);
    el_end(d->editor);
}

bool LineEditor::readLine(const QString& prompt, QString& line)
{
    d->promptBytes = prompt.toLocal8Bit();
    int count = 0;
    const char* bytes = el_gets(d->editor, &count);
    if (bytes == nullptr || count <= 0) {
        std::puts(""); // the cursor is still behind the prompt
        return false;
    }
    line = QString::fromLocal8Bit(bytes, count);
    if (!line.trimmed().isEmpty())
        history(d->history, &d->event, H_ENTER, bytes);
    while (line.endsWith(QLatin1Char('\n')) || line.endsWith(QLatin1Char('\r')))
        line.chop(1);
    return true;
}
