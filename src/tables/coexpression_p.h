#pragma once

#include "coexpression.h"
#include "formulawalk.h"

#include <QCoreApplication>

#include <cmath>
#include <vector>

class coExpressionPrivate {
    Q_DECLARE_TR_FUNCTIONS(coExpressionPrivate)

public:
    enum VariableState : quint8 { Unset, Finite, Infinite }; // NaN counts as finite: it need not fail

    struct Function {
        FormulaFunction builtIn = nullptr;
        coExpression::FunctionScope scope = coExpression::Pointwise;
    };

    explicit coExpressionPrivate(const QString& text);

    QString errorString() const;
    QString errorDetails() const;

    void setVariable(std::size_t i, double value)
    {
        if (m_states[i] == Finite && !std::isinf(value))
            m_slots[i] = value;
        else
            changeVariable(i, value, std::isinf(value) ? Infinite : Finite);
    }
    void setFunction(std::size_t i, const coExpression::Function& function,
                     coExpression::FunctionScope scope);
    bool isResolved(std::size_t function) const { return m_builtIn[function] || m_bound.functions[function]; }

    bool evaluate(double* result)
    {
        if (m_obstacles == 0) {
            const double value = nFormula::run(*m_program, m_slots.data(), m_bound);
            if (!std::isnan(value)) {
                if (result)
                    *result = value;
                return true;
            }
        }
        return evaluateCarefully(result);
    }
    bool evaluateAll(int variable, const double* values, int count, double* results, int* firstFailure);

    QString printed(quint32 node) const;

    QString m_text;
    std::shared_ptr<const FormulaTree> m_tree; ///< null: the text does not parse

    std::vector<VariableState> m_states;    ///< for each variable
    std::vector<Function> m_functions;      ///< as the language has them
    std::vector<FormulaFunction> m_builtIn; ///< as they are now: null where the caller's counts
    FormulaBound m_bound;

private:
    struct FirstFailure;

    void countObstacles() { m_obstacles = m_unresolved + m_infinite + int(m_hasFailed); }

    void resolveBuiltIns();
    bool failUnresolved();
    bool evaluateCarefully(double* result);
    void changeVariable(std::size_t i, double value, VariableState state);
    void evaluateOne(int index, double* results, FirstFailure& first);
    int evaluateBlocks(std::size_t variable, const double* values, int count, double* results,
                       FirstFailure& first);
    void evaluateBlock(std::size_t variable, int index, std::vector<double>& lanes, double* results,
                       FirstFailure& first);

    std::shared_ptr<const FormulaProgram> m_program;
    std::vector<double> m_slots; ///< the program's, with the variables in front
    int m_unresolved = 0;        ///< variables and functions
    int m_infinite = 0;          ///< variables and literals; they fail where they are used
    int m_obstacles =
        1; ///< 0 where one pass over the program is likely to do and no failure is to be cleared

    // The texts of a failed evaluation are made when they are asked for.
    bool m_hasFailed = false;
    FormulaFailure m_failure;
    std::vector<double> m_failedVariables;
    QString m_errorString;  ///< of any other failure
    QString m_errorDetails; ///< of a text that does not parse

    std::vector<double> m_walkValues;
};
