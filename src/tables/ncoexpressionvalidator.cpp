#include "ncoexpressionvalidator.h"

#include <QRegularExpression>

namespace {

void append(QStringList* messages, const QString& message)
{
    if (messages)
        messages->append(message);
}

// Whether the text is nothing but the function of the variable.
bool isLoneCall(QString text, const QString& function, const QString& variable)
{
    static const QRegularExpression blanks(QStringLiteral("\\s"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    text.remove(blanks);
    const QString f = QRegularExpression::escape(function);
    const QString x = QRegularExpression::escape(variable);
    for (const QString& pattern :
         {QStringLiteral("^\\s*%1\\(\"%2\"\\)\\s*$"), QStringLiteral("^\\s*%1\\(%2\\)\\s*$")})
        if (QRegularExpression(pattern.arg(f, x)).match(text).hasMatch())
            return true;
    return false;
}

} // namespace

QString ncoExpressionValidator::separatorForAListOfFunctionNames()
{
    return tr(", ", "Separator for a list of function names.");
}

QStringList ncoExpressionValidator::getUnresolvedFunctionsFromExpression(const coExpression& expr)
{
    QStringList names = expr.findUnresolvedFunctions();
    for (int i = 0; i < expr.nbFunctions(); ++i)
        if (expr.isFunctionBuiltIn(i))
            names.removeOne(expr.functionName(i));
    return names;
}

bool ncoExpressionValidator::checkForUnresolvedFunctions(const coExpression& expr, QStringList* messages)
{
    const QStringList names = getUnresolvedFunctionsFromExpression(expr);
    if (names.isEmpty())
        return true;
    append(
        messages,
        tr("The formula contains unknown functions: %1").arg(names.join(separatorForAListOfFunctionNames())));
    return false;
}

QStringList ncoExpressionValidator::getSpaceDomainFunctionsFromExpression(const coExpression& expr)
{
    QStringList names;
    for (int i = 0; i < expr.nbFunctions(); ++i)
        if (expr.functionScope(i) == coExpression::SpaceDomain)
            names << expr.functionName(i);
    return names;
}

bool ncoExpressionValidator::checkForValidSpaceDomainFctUsage(const QString& text, const coExpression& expr,
                                                              QStringList* messages)
{
    const QStringList functions = getSpaceDomainFunctionsFromExpression(expr);
    if (functions.isEmpty())
        return true;
    bool isValid = true;
    if (functions.size() > 1) {
        append(messages,
               tr("The formula contains more than one function across the entire space domain but only one "
                  "function is supported to be used in the formula."));
        isValid = false;
    }
    if (expr.nbVariables() > 1) {
        append(messages,
               tr("If a function across the entire space domain like %1 is used, then only one variable is "
                  "supported to be used in the formula.")
                   .arg(functions.first()));
        isValid = false;
    }
    if (expr.nbVariables() == 0 || !isLoneCall(text, functions.first(), expr.variableName(0))) {
        append(
            messages,
            tr("If a function across the entire space domain like %1 is used, then no other operations are "
               "supported to be used in the formula.")
                .arg(functions.first()));
        isValid = false;
    }
    return isValid;
}
