#pragma once

#include "codeckoption.h"
#include "codeckscanner.h"

#include <QByteArray>
#include <QVector>

/// A run of comment and blank lines. The last ones are kept, because they may be those that a point load
/// card writes in front of itself.
class DeckComments {
public:
    bool isEmpty() const { return m_option.lines == 0; }
    /// The run as an option.
    coDeckOption& option() { return m_option; }
    /// After the run's line was taken into option().
    void add(const coDeckLine& line);

    /// Moves the lines that a point load card wrote, if there are any, out of the run into \a pointLoad.
    void splitPointLoad(coDeckOption& pointLoad, QString& component, QString& comment);

private:
    struct Line {
        qint64 number;
        qint64 offset;
        QByteArray text; ///< without "$ "
        bool isPlain;    ///< begins with "$ "
    };
    int beginOfParagraph(int end) const;
    QByteArray paragraph(int begin, int end) const;
    void moveLines(int first, coDeckOption& pointLoad);

    coDeckOption m_option;
    QVector<Line> m_lines;
};
