#pragma once

#include "codeckfinding.h"
#include "codecklayout.h"
#include "codeckoption.h"

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <QStringList>
#include <QVector>

class QIODevice;

/// Says what a solver would stumble over in an input deck.
///
/// Errors: fields that do not read as the numbers that the option has, non-finite numbers, counts that do not
/// fit what follows, x values that descend (or, in grids, print alike), data lines that belong to nothing,
/// data lines over the line budget, two tables of one id, references to tables that the deck does not hold.
/// Warnings: other lines over the budget, blank or missing fields, which the solver reads as 0 (an error
/// where a 0 would be one), fields where this library would write another value, node lists that no keyword
/// line of the deck names (meshes often lie in a file of their own).
///
/// \code
/// coDeckCheck check(coDeckLayout::find(file));
/// if (!check.run(file))
///     for (const coDeckFinding& finding : check.findings())
///         show(finding.toString());
/// \endcode
///
/// Reads in constant memory, but for the ids and names that a deck defines. Not thread-safe.
class KDQCORE_EXPORT coDeckCheck {
    Q_DECLARE_TR_FUNCTIONS(coDeckCheck)

public:
    /// More findings than this are counted, but not kept.
    static constexpr int mostFindings = 1000;

    explicit coDeckCheck(const coDeckLayout& layout) : m_layout(layout) { }

    /// Reads the deck from where it stands to its end. True without errors; a device that fails is one.
    bool run(QIODevice& deck);

    /// Those of the last run, in the order of the lines where they came up.
    const QVector<coDeckFinding>& findings() const { return m_findings; }
    qint64 errors() const { return m_errors; }
    qint64 warnings() const { return m_warnings; }
    qint64 options() const { return m_options; }

private:
    struct Reference {
        coDeckFinding place;
        int table;
        QString nodeList;
    };

    void add(const coDeckFinding& finding);
    void note(const coDeckOption& option);
    void noteTable(const coDeckOption& option);
    void noteNames(QStringList words);
    void checkReferences();

    coDeckLayout m_layout;
    QVector<coDeckFinding> m_findings;
    qint64 m_errors = 0;
    qint64 m_warnings = 0;
    qint64 m_options = 0;
    QHash<int, qint64> m_tableLines;
    QSet<QString> m_names; ///< that keyword lines tell
    QVector<Reference> m_references;
};
