#pragma once

#include <kdQCore/coExpressionOrder>

#include <QCoreApplication>
#include <QHash>
#include <QSet>
#include <QStringList>

#include <optional>

/// The parameters of a session: named formulas that may use each other, in the order in which they were first
/// defined. Scripts define many, so undo keeps a change and no copy of all.
class ShellFormulas {
    Q_DECLARE_TR_FUNCTIONS(ShellFormulas)

public:
    struct Definition {
        coExpression formula;
        int number = 0; ///< rises in the order of definition
    };
    struct Change {
        QString name;
        std::optional<Definition> before;
    };

    QStringList names() const { return sorted(m_definitions.keys()); }
    bool contains(const QString& name) const { return m_definitions.contains(name); }
    /// In the old one's stead where there is one.
    void put(const QString& name, const coExpression& formula);
    void remove(const QString& name) { set(name, {}); }

    Change lastChange() const { return m_lastChange; }
    /// Takes back a change, the last that was not taken back.
    void revert(const Change& change) { set(change.name, change.before); }

    /// Whether a formula uses the name, defined or not.
    bool isUsed(const QString& name) const { return m_uses.value(name) > 0; }

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
    QStringList sorted(QStringList names) const;
    void set(const QString& name, const std::optional<Definition>& definition);
    void countUses(const coExpression& formula, int step);

    QHash<QString, Definition> m_definitions;
    QHash<QString, int> m_uses;
    Change m_lastChange;
    int m_lastNumber = 0;
};
