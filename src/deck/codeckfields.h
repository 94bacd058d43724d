#pragma once

#include "cfedatlinewriter.h"
#include "codeckscanner.h"

/// The fields of one line of a deck, taken from left to right.
///
/// In fixed columns a field is as wide as its type says, so that adjoining ones need no blank between them;
/// in free format a comma ends it. A continuation mark is no field.
///
/// \code
/// coDeckFields fields(scanner.line(), CFEDatLineWriter::extended);
/// double value = 0.0;
/// while (!fields.atEnd() && fields.readReal(value))
///     values.append(value);
/// \endcode
///
/// A plain value on the bytes of the line, and so of no use after the scanner's next one.
class KDQCORE_EXPORT coDeckFields {
public:
    /// A field without the blanks around it.
    struct Field {
        const char* begin = nullptr;
        const char* end = nullptr;
        int column = 0; ///< of its first byte, counted from 1
        bool isEmpty() const { return begin == end; }
        QString text() const;
    };

    coDeckFields() = default;
    /// The line is in free format where it holds a comma.
    coDeckFields(const coDeckLine& line, CFEDatLineWriter::datExtensionMode mode);
    /// Fields begin \a start bytes into the line.
    coDeckFields(const coDeckLine& line, CFEDatLineWriter::datExtensionMode mode,
                 CFEDatLineWriter::datFormat format, int start = 0);

    /// These read the nearest value of the next field and go past it; false where it holds no such number.
    /// Reals also come as Fortran prints them: 1.5D+3, 1.5+3. "inf" and "nan" are reals.
    bool readReal(double& value);
    bool readInt(int& value);

    /// What the last call took.
    const Field& field() const { return m_field; }
    const Field& takeReal() { return take(m_isStandard ? 10 : 20); }
    const Field& takeInt() { return take(m_isStandard ? 5 : 10); }
    /// All that is left, blanks included.
    const Field& takeRest();

    /// Whether nothing but blanks is left.
    bool atEnd() const { return m_next == m_end || ((*m_next == ' ' || *m_next == '\t') && isRestBlank()); }

private:
    const Field& take(int width);
    bool isRestBlank() const;

    const char* m_begin = nullptr; ///< of the line
    const char* m_next = nullptr;
    const char* m_end = nullptr;
    Field m_field;
    bool m_isFree = false;
    bool m_isStandard = false;
};
