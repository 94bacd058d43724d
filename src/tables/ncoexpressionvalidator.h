#pragma once

#include "coexpression.h"

#include <QCoreApplication>

/// Rules for formulas that go beyond their syntax, with messages for users.
///
/// A function across the space domain, such as the largest temperature of the whole model, is no operation on
/// one value. A formula may use it only alone: f(x) or f("x"), with one variable and nothing else.
///
/// \code
/// coExpression formula(text);
/// formula.setFunction(QStringLiteral("maximum"), maximumOf, coExpression::SpaceDomain);
/// QStringList messages;
/// if (!ncoExpressionValidator::checkForUnresolvedFunctions(formula, &messages)
///     || !ncoExpressionValidator::checkForValidSpaceDomainFctUsage(text, formula, &messages))
///     showMessages(messages);
/// \endcode
///
/// \a messages is appended to and may be null. Thread-safe: there is no state.
class KDQCORE_EXPORT ncoExpressionValidator {
    Q_DECLARE_TR_FUNCTIONS(ncoExpressionValidator)

public:
    ncoExpressionValidator() = delete;

    static QString separatorForAListOfFunctionNames();

    /// Those that are not built in and have no callable.
    static QStringList getUnresolvedFunctionsFromExpression(const coExpression& expr);

    /// False where there are any.
    static bool checkForUnresolvedFunctions(const coExpression& expr, QStringList* messages);

    /// The functions that a caller bound, unless it said that they work pointwise.
    static QStringList getSpaceDomainFunctionsFromExpression(const coExpression& expr);

    /// \a text is the text of \a expr. White space in it does not matter.
    static bool checkForValidSpaceDomainFctUsage(const QString& text, const coExpression& expr,
                                                 QStringList* messages);
};
