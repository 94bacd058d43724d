#include "formulafigure.h"
#include "heatfigure.h"
#include "kdqtest.h"
#include "tablefigure.h"

#include <kdQCore/coHeatTreatmentDataFactory>
#include <kdQCore/coHtCaseHardeningStageProp>

#include <cmath>

namespace {

using Table = QSharedPointer<const kdDataTable>;

/// A table from its text, named as told.
nTableFigure::Source source(const QString& name, QString text)
{
    QSharedPointer<kdDataTable> table(new kdDataTable);
    QTextStream stream(&text);
    kdDataTable::importFromTextStream(stream, *table);
    table->setName(name);
    return {table, -1, {}, {}};
}

const QString stress = S("t [degC];yield_stress [MPa]\n20;355\n1200;0\n");
const QString fire = S("t [K];fire [MPa]\n293.15;1\n");
const QString furnace = S("t [s];T [K]\n0;300\n");

/// "x | y | y: curve, curve", and of each curve its first point.
QString text(const Figure& figure)
{
    QStringList axes{figure.x.label()};
    for (const Figure::Axis& axis : figure.y)
        axes.append(axis.label());
    QStringList curves;
    for (const Figure::Curve& curve : figure.curves)
        curves.append(S("%1/%2 (%3, %4)")
                          .arg(curve.name, QString::number(curve.axis),
                               QString::number(curve.points.first().x()),
                               QString::number(curve.points.first().y())));
    return S("%1: %2").arg(axes.join(S(" | ")), curves.join(S(", ")));
}

} // namespace

/// Figures as they are made of tables, formulas and processes.
class TestFigure : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void tables_data()
    {
        QTest::addColumn<QStringList>("texts");
        QTest::addColumn<QString>("xUnit");
        QTest::addColumn<QStringList>("yUnits");
        QTest::addColumn<bool>("inViewUnits");
        QTest::addColumn<QString>("expected");
        const QString two = S("t [degC];E [GPa];expansion [1/K]\n20;210;1e-5\n");
        const QString three = S("t [degC];E [GPa];heat [J/(kg K)];k [W/(m K)]\n20;210;440;53\n");
        kdqRow("as it is", QStringList{stress}, "", QStringList{}, false,
               "t [°C] | Yield stress [MPa]: Yield stress/0 (20, 355)");
        kdqRow("given units", QStringList{two}, "K", QStringList{S("1/K"), S("MPa")}, false,
               "t [K] | E [MPa] | Expansion [1/K]: E/0 (293.15, 210000), Expansion/1 (293.15, 1e-05)");
        kdqRow("view units", QStringList{S("t [h];s [m]\n1;2\n")}, "min", QStringList{}, true,
               "t [min] | s [mm]: s/0 (60, 2000)");
        kdqRow("two tables in the units of the first", QStringList{stress, fire}, "", QStringList{}, false,
               "t [°C] | Stress [MPa]: a/0 (20, 355), b/0 (20, 1)");
        kdqRow("names for people", QStringList{S("time [s];kf_0 [MPa];kf [MPa]\n1;2;3\n")}, "", QStringList{},
               false, "Time [s] | Stress [MPa]: Kf 0/0 (1, 2), kf/0 (1, 3)");
        kdqRow("no units", QStringList{S("n;m\n1;2\n")}, "", QStringList{}, true, "n | m: m/0 (1, 2)");
        kdqRow("different x", QStringList{stress, furnace}, "", QStringList{}, false,
               "Tables 'a' and 'b' run over different quantities, Temperature and Time.");
        kdqRow("three quantities", QStringList{three}, "", QStringList{}, false,
               "The columns have 3 different quantities (Stress, Specific heat, Thermal conductivity), and a "
               "picture has two y axes at most; choose columns.");
        kdqRow("wrong unit of x", QStringList{stress}, "mm", QStringList{}, false,
               "The x axis shows Temperature, which has no unit 'mm'.");
        kdqRow("wrong unit of y", QStringList{two}, "", QStringList{S("kN")}, false,
               "No y axis can be shown in 'kN'; they show Stress, Thermal expansion.");
        kdqRow("one column", QStringList{S("t [s]\n1\n")}, "", QStringList{}, false,
               "Table 'a' has no columns to draw.");
    }

    void tables()
    {
        QFETCH(QStringList, texts);
        QFETCH(QString, xUnit);
        QFETCH(QStringList, yUnits);
        QFETCH(bool, inViewUnits);
        QVector<nTableFigure::Source> sources;
        for (const QString& table : qAsConst(texts))
            sources.append(source(sources.isEmpty() ? S("a") : S("b"), table));
        Figure figure;
        QString error;
        const bool ok =
            nTableFigure::make(sources, {inViewUnits, xUnit, yUnits, Figure::Curve::Lines}, figure, error);
        QTEST(ok ? text(figure) : error, "expected");
    }

    void columnsOfAnotherOrder()
    {
        nTableFigure::Source chosen = source(S("a"), S("t [s];x [mm];v [mm/s]\n1;2;3\nnan;4;5\n"));
        chosen.x = 1;
        chosen.y = {2};
        Figure figure;
        QString error;
        QVERIFY(nTableFigure::make({chosen}, {}, figure, error));
        QCOMPARE(text(figure), S("x [mm] | v [mm/s]: v/0 (2, 3)"));
        chosen = source(S("a"), S("t [s];x [mm];y [mm];z [m]\n1;2;3;4\n"));
        chosen.right = {1};
        QVERIFY(nTableFigure::make({chosen}, {false, {}, {S("m"), S("cm")}, Figure::Curve::Lines}, figure,
                                   error));
        QCOMPARE(text(figure), S("t [s] | Length [m] | x [cm]: x/1 (1, 0.2), y/0 (1, 0.003), z/0 (1, 4)"));
        chosen.y = {0, 7};
        QVERIFY(!nTableFigure::make({chosen}, {}, figure, error));
        QCOMPARE(error, S("Table 'a' has no column 8."));
    }

    void formulas_data()
    {
        QTest::addColumn<QString>("formula");
        QTest::addColumn<double>("from");
        QTest::addColumn<double>("to");
        QTest::addColumn<QVector<double>>("ends"); // of the pieces, to four decimals
        QTest::addColumn<int>("mostPoints");
        kdqRow("straight", "2*x+1", -1.0, 1.0, QVector<double>{-1.0, 1.0}, 401);
        kdqRow("kink", "abs(x-0.3337)", 0.0, 1.0, QVector<double>{0.0, 1.0}, 450);
        kdqRow("falling range", "x", 5.0, 2.0, QVector<double>{5.0, 2.0}, 401);
        kdqRow("begins within", "sqrt(x)", -1.0, 2.0, QVector<double>{0.0, 2.0}, 700);
        kdqRow("hole", "sqrt(x*x-0.5)", -1.0, 1.0, QVector<double>{-1.0, -0.7071, 0.7071, 1.0}, 900);
        kdqRow("pole", "1/x", -1.0, 1.0, QVector<double>{-1.0, 0.0, 0.0, 1.0}, 20000);
    }

    void formulas()
    {
        QFETCH(QString, formula);
        QFETCH(double, from);
        QFETCH(double, to);
        QFETCH(int, mostPoints);
        coExpression expression(formula);
        Figure figure;
        QString error;
        QVERIFY(nFormulaFigure::make(expression, {S("x"), from, to, false}, figure, error));
        QCOMPARE(figure.fault(), QString());
        const Figure::Curve curve = figure.curves.first();
        QVERIFY2(curve.points.size() <= mostPoints, qPrintable(QString::number(curve.points.size())));
        QVector<double> found;
        const QVector<QVector<QPointF>> pieces = figure.pieces(curve);
        for (const QVector<QPointF>& piece : pieces) {
            for (const double end : {piece.first().x(), piece.last().x()})
                found.append(std::round(end * 1e4) / 1e4);
            for (int i = 0; i + 1 < piece.size(); ++i) { // the line between two points is the curve
                const QPointF middle = (piece.at(i) + piece.at(i + 1)) / 2.0;
                double exact = 0.0;
                expression.setVariable(S("x"), middle.x());
                QVERIFY(expression.evaluate(&exact));
                if (std::abs(exact) < 100.0) // nobody looks that close at a pole
                    QVERIFY2(std::abs(exact - middle.y()) <= 0.002 * std::max(1.0, std::abs(exact)),
                             qPrintable(QString::number(middle.x())));
            }
        }
        QTEST(found, "ends");
    }

    void process()
    {
        coHeatTreatmentData gear(nHeatTreatment::CaseHardening);
        nHeatTreatment::coHeatTreatmentDataFactory::setup(gear);
        gear.getStage(7)->setEnabled(false);
        Figure figure;
        QString error;
        QVERIFY(nHeatFigure::make(gear, {}, figure, error));
        QCOMPARE(text(figure),
                 S("Time [h] | Temperature [°C] | Carbon potential [%]: Temperature/0 (0, 20), Carbon "
                   "potential/1 (1.5, 1.05)"));
        QCOMPARE(figure.stretches.size(), 7);
        QCOMPARE(figure.stretches.at(2).name, S("Diffusion"));
        QCOMPARE(figure.stretches.at(2).from, 4.5);
        QCOMPARE(figure.stretches.at(2).to, 6.5);
        // The oil exchanges no carbon: the curve ends where quenching begins.
        const QVector<QVector<QPointF>> potential = figure.pieces(figure.curves.at(1));
        QCOMPARE(potential.size(), 1);
        QCOMPARE(potential.first().last(), QPointF(7.5, 0.75));

        kdDataTable falling(kdUnitSystem::Time, kdUnitSystem::MassFraction);
        falling.setPoints({{0.0, 0.011}, {1800.0, 0.0075}, {90000.0, 0.001}});
        auto diffusion = gear.getStage(2).dynamicCast<coHtCaseHardeningStageProp>();
        diffusion->setCarbonPotential(coTableInput(falling));
        QVERIFY(nHeatFigure::make(gear, {S("min"), {S("kg/kg"), S("K")}}, figure, error));
        QCOMPARE(figure.y.at(0).unit, S("K"));
        const QVector<QPointF> points = figure.curves.at(1).points;
        QVERIFY(points.contains(QPointF(270.0, 0.011)));
        QVERIFY(points.contains(QPointF(300.0, 0.0075)));
        QVERIFY2(points.at(4).x() == 390.0 && points.at(4).y() < 0.0075, "cut at the end of the stage");
    }

    void processErrors()
    {
        coHeatTreatmentData plate(nHeatTreatment::StressRelief);
        nHeatTreatment::coHeatTreatmentDataFactory::setup(plate);
        const auto errorOf = [&plate](const nHeatFigure::Options& options) {
            Figure figure;
            QString error;
            return nHeatFigure::make(plate, options, figure, error) ? S("none") : error;
        };
        QCOMPARE(errorOf({S("m"), {S("K")}}), S("'m' is no unit of: Time."));
        QCOMPARE(errorOf({{}, {S("mm")}}), S("'mm' is no unit of: Temperature, Mass fraction."));
        for (const coHeatTreatmentData::StagePointer& stage : plate.stages())
            stage->setEnabled(false);
        QCOMPARE(errorOf({}), S("No enabled stage takes time and has a temperature."));
    }

    void piecesOfACurve()
    {
        Figure figure;
        figure.y = {{S("T"), S("K"), true}};
        Figure::Curve curve{S("c"), {{0, 1}, {1, 2}, {2, Figure::unset}, {3, -1}, {4, 3}, {5, 3}, {6, 4}}};
        using Pieces = QVector<QVector<QPointF>>;
        QCOMPARE(figure.pieces(curve), (Pieces{{{0, 1}, {1, 2}}, {{4, 3}, {5, 3}, {6, 4}}}));
        curve.form = Figure::Curve::Steps;
        figure.x.isLogarithmic = true;
        QCOMPARE(figure.pieces(curve), (Pieces{{{1, 2}}, {{4, 3}, {5, 3}, {6, 3}, {6, 4}}}));
    }

    void curvesAreCutAtTheEndsOfTheAxes()
    {
        Figure figure;
        figure.x.from = 0.0;
        figure.x.to = 10.0;
        figure.y = {{S("T"), S("K"), false, -1.0, 1.0}};
        using Pieces = QVector<QVector<QPointF>>;
        Figure::Curve curve{S("c"), {{-2, 0}, {2, 0}, {4, 4}, {8, -4}, {9, 0.5}, {9, 7}, {12, 8}}};
        QCOMPARE(figure.pieces(curve),
                 (Pieces{{{0, 0}, {2, 0}, {2.5, 1}},
                         {{5.5, 1}, {6.5, -1}},
                         {{8 + 3 / 4.5, -1}, {9, 0.5}, {9, 1}}}));
        curve.form = Figure::Curve::Points;
        QCOMPARE(figure.pieces(curve), (Pieces{{{2, 0}, {9, 0.5}}}));
        // On logarithmic axes a power of x is a straight line.
        figure.x = {S("x"), QString(), true, 1.0, 1e4};
        figure.y = {{S("y"), QString(), true, 1.0, 100.0}};
        curve = {S("square"), {{0.01, 1e-4}, {1e3, 1e6}}};
        const QVector<QPointF> cut = figure.pieces(curve).value(0);
        QCOMPARE(cut.value(0), QPointF(1.0, 1.0));
        QCOMPARE(cut.value(1), QPointF(10.0, 100.0));
        curve.points = {{1e-4, 1}, {0.9, 7}};
        figure.curves = {curve};
        QVERIFY(figure.pieces(curve).isEmpty() && figure.fault().contains(S("nothing to draw")));
    }

    void thinnedCurveKeepsItsExtremes_data()
    {
        QTest::addColumn<bool>("isLogarithmic");
        kdqRow("linear", false);
        kdqRow("logarithmic", true);
    }

    void thinnedCurveKeepsItsExtremes()
    {
        QFETCH(bool, isLogarithmic);
        constexpr int count = 100000;
        constexpr int columns = 500;
        Figure figure;
        figure.x.isLogarithmic = isLogarithmic;
        figure.y = {Figure::Axis()};
        figure.curves.append(Figure::Curve());
        QVector<QPointF>& points = figure.curves[0].points;
        for (int i = 0; i < count; ++i)
            points.append({isLogarithmic ? std::pow(10.0, 1e-4 * i) : i, std::sin(i * 0.01)});
        points[31234].setY(5.0);
        points[50000].setY(Figure::unset);
        points[77777].setY(-5.0);
        const QVector<QVector<QPointF>> thinned = figure.pieces(figure.thinned(columns).curves.first());
        QCOMPARE(thinned.size(), 2);
        for (const QVector<QPointF>& piece : thinned)
            QVERIFY(piece.size() > columns && piece.size() <= 2 * (columns + 1));
        QVERIFY(thinned.first().contains(points.at(31234)) && thinned.last().contains(points.at(77777)));
        QCOMPARE(thinned.first().first(), points.first());
        QCOMPARE(thinned.first().last(), points.at(49999));
        QCOMPARE(thinned.last().last(), points.last());
        QVERIFY(std::is_sorted(thinned.first().begin(), thinned.first().end(),
                               [](const QPointF& a, const QPointF& b) { return a.x() < b.x(); }));
        points.resize(4 * columns);
        QCOMPARE(figure.thinned(columns).curves.first().points, points);
    }
};

KDQ_TEST_MAIN(TestFigure)
#include "tst_figure.moc"
