#include "lineeditor.h"
#include "linehistory.h"

#include <cstdio>
#include <histedit.h>

namespace {

constexpr char invisible = '\1'; // stands around what takes no place on the screen

QByteArray emphasised(const QByteArray& text)
{
    return QByteArray("\1\033[1m\1").append(text).append("\1\033[0m\1");
}

} // namespace

class LineEditor::Private {
public:
    explicit Private(const QString& historyFile) : lines(historyFile) { }

    static char* prompt(EditLine* editor) { return self(editor)->promptBytes.data(); }
    static unsigned char complete(EditLine* editor, int) { return self(editor)->completeWord(); }
    static unsigned char drop(EditLine* editor, int)
    {
        self(editor)->isDropped = true;
        return CC_EOF;
    }
    unsigned char completeWord();
    void bindKeys();
    void fillHistory();

    EditLine* editor = nullptr;
    History* history = nullptr;
    HistEvent event = {};
    LineHistory lines;
    QByteArray promptBytes;
    Completer completer;
    bool isDropped = false;

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
    const Completion completion = completer(before);
    if (completion.candidates.isEmpty())
        return CC_ERROR;
    if (completion.goesOn(before)) {
        el_deletestr(editor, static_cast<int>(before.size()) - completion.begin);
        el_insertstr(editor, completion.text.toLocal8Bit().constData());
        return CC_REFRESH;
    }
    std::printf("\n%s\n", completion.choice().toLocal8Bit().constData());
    return CC_REDISPLAY;
}

void LineEditor::Private::bindKeys()
{
    el_set(editor, EL_EDITOR, "emacs");
    el_set(editor, EL_ADDFN, "kdqsh-complete", "complete the word", &complete);
    el_set(editor, EL_BIND, "^I", "kdqsh-complete", nullptr);
    el_set(editor, EL_ADDFN, "kdqsh-drop", "drop the line", &drop);
    el_set(editor, EL_SETTY, "-d", "-isig", nullptr); // Ctrl-C is a key like others
    el_set(editor, EL_BIND, "^C", "kdqsh-drop", nullptr);
    el_set(editor, EL_BIND, "^R", "em-inc-search-prev", nullptr);
}

void LineEditor::Private::fillHistory()
{
    ::history(history, &event, H_CLEAR);
    for (const QString& line : lines.lines())
        ::history(history, &event, H_ENTER, line.toLocal8Bit().constData());
}

LineEditor::LineEditor(const QString& historyFile, Completer completer) : d(new Private(historyFile))
{
    d->completer = std::move(completer);
    d->editor = el_init("kdqsh", stdin, stdout, stderr);
    d->history = history_init();
    history(d->history, &d->event, H_SETSIZE, d->lines.lines().size() + 2000);
    d->fillHistory();
    el_set(d->editor, EL_CLIENTDATA, d.get());
    el_set(d->editor, EL_SIGNAL, 1);
    el_set(d->editor, EL_PROMPT_ESC, &Private::prompt, invisible);
    el_set(d->editor, EL_HIST, history, d->history);
    d->bindKeys();
    el_source(d->editor, nullptr);
}

LineEditor::~LineEditor()
{
    history_end(d->history);
    el_end(d->editor);
}

LineEditor::Outcome LineEditor::readLine(const QString& prompt, bool isEmphasised, QString& line)
{
    d->promptBytes = prompt.toLocal8Bit();
    if (isEmphasised)
        d->promptBytes = emphasised(d->promptBytes);
    d->isDropped = false;
    el_set(d->editor, EL_PREP_TERM, 1); // before the prompt shows: the keys that follow it must not be lost
    int count = 0;
    const char* bytes = el_gets(d->editor, &count);
    if (d->isDropped) {
        std::puts("^C");
        return Dropped;
    }
    if (bytes == nullptr || count <= 0) {
        std::puts(""); // the cursor is still behind the prompt
        return End;
    }
    line = QString::fromLocal8Bit(bytes, count);
    while (line.endsWith(QLatin1Char('\n')) || line.endsWith(QLatin1Char('\r')))
        line.chop(1);
    d->lines.add(line);
    d->fillHistory();
    return Line;
}
