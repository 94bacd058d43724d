#pragma once

#include <QCoreApplication>

/// The context of all texts about formulas, which applications show and translators know.
class FormulaTexts {
    Q_DECLARE_TR_FUNCTIONS(coExpressionPrivate)
};
