#pragma once

#include "coexpression.h"

#include <QCoreApplication>
#include <QHash>
#include <QVector>

/// Named formulas that use each other, and an order in which each uses only names before it.
///
/// \code
/// coExpressionOrder parameters;
/// parameters.addKnownName(QStringLiteral("t")); // its value comes from elsewhere
/// parameters.add(QStringLiteral("power"), QStringLiteral("voltage * current"));
/// parameters.add(QStringLiteral("voltage"), QStringLiteral("24 + t / 10"));
/// parameters.add(QStringLiteral("current"), QStringLiteral("180"));
/// QHash<QString, double> values { { QStringLiteral("t"), 5.0 } };
/// if (!parameters.evaluate(&values))
///     qWarning() << parameters.errorString();
/// \endcode
///
/// Formulas keep the order in which they were added as far as their use of each other allows. Ordering takes
/// time linear in the size of the set. Of several errors the one nearest the front of the set is told.
/// Not thread-safe. Owns its formulas.
class KDQCORE_EXPORT coExpressionOrder {
    Q_DECLARE_TR_FUNCTIONS(coExpressionOrder)

public:
    enum Failure {
        NoFailure,
        InvalidName,    ///< not a name in a formula, or "pi" or "e"
        DuplicateName,  ///< defined twice, or defined and known
        InvalidFormula, ///< its text does not parse
        UndefinedName,
        Circle,
        FailedEvaluation
    };

    void add(const QString& name, const QString& formula);
    void add(const QString& name, const coExpression& formula);

    /// A name that formulas may use and that none of them defines.
    void addKnownName(const QString& name);

    int size() const { return m_formulas.size(); }

    /// Puts the formulas in order; false with a failure, and no order.
    bool sort();

    /// The names in order, after sort(); each formula uses only known names and names before its own.
    QStringList names() const;

    /// Of the name at place \a i of names(). An index outside gives an expression that is not valid.
    coExpression expression(int i) const;

    /// Sorts where need be and evaluates all; \a values holds those of the known names and receives the
    /// others. What was evaluated before a failure stays in it.
    bool evaluate(QHash<QString, double>* values);

    /// \name The last failure of sort() or evaluate()
    /// @{
    Failure failure() const { return m_failure; }
    QString errorString() const { return m_errorString; }
    /// The name whose formula failed or uses what is not defined.
    QString failedName() const { return m_failedName; }
    /// The name that nobody defines.
    QString undefinedName() const { return m_undefinedName; }
    /// The members of the circle, each of which uses the next and the last of which uses the first.
    QStringList circle() const { return m_circle; }
    /// @}

private:
    struct Formula {
        QString name;
        coExpression expression;
    };

    bool collectNames();
    bool findUses(QVector<QVector<int>>& uses);
    bool visit(int formula, const QVector<QVector<int>>& uses, QVector<int>& state);
    bool failCircle(const QVector<int>& path, int member);
    bool fail(Failure failure, const QString& name, const QString& text);
    void clearFailure();

    QVector<Formula> m_formulas;
    QStringList m_knownNames;
    QHash<QString, int> m_index; ///< of a formula; -1 of a known name
    QVector<int> m_order;
    bool m_isSorted = false;
    Failure m_failure = NoFailure;
    QString m_errorString;
    QString m_failedName;
    QString m_undefinedName;
    QStringList m_circle;
};
