#include "lineeditor.h"
#include "shellinterrupt.h"

#include <QTextStream>

#include <cstdio>

class LineEditor::Private {
public:
    QTextStream in{stdin};
    QTextStream out{stdout};
};

LineEditor::LineEditor(const QString&, Completer) : d(new Private) { }

LineEditor::~LineEditor() = default;

LineEditor::Outcome LineEditor::readLine(const QString& prompt, bool isEmphasised, QString& line)
{
    d->out << (isEmphasised ? QStringLiteral("\033[1m%1\033[0m").arg(prompt) : prompt) << Qt::flush;
    if (d->in.readLineInto(&line))
        return Line;
    if (!nInterrupt::isRequested())
        return End;
    std::clearerr(stdin); // Ctrl-C ends a read of Windows' window like the end of the input
    d->in.resetStatus();
    d->out << Qt::endl;
    return Dropped;
}
