#include "kdqtest.h"

#include <kdQCore/kdDataTable>
#include <kdQCore/kdTypedException>

#include <QLocale>
#include <QTextStream>

namespace {

using Columns = QList<QVector<double>>;

kdDataTable imported(QString text)
{
    QTextStream stream(&text);
    kdDataTable table;
    kdDataTable::importFromTextStream(stream, table);
    return table;
}

Columns values(const kdDataTable& table)
{
    Columns result;
    for (int i = 0; i < table.columns(); ++i)
        result.append(table.columnRef(i).values());
    return result;
}

QStringList texts(std::initializer_list<const char*> list)
{
    QStringList result;
    for (const char* text : list)
        result.append(QString::fromUtf8(text));
    return result;
}

// "name:unit" of every column.
QStringList titles(const kdDataTable& table)
{
    QStringList result;
    for (int i = 0; i < table.columns(); ++i)
        result.append(table.columnRef(i).name() + QLatin1Char(':')
                      + table.columnRef(i).getUnitSystem().symbol());
    return result;
}

QString exported(const kdDataTable& table, const QString& separator, bool withHeader, const QLocale* locale)
{
    QString text;
    QTextStream stream(&text);
    return table.exportValuesToTextStream(stream, separator, withHeader, locale) ? text : QString();
}

kdDataTable measuredCurve()
{
    kdDataTable table(kdUnitSystem::Time, kdUnitSystem::Temperature);
    table.setUnitY(1);
    table.setXName(QStringLiteral("time; since start"));
    table.addPoint(0.0, 20.0);
    table.addPoint(0.1, 1.0 / 3.0);
    table.addPoint(-1e-7, 1.7976931348623157e308);
    return table;
}

} // namespace

class TestTableText : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void readsFilesAsPeopleHaveThem()
    {
        const auto read = [](const char* text) { return values(imported(QString::fromUtf8(text))); };
        const Columns two{{1.5, -2.0}, {3.0, 4e3}};
        QCOMPARE(read("1.5;3\n-2;4e3\n"), two);
        QCOMPARE(read("1,5|3\n|\n-2|4e3|\n"), two);
        QCOMPARE(read("  1.5   3\n-2 4e3  \n"), two);
        QCOMPARE(read("\r1.5;3\r-2;4e3\r"), two);
        QCOMPARE(read("\ufeffsep=;\n1,5;3\n-2;4e3\n"), two);
        QCOMPARE(read("\u00ef\u00bb\u00bf1.5;3\n-2;4e3"), two);
        QCOMPARE(read("\n1.5;3\n\n;;\n  \n-2;4e3\n\n"), two);
        QCOMPARE(read("# a\n// b\n1.5;3\n% c\n! d\n  # 1;2\n$ e\n* f\n-2;4e3\n"), two);
        QCOMPARE(read("\"1.5\",\"3\"\n\" -2 \",\"4e3\"\n"), two);
        QCOMPARE(read("1.5D0 +3\n\u22122 4d+03\n"), two);
        QCOMPARE(read("1e-400"), (Columns{{0.0}}));
        QCOMPARE(read(""), (Columns{}));
    }

    void headers()
    {
        const auto read = [](const char* text) { return titles(imported(QString::fromUtf8(text))); };
        const QStringList usual{QStringLiteral("temperature:°C"), QStringLiteral("yield stress:MPa")};
        QCOMPARE(read("temperature [degC];yield stress [MPa]\n1;2"), usual);
        QCOMPARE(read("temperature / °C;yield stress / MPa\n1;2"), usual);
        QCOMPARE(read("temperature;yield stress\n[degC];[MPa]\n1;2"), usual);
        QCOMPARE(read("\"1/2\"\" bar\";b\n1;2"), texts({"1/2\" bar:-", "b:-"}));
        QCOMPARE(read("temperature [degC] yield stress [MPa]\n1 2"), usual);
        QCOMPARE(read("temperature [degC];yield stress [MPa]\n1 2"), usual);
        QCOMPARE(read("# S355, rolled\n# temperature [degC]; yield stress [MPa]\n1;2"), usual);
        QCOMPARE(read("# 20 degC; rolled\n1;2"), texts({":-", ":-"}));
        QCOMPARE(read("c (mean) (J/(kg K)),t\n1,2"), texts({"c (mean):J/(kg·K)", "t:-"}));
        QCOMPARE(read("speed [furlong];x (mean)\n1;2"), texts({"speed [furlong]:-", "x (mean):-"}));
        QCOMPARE(read("dimension=4;unit=1;name=a;b \ndimension=0;unit=-1;name=\n1;2"),
                 texts({"a;b :mm", ":"}));
        QCOMPARE(read("# dimension=30\tunit=N/mm2\tname=s\n1"), texts({"s:N/mm²"}));
        QCOMPARE(read("#dimension=3;unit=0;name=t\n"), texts({"t:s"}));
    }

    void errors_data()
    {
        QTest::addColumn<QString>("text");
        QTest::addColumn<int>("row");
        QTest::addColumn<int>("column");
        QTest::addColumn<QString>("message");
        QTest::newRow("no number") << "# a\nx;y\n1;2\n1;2a\n"
                                   << 4 << 2 << "row 4, column 2: '2a' is not a number";
        QTest::newRow("too many") << "1;2\n3;4;5" << 2 << 3 << "row 2 has 3 values, the table has 2 columns";
        QTest::newRow("header too long")
            << "a;b;c\n\n1;2" << 3 << 3 << "row 3 has 2 values, the header in row 1 names 3 columns";
        QTest::newRow("described otherwise")
            << "#dimension=4;unit=1;name=a\n1;2" << 2 << 2 << "row 2 has 2 values, the table has 1 column";
        QTest::newRow("no such dimension") << "#dimension=99;unit=0;name=a\n1" << 1 << 1
                                           << "row 1 does not describe a column by dimension, unit and name";
        QTest::newRow("decimal comma and digit groups")
            << "1.234,5;2" << 1 << 1 << "row 1, column 1: '1.234,5' is not a number";
        QTest::newRow("too large") << "1e999" << 1 << 1 << "row 1, column 1: '1e999' is not a number";
        QTest::newRow("only a header") << "\na;b\n" << 2 << 1 << "row 2: no values follow the header";
        QTest::newRow("very long field")
            << QString(QLatin1String("1\n") + QString(100, QLatin1Char('x'))) << 2 << 1
            << QString(QLatin1String("row 2, column 1: '") + QString(40, QLatin1Char('x'))
                       + QLatin1String("...' is not a number"));
    }

    void errors()
    {
        QFETCH(QString, text);
        kdDataTable table = measuredCurve();
        QTextStream stream(&text);
        try {
            kdDataTable::importFromTextStream(stream, table);
            QFAIL("nothing was thrown");
        } catch (const kdTypedException<QPair<int, int>>& failure) {
            QTEST(failure.getErrorMessage(), "message");
            QTEST(failure.payload().first, "row");
            QTEST(failure.payload().second, "column");
        }
        QVERIFY(table == measuredCurve());
    }

    void exportReadsBack()
    {
        const QLocale german(QLocale::German, QLocale::Germany);
        for (const char* separator : {";", "\t", ",", " ", "  ", "|", ", ", " ; ", "§"})
            for (const QLocale* locale : {static_cast<const QLocale*>(nullptr), &german}) {
                const QString mark = QString::fromUtf8(separator);
                QString text = exported(measuredCurve(), mark, true, locale);
                QCOMPARE(text.contains(QLatin1String("0,3333333333")),
                         locale && !mark.contains(QLatin1Char(',')));
                QVERIFY2(imported(text) == measuredCurve(), separator);
                QVERIFY2(imported(text.remove(QLatin1Char('#'))) == measuredCurve(), separator);
            }
    }

    void exportLayout()
    {
        kdDataTable table = measuredCurve();
        table.setYName(QStringLiteral("two\r\nlines %1"));
        const QString rows = QStringLiteral("0;20\n0.1;0.3333333333333333\n-1e-07;1.7976931348623157e+308\n");
        QCOMPARE(exported(table, QStringLiteral(";"), false, nullptr), rows);
        QCOMPARE(exported(table, QStringLiteral(";"), true, nullptr),
                 QStringLiteral(
                     "#dimension=3;unit=0;name=time; since start\n#dimension=10;unit=1;name=two  lines %1\n")
                     + rows);
    }

    void uselessSeparators()
    {
        for (const char* separator : {"", ".", "-", "+", "e", "0", "=", "#", "\n", "\"", ";\r"})
            QCOMPARE(exported(measuredCurve(), QString::fromLatin1(separator), true, nullptr), QString());
    }

    void bareTexts()
    {
        QString text = QStringLiteral("t;F\ns;kN\n1,50;−2\n3;4\n");
        QTextStream stream(&text);
        QList<QStringList> rows{{QStringLiteral("old")}};
        QList<QStringList> headers;
        kdDataTable::importValuesFromTextStream(stream, &rows, &headers);
        QCOMPARE(rows, (QList<QStringList>{texts({"1.50", "-2"}), texts({"3", "4"})}));
        QCOMPARE(headers, (QList<QStringList>{texts({"t", "F"}), texts({"s", "kN"})}));

        QTextStream broken(&(text = QStringLiteral("1\nx")));
        QVERIFY_EXCEPTION_THROWN(kdDataTable::importValuesFromTextStream(broken, &rows), kdException);
        QCOMPARE(rows.size(), 2);
    }

    void importKeepsTheTablesOwnAttributes()
    {
        kdDataTable table = measuredCurve();
        table.setName(QStringLiteral("mine"));
        QString text = QStringLiteral("1;2;3");
        QTextStream stream(&text);
        kdDataTable::importFromTextStream(stream, table);
        QCOMPARE(table.name(), QStringLiteral("mine"));
        QCOMPARE(int(table.columnRef(0).getUsage()), int(kdDataColumn::UsageX));
        QCOMPARE(int(table.columnRef(2).getUsage()), int(kdDataColumn::UsageY));
    }
};

KDQ_TEST_MAIN(TestTableText)
#include "tst_tabletext.moc"
