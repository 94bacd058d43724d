#pragma once

#include <kdQCore/coExpressionOrder>

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <QStringList>

/// The parameters of a session: named formulas that may use each other, in the order in which they were first
/// defined. A copy is cheap and is all that undo needs.
class ShellFormulas {
    Q_DECLARE_TR_FUNCTIONS(ShellFormulas)

public:
    QStringList names() const { return m_names; }
    bool contains(const QString& name) const { return m_formulas.contains(name); }
    /// In the old one's stead where there is one.
    void put(const QString& name, const coExpression& formula);
    void remove(const QString& name);

    /// The variables of a formula that are not built in.
    static QStringList variablesOf(const coExpression& formula);
    /// What \a names and all that they use need and nobody defines, for now.
    QStringList undefinedNames(const QStringList& names) const;
    /// Those of \a names that are parameters, and all that they use. The names in \a free are not looked up:
    /// they will have their values from elsewhere.
    coExpressionOrder order(const QStringList& names, const QStringList& free = {}) const;

    // These return false with a text that says why, the library's own where it is a formula that failed.

    /// Adds the values of those of \a names that are parameters, and of all that they use.
    bool evaluate(const QStringList& names, QHash<QString, double>& values, QString& error) const;
    /// Puts the formulas of parameters that depend on \a free, in parentheses, into a \a formula that can be
    /// read.
    bool expand(const QStringList& free, QString& formula, QString& error) const;
    /// Puts \a texts in place of the variables of these names into a \a formula that can be read.
    static bool replace(const QHash<QString, QString>& texts, QString& formula, QString& error);

private:
    QSet<QString> used(const QStringList& names, const QStringList& free) const;

    QStringList m_names;
    QHash<QString, coExpression> m_formulas;
};
