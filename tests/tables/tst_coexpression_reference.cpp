#include "kdqtest.h"

#include <kdQCore/coExpression>

#include <QProcess>
#include <QStandardPaths>

#include <cmath>
#include <cstring>
#include <limits>

namespace {

struct Reference {
    QString text;
    QString printed;
    double x, y, z;
    QString outcome;
    QString detail;
};

// Numbers between "#", in our own form.
QString withNumbers(const QString& text)
{
    QStringList parts = text.split(QLatin1Char('#'));
    for (int i = 1; i < parts.size(); i += 2)
        parts[i] = QString::number(parts.at(i).toDouble(), 'g', QLocale::FloatingPointShortest);
    return parts.join(QString());
}

QVector<Reference> createReferences(const QString& python)
{
    const QString script =
        qEnvironmentVariable("KDQ_TEST_DATA") + QStringLiteral("/tests/tables/formula_reference.py");
    QProcess process;
    process.start(python, {script, QStringLiteral("20260801"), QStringLiteral("20000")});
    if (!process.waitForFinished(60000) || process.exitCode() != 0)
        qCritical("%s", process.readAllStandardError().constData());
    QVector<Reference> references;
    const QList<QByteArray> lines = process.readAllStandardOutput().split('\n');
    for (const QByteArray& line : lines) {
        const QStringList fields = QString::fromUtf8(line.trimmed()).split(QLatin1Char('\t'));
        if (fields.size() != 7)
            continue;
        QString text = fields.at(0);
        text.replace(QLatin1String("\\r"), QLatin1String("\r"))
            .replace(QLatin1String("\\n"), QLatin1String("\n"));
        references.append({text, withNumbers(fields.at(1)), fields.at(2).toDouble(), fields.at(3).toDouble(),
                           fields.at(4).toDouble(), fields.at(5), withNumbers(fields.at(6))});
    }
    return references;
}

QString errorString(const QString& outcome)
{
    if (outcome == QLatin1String("1"))
        return QStringLiteral("Division by zero.");
    return outcome == QLatin1String("2") ? QStringLiteral("Domain error.") : QStringLiteral("Range error.");
}

bool isSame(double a, double b)
{
    return std::memcmp(&a, &b, sizeof a) == 0 || (std::isnan(a) && std::isnan(b));
}

int indexOf(const coExpression& expression, const QString& name)
{
    for (int i = 0; i < expression.nbVariables(); ++i)
        if (expression.variableName(i) == name)
            return i;
    return -1;
}

} // namespace

/// Random formulas against the evaluator in formula_reference.py.
class TestExpressionReference : public QObject {
    Q_OBJECT

    QVector<Reference> m_references;

    static coExpression bound(const Reference& reference)
    {
        coExpression expression(reference.text);
        expression.setVariable(QStringLiteral("x"), reference.x);
        expression.setVariable(QStringLiteral("y"), reference.y);
        expression.setVariable(QStringLiteral("z"), reference.z);
        return expression;
    }

private Q_SLOTS:
    void initTestCase()
    {
        const QString python = QStandardPaths::findExecutable(QStringLiteral("python3"));
        if (python.isEmpty())
            QSKIP("python3 is not installed.");
        m_references = createReferences(python);
        QCOMPARE(m_references.size(), 20000);
    }

    void agrees()
    {
        int failures = 0;
        for (const Reference& reference : qAsConst(m_references)) {
            coExpression expression = bound(reference);
            const QString context =
                reference.text + QLatin1Char('\n') + reference.printed + QLatin1Char('\n');
            QVERIFY2(expression.isValid(), qPrintable(context + expression.errorDetails()));
            QVERIFY2(expression.toString() == reference.printed, qPrintable(context + expression.toString()));
            double value = 0.0;
            const bool succeeds = expression.evaluate(&value);
            QVERIFY2(succeeds == (reference.outcome == QLatin1String("value")),
                     qPrintable(context + reference.outcome + expression.errorString()));
            if (succeeds) {
                QVERIFY2(isSame(value, reference.detail.toDouble()),
                         qPrintable(context + reference.detail + QString::number(value, 'g', 17)));
                continue;
            }
            ++failures;
            QVERIFY2(expression.errorString() == errorString(reference.outcome),
                     qPrintable(context + expression.errorString()));
            const QString start = QStringLiteral("In expression:\n %1\nwhich").arg(reference.detail);
            QVERIFY2(expression.errorDetails().startsWith(start),
                     qPrintable(context + start + expression.errorDetails()));
        }
        QVERIFY(failures > 1000);
    }

    // With and without errors among the values, and with a rest that fills no block.
    void batchAgrees()
    {
        QVector<double> values;
        for (int i = 0; i < 150; ++i)
            values << (i - 20) * 0.75;
        values[70] = std::numeric_limits<double>::infinity();
        values[75] = std::nan("");
        for (int r = 0; r < m_references.size(); r += 4) {
            coExpression single = bound(m_references.at(r));
            coExpression batch = single;
            const int x = indexOf(single, QStringLiteral("x"));
            QVector<double> results = values;
            int firstFailure = 0;
            const bool succeeds =
                batch.evaluateAll(x, results.constData(), results.size(), results.data(), &firstFailure);
            int expectedFailure = -1;
            QString details;
            for (int i = 0; i < values.size(); ++i) {
                double value = std::nan("");
                single.setVariable(x, values.at(i));
                if (!single.evaluate(&value) && expectedFailure < 0) {
                    expectedFailure = i;
                    details = single.errorString() + single.errorDetails();
                }
                QVERIFY2(isSame(value, results.at(i)), qPrintable(single.toString()));
            }
            QCOMPARE(firstFailure, expectedFailure);
            QCOMPARE(succeeds, expectedFailure < 0);
            QCOMPARE(batch.errorString() + batch.errorDetails(), details);
        }
    }
};

KDQ_TEST_MAIN(TestExpressionReference)
#include "tst_coexpression_reference.moc"
