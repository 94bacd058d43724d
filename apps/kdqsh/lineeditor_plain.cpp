#include "lineeditor.h"

#include <QTextStream>

#include <cstdio>

class LineEditor::Private {
public:
    QTextStream in{stdin};
    QTextStream out{stdout};
};

LineEditor::LineEditor(const QString&, Completer) : d(new Private) { }

LineEditor::~LineEditor() = default;

bool LineEditor::readLine(const QString& prompt, QString& line)
{
    d->out << prompt << Qt::flush;
    return d->in.readLineInto(&line);
}
