#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

#include <limits>

class coExpression;

/// The commands "formula ...": formulas checked, evaluated and made into tables. The parameters of the
/// session have their values in them.
class FormulaCommands {
    Q_DECLARE_TR_FUNCTIONS(FormulaCommands)

public:
    static const ShellCommandGroup& group();

    /// Reports what cannot be read and where.
    static bool read(const ShellCall& call, const QString& text, coExpression& formula);
    /// \a text as the solver reads it: of names, only those in \a variables remain. Reports likewise.
    static bool prepareForSolver(const ShellCall& call, const QStringList& variables, QString& text);

    /// The values that one variable takes.
    struct Range {
        QString variable;
        double from = std::numeric_limits<double>::quiet_NaN();
        double to = std::numeric_limits<double>::quiet_NaN();
        int points = 11;

        /// The variable and its ends; addTo() takes the number of points as well.
        ShellParameters& addEndsTo(ShellParameters& parameters);
        ShellParameters& addTo(ShellParameters& parameters);
        bool check(const ShellCall& call) const;
        QVector<double> values() const;
    };

    /// Gives \a formula the values of parameters, those that depend on \a free as formulas. Reports likewise.
    static bool bind(const ShellCall& call, const QStringList& free, coExpression& formula);

private:
    static bool check(ShellCall& call);
    static bool variables(ShellCall& call);
    static bool evaluate(ShellCall& call);
    static bool tabulate(ShellCall& call);

    static bool evaluateOver(const ShellCall& call, const Range& range, coExpression& formula,
                             kdDataTable& table);
};
