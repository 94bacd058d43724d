#pragma once

#include "cfedatlinewriter.h"

#include <QCoreApplication>
#include <QString>

class QIODevice;

/// In which widths a deck is written, and how that is known.
///
/// Free format shows itself by its commas, line by line. Widths do not: fixed columns of 5 and of 10 look
/// alike to a reader who does not know which. find() looks for what tells them apart - reals, which fill
/// their field, and keys of the parameter section, which are padded to theirs - and says where it found it.
/// A plain value.
class KDQCORE_EXPORT coDeckLayout {
    Q_DECLARE_TR_FUNCTIONS(coDeckLayout)

public:
    enum Source {
        Assumed, ///< nothing in the deck told: extended
        Found,   ///< see line()
        Given
    };

    coDeckLayout() = default;
    coDeckLayout(CFEDatLineWriter::datExtensionMode mode) : m_mode(mode), m_source(Given) { }

    /// Looks through the first lines of a deck, at most some 10 000. A sequential device yields Assumed,
    /// since it cannot be read twice; any other is left where it stood.
    static coDeckLayout find(QIODevice& deck);

    CFEDatLineWriter::datExtensionMode mode() const { return m_mode; }
    Source source() const { return m_source; }
    /// The line, counted from 1, that told; 0 where none did.
    qint64 line() const { return m_line; }

    /// For people: "extended widths, as line 12 shows".
    QString text() const;

private:
    CFEDatLineWriter::datExtensionMode m_mode = CFEDatLineWriter::extended;
    Source m_source = Assumed;
    qint64 m_line = 0;
};
