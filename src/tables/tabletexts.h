#pragma once

#include <QCoreApplication>
#include <QString>
#include <QStringView>

/// Parts of the messages of the table readers.
class TableTexts {
    Q_DECLARE_TR_FUNCTIONS(kdDataTable)

public:
    static QString values(int count) { return count == 1 ? tr("1 value") : tr("%1 values").arg(count); }
    static QString columns(int count) { return count == 1 ? tr("1 column") : tr("%1 columns").arg(count); }

    static QString notANumber(int row, int column, QStringView text)
    {
        constexpr int shown = 40;
        const QString excerpt =
            text.size() > shown ? text.left(shown).toString() + QLatin1String("...") : text.toString();
        return tr("row %1, column %2: '%3' is not a number")
            .arg(QString::number(row), QString::number(column), excerpt);
    }
};
