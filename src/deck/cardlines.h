#pragma once

#include "cfedatlinewriter.h"

#include <initializer_list>

/// Writes the pieces of a card one after the other and remembers whether all were written. A failed piece
/// does not keep the next ones from being tried.
class CardLines {
public:
    explicit CardLines(CFEDatLineWriter& writer) : m_writer(writer) { }

    CardLines& ints(std::initializer_list<int> values);
    CardLines& reals(std::initializer_list<double> values);
    /// A string field of width 0: in free format a comma follows.
    CardLines& field(const QString& text);
    /// The text as it is, no comma; a line break in it becomes a blank.
    CardLines& text(const QString& text);
    CardLines& sectionKey(const char* key);
    CardLines& keywordLine(const char* keyword);
    CardLines& comment(const QString& text);
    CardLines& end();
    /// Counts a piece that was written elsewhere.
    CardLines& add(bool written);

    bool ok() const { return m_ok; }

private:
    CFEDatLineWriter& m_writer;
    bool m_ok = true;
};
