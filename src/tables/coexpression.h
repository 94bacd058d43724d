#pragma once

#include <kdqcore_export.h>

#include <QString>
#include <QStringList>

#include <functional>
#include <memory>

class coExpressionPrivate;

/// A formula of named variables, parsed once and evaluated as often as wanted.
///
/// \code
/// coExpression hardening(QStringLiteral("k * (e0 + x)^n"));
/// hardening.setVariable(QStringLiteral("k"), 530e6); // Pa
/// hardening.setVariable(QStringLiteral("e0"), 0.01);
/// hardening.setVariable(QStringLiteral("n"), 0.26);
/// hardening.setVariable(QStringLiteral("x"), 0.2);
/// double stress = 0.0;
/// if (!hardening.evaluate(&stress))
///     qWarning() << hardening.errorString() << hardening.errorDetails();
/// \endcode
///
/// The language is described in docs/formulas.md. Angles of sin, cos, tan and their inverses are in degrees.
/// Nothing is ever thrown: what fails returns false and leaves two texts, which show the failing part of the
/// formula with its names and with the values of that evaluation. Index and name may be used alike; an index
/// or name that the formula does not have is ignored.
///
/// Threads: evaluating works on the object's own memory, so one object serves one thread at a time. Copies
/// are cheap, share only what never changes and may be evaluated in different threads at once, as far as the
/// caller's own functions may.
class KDQCORE_EXPORT coExpression {
public:
    using Function = std::function<double(double)>;

    /// Whether a function of the caller's takes one value after the other or the variable's values over the
    /// whole space domain; ncoExpressionValidator asks for it.
    enum FunctionScope { SpaceDomain, Pointwise };

    coExpression(const QString& text = QString());
    coExpression(const coExpression& other);
    coExpression& operator=(const coExpression& other);
    ~coExpression();

    /// The text as it was given.
    QString text() const;
    /// Whether the text parsed.
    bool isValid() const;

    /// \name The last failure
    /// Both texts are empty after an evaluation that succeeded.
    /// @{
    QString errorString() const;
    /// Of a text that does not parse: line, column, what was found there and what was expected.
    QString errorDetails() const;
    /// @}

    /// \name Variables
    /// In the order in which the text names them, each once. "pi" and "e" have their values from the
    /// beginning and may be given others.
    /// @{
    int nbVariables() const;
    QString variableName(int i) const;
    void setVariable(int i, double value);
    void setVariable(const QString& name, double value);
    bool isVariableBuiltIn(int i) const;
    /// @}

    /// \name Functions
    /// A function of the caller's is called at most once for each place where the formula calls it, in the
    /// order of evaluation. It fails by an infinite result, by setting errno or by throwing. It must not
    /// touch the expression that calls it. A built-in function may be replaced; an empty one counts as
    /// unresolved.
    /// @{
    int nbFunctions() const;
    QString functionName(int i) const;
    void setFunction(int i, const Function& function, FunctionScope scope = SpaceDomain);
    void setFunction(const QString& name, const Function& function, FunctionScope scope = SpaceDomain);
    bool isFunctionBuiltIn(int i) const;
    /// Of a function of the caller's; Pointwise for every other.
    FunctionScope functionScope(int i) const;
    /// @}

    QStringList findUnresolvedVariables() const;
    QStringList findUnresolvedFunctions() const;

    /// Leaves \a result alone on failure; it may be null.
    bool evaluate(double* result);

    /// Evaluates with each of \a count values of one variable, which afterwards is what it was before; with
    /// an index that the formula does not have all results are alike. A result that fails is NaN and does not
    /// end the work; the error texts are those of the first failure, whose index goes to \a firstFailure (-1:
    /// none). True when nothing failed. Several times as fast as evaluate() in a loop where the formula has
    /// no conditions and calls no function of the caller's. \a results may be the same array as \a values.
    bool evaluateAll(int variable, const double* values, int count, double* results,
                     int* firstFailure = nullptr);

    /// The formula as it was understood, with all parentheses; empty where the text does not parse.
    QString toString() const;

    /// The same with \a text in place of every variable but the built-in ones.
    QString getExpressionWithReplacedVariables(const QString& text) const;

private:
    std::unique_ptr<coExpressionPrivate> m_d;
};
