#pragma once

#include "codeckfields.h"
#include "codeckfinding.h"
#include "codeckoption.h"
#include "codeckscanner.h"
#include "decknumber_p.h"

/// The lines of a deck with one line seen ahead, the option that they belong to, and where findings go.
class DeckLines {
    Q_DECLARE_TR_FUNCTIONS(coDeckReader)

public:
    DeckLines(QIODevice& deck, CFEDatLineWriter::datExtensionMode mode, bool readsCards,
              const coDeckFindingSink& sink);

    /// Whether values are for cards, and kept.
    bool readsCards() const { return m_readsCards; }
    /// As cards read, or nearest; see nDeckNumber.
    bool readReal(const coDeckFields::Field& field, double& value) const
    {
        return m_readsCards ? nDeckNumber::readCardReal(field.begin, field.end, value)
                            : nDeckNumber::readReal(field.begin, field.end, value);
    }

    /// The line ahead; null at the end of the deck.
    const coDeckLine* ahead()
    {
        if (!m_isAhead)
            m_isAhead = m_scanner.next();
        return m_isAhead ? &m_scanner.line() : nullptr;
    }
    bool isDataAhead()
    {
        const coDeckLine* line = ahead();
        return line && line->kind == coDeckLine::Data;
    }
    /// Makes the line ahead the option's and the current one.
    const coDeckLine& take(coDeckOption& option);

    void takeComments(coDeckOption& option);
    /// Goes past comments to the option's next data line, whose commas decide the option's format where it is
    /// the first. Without one that is an error, and null.
    const coDeckLine* takeData(coDeckOption& option);
    /// The next line that is no comment as it is: a name, a formula.
    bool takeText(coDeckOption& option, QString& text);

    void error(const coDeckOption& option, int column, const QString& text);
    void errorInLine(const coDeckOption& option, qint64 line, const QString& text);
    void warning(const coDeckOption& option, int column, const QString& text);

    /// How many were reported.
    qint64 errors() const { return m_errors; }
    /// Whether none of the option's lines was too long to be kept.
    bool isWhole(const coDeckOption& option) const { return m_cutOption != option.firstLine; }

    CFEDatLineWriter::datExtensionMode mode() const { return m_mode; }
    const coDeckScanner& scanner() const { return m_scanner; }

private:
    const QString& nameOf(const coDeckOption& option);
    void report(coDeckFinding::Severity severity, const coDeckOption& option, int column,
                const QString& text);

    coDeckScanner m_scanner;
    CFEDatLineWriter::datExtensionMode m_mode;
    bool m_readsCards;
    coDeckFindingSink m_sink;
    struct Named {
        qint64 line = -1;
        int kind = 0;
        int length = 0;
        QString text;
    };
    Named m_named;
    qint64 m_errors = 0;
    qint64 m_cutOption = 0;
    bool m_isAhead = false;
    qint64 m_knownFormat = 0; ///< first line of the option whose format is known
};
