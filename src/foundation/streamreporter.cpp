#include "streamreporter.h"

#include <QTextStream>

#include <cstdio>

namespace {

void print(FILE* file, const QString& text)
{
    QTextStream stream(file, QIODevice::WriteOnly);
    stream << text << Qt::endl;
}

} // namespace

streamReporter::streamReporter(int maximumLevel, QObject* parent)
    : kdReporter(parent), m_maximumLevel(maximumLevel)
{
}

void streamReporter::slotErrorMessage(const QString& text)
{
    print(stderr, QLatin1String("Error: ") + text);
}

void streamReporter::slotMessage(const QString& text, int level)
{
    if (level <= m_maximumLevel)
        print(stdout, text);
}

void streamReporter::slotStartOperation(const QString& text)
{
    print(stdout, QLatin1String("Start: ") + text);
}

void streamReporter::slotProgress(double fraction)
{
    // The line break in the text stands beside the one that print adds: an empty line follows each progress.
    print(stdout,
          QLatin1String("Progress: ") + QStringLiteral("%1 %\n").arg(fraction, 0, 'g', -1, QLatin1Char(' ')));
}

void streamReporter::slotFinishOperation(const QString& text)
{
    print(stdout, QLatin1String("Finished: ") + text);
}
