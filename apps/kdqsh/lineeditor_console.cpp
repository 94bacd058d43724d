#include "lineeditor.h"
#include "linehistory.h"
#include "paintedline.h"
#include "shellinterrupt.h"
#include "typedline.h"

#include <QTextStream>

#include <cstdio>

class LineEditor::Private {
public:
    Outcome edit(nPlatform::ConsoleWindow& window, const QString& prompt, bool isEmphasised, QString& line);
    Outcome readPlainly(const QString& prompt, bool isEmphasised, QString& line);

    LineHistory lines;
    Completer completer;
    QTextStream in{stdin};
    QTextStream out{stdout};
};

LineEditor::LineEditor(const QString& historyFile, Completer completer)
    : d(new Private{LineHistory(historyFile), std::move(completer)})
{
}

LineEditor::~LineEditor() = default;

LineEditor::Outcome LineEditor::readLine(const QString& prompt, bool isEmphasised, QString& line)
{
    const auto window = nPlatform::openConsoleWindow();
    return window != nullptr ? d->edit(*window, prompt, isEmphasised, line)
                             : d->readPlainly(prompt, isEmphasised, line);
}

LineEditor::Outcome LineEditor::Private::edit(nPlatform::ConsoleWindow& window, const QString& prompt,
                                              bool isEmphasised, QString& line)
{
    TypedLine typed(lines.lines(), completer);
    PaintedLine painted(window);
    const auto paint = [&](const QString& text) {
        painted.paint(typed.prompt(prompt), isEmphasised, text, typed.cursor());
    };
    TypedLine::State state = TypedLine::Typing;
    while (state == TypedLine::Typing || state == TypedLine::Choosing) {
        if (!window.hasKeys()) // what is pasted shows when all of it is there
            paint(typed.text());
        const nPlatform::ConsoleKey key = window.wait();
        if (key.kind == nPlatform::ConsoleKey::Resized)
            painted.follow();
        state = nInterrupt::isRequested() ? TypedLine::Dropped : typed.press(key);
        if (state == TypedLine::Choosing) {
            paint(typed.text());
            painted.leave(typed.choice());
        }
    }
    paint(typed.text() + QLatin1String(state == TypedLine::Dropped ? "^C" : ""));
    painted.leave();
    if (state != TypedLine::Entered)
        return state == TypedLine::Dropped ? Dropped : End;
    line = typed.text();
    lines.add(line);
    return Line;
}

LineEditor::Outcome LineEditor::Private::readPlainly(const QString& prompt, bool isEmphasised, QString& line)
{
    out << (isEmphasised ? QStringLiteral("\033[1m%1\033[0m").arg(prompt) : prompt) << Qt::flush;
    if (in.readLineInto(&line))
        return Line;
    if (!nInterrupt::isRequested())
        return End;
    std::clearerr(stdin); // Ctrl-C ends a read of Windows' window like the end of the input
    in.resetStatus();
    out << Qt::endl;
    return Dropped;
}
