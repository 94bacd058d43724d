#pragma once

#include "coexpression.h"

#include <QCoreApplication>

/// Tells users whether a formula can be read, in texts for a message box and for a comment in a file.
///
/// \code
/// const coExpressionSyntaxChecker checker(edit->text());
/// if (!checker.expression().isValid())
///     showMessage(checker.getErrorMessage());
/// writer.writeComment(checker.getXmlComment());
/// \endcode
///
/// A plain value, as thread-safe as its expression.
class KDQCORE_EXPORT coExpressionSyntaxChecker {
    Q_DECLARE_TR_FUNCTIONS(coExpressionSyntaxChecker)

public:
    coExpressionSyntaxChecker(const QString& formula);

    const coExpression& expression() const { return m_expression; }
    coExpression& expression() { return m_expression; }

    /// Holds no "--" and so may stand in an XML comment.
    QString getXmlComment() const;
    QString getErrorMessage() const;

private:
    coExpression m_expression;
};
