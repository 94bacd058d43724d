#include "coexpressionsyntaxchecker.h"

coExpressionSyntaxChecker::coExpressionSyntaxChecker(const QString& formula) : m_expression(formula) { }

QString coExpressionSyntaxChecker::getXmlComment() const
{
    if (m_expression.isValid())
        return tr("Math expression syntax is valid.");
    return tr("Math expression syntax is not valid: %1, %2")
        .arg(m_expression.errorString(), m_expression.errorDetails());
}

QString coExpressionSyntaxChecker::getErrorMessage() const
{
    return tr("Math expression '%0': %1, %2")
        .arg(m_expression.text(), m_expression.errorString(), m_expression.errorDetails());
}
