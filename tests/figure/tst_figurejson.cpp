#include "figure.h"
#include "kdqtest.h"

#include <cmath>

Q_DECLARE_METATYPE(Figure)

/// Figures on their way between programs, and what cannot be drawn.
class TestFigureJson : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void roundTrip();
    void broken_data();
    void broken();
    void faults_data();
    void faults();
};

#define S(text) QStringLiteral(text)

namespace {

Figure sample()
{
    Figure figure;
    figure.title = S("Grüße <&> \"x\"");
    figure.x = {S("Time"), S("µs"), true, 1e-3, 0.1 + 0.2};
    figure.y = {{S("T"), S("°C")}, {S("s"), S("-"), false, Figure::unset, 7.0}};
    figure.curves = {{S("a"), {{0.01, 2}, {Figure::unset, 0}, {0.1, 1e-310}}, 1, Figure::Curve::Steps},
                     {S("b"), {{0.2, 6}}, 0, Figure::Curve::Points}};
    figure.stretches = {{S("Halten"), 0.5, 2.0}};
    return figure;
}

} // namespace

void TestFigureJson::roundTrip()
{
    const Figure figure = sample();
    Figure read;
    QString error;
    QVERIFY2(Figure::fromJson(figure.toJson(), read, error), qPrintable(error));
    QCOMPARE(read.toJson(), figure.toJson());
    QCOMPARE(read.title, figure.title);
    QCOMPARE(read.x.to, 0.1 + 0.2);
    QVERIFY(read.x.isLogarithmic && std::isnan(read.y.at(1).from));
    QCOMPARE(read.y.at(0).label(), S("T [°C]"));
    QCOMPARE(read.y.at(1).label(), S("s"));
    QCOMPARE(read.curves.at(0).points.at(2), figure.curves.at(0).points.at(2));
    QVERIFY(std::isnan(read.curves.at(0).points.at(1).x()));
    QCOMPARE(read.curves.at(0).axis, 1);
    QCOMPARE(read.curves.at(1).form, Figure::Curve::Points);
    QCOMPARE(read.stretches.at(0).to, 2.0);
}

void TestFigureJson::broken_data()
{
    QTest::addColumn<QByteArray>("json");
    QTest::addColumn<QString>("place"); // or what is said of it; empty: it is read
    QTest::newRow("nothing") << QByteArray() << S("no JSON");
    QTest::newRow("cut off") << sample().toJson().chopped(3) << S("no JSON");
    QTest::newRow("deep") << QByteArray(100000, '[') << S("no JSON");
    QTest::newRow("a list") << QByteArray("[]") << S("must be an object");
    QTest::newRow("unknown words") << QByteArray(R"({"later": {"a": 1}, "x": {"colour": 3}})") << S("");
    QTest::newRow("title") << QByteArray(R"({"title": 5})") << S("'title' must be a text");
    QTest::newRow("x") << QByteArray(R"({"x": []})") << S("'x' must be an axis");
    QTest::newRow("y") << QByteArray(R"({"y": {}})") << S("'y' must be a list");
    QTest::newRow("second y") << QByteArray(R"({"y": [{}, 3]})") << S("'y[1]' must be an object");
    QTest::newRow("end") << QByteArray(R"({"y": [{"from": "0"}]})") << S("'y[0].from' must be a number");
    QTest::newRow("flag") << QByteArray(R"({"x": {"logarithmic": 1}})") << S("'x.logarithmic' must be true");
    QTest::newRow("no points") << QByteArray(R"({"curves": [{}]})") << S("'curves[0].points' must be a list");
    QTest::newRow("axis") << QByteArray(R"({"curves": [{"axis": 1e99, "points": []}]})")
                          << S("'curves[0].axis' must be 0 or 1");
    QTest::newRow("form") << QByteArray(R"({"curves": [{"form": "pie", "points": []}]})")
                          << S("'curves[0].form' must be lines, steps, points");
    QTest::newRow("point") << QByteArray(R"({"curves": [{"points": [[1, 2], null, [3]]}]})")
                           << S("'curves[0].points[2]' must be a pair of numbers");
    QTest::newRow("stretch") << QByteArray(R"({"stretches": [{"to": null}]})")
                             << S("'stretches[0].to' must be a number");
}

void TestFigureJson::broken()
{
    QFETCH(QByteArray, json);
    QFETCH(QString, place);
    Figure figure = sample();
    QString error;
    QCOMPARE(Figure::fromJson(json, figure, error), place.isEmpty());
    QVERIFY2(error.contains(place), qPrintable(error));
    if (!place.isEmpty())
        QCOMPARE(figure.toJson(), sample().toJson());
}

void TestFigureJson::faults_data()
{
    QTest::addColumn<Figure>("figure");
    QTest::addColumn<QString>("fault"); // a part of it
    const auto with = [](void (*change)(Figure&)) {
        Figure figure = sample();
        change(figure);
        return figure;
    };
    QTest::newRow("none") << sample() << S("");
    QTest::newRow("empty") << Figure() << S("one or two y axes, not 0");
    QTest::newRow("three axes") << with([](Figure& f) { f.y.append(Figure::Axis()); }) << S("not 3");
    QTest::newRow("no points") << with([](Figure& f) { f.curves.clear(); }) << S("nothing to draw");
    QTest::newRow("only gaps") << with([](Figure& f) {
        f.curves = {{S("a"), {{-1, 2}, {1, Figure::unset}}}};
    }) << S("nothing to draw");
    QTest::newRow("axis of a curve") << with([](Figure& f) { f.curves[0].axis = 2; })
                                     << S("Curve 'a' belongs to y axis 3, and there are only 2.");
    QTest::newRow("far out") << with([](Figure& f) { f.curves[1].points[0].setY(-1e305); })
                             << S("(0.2, -1e+305)");
    QTest::newRow("logarithm of 0") << with([](Figure& f) { f.x.from = 0.0; }) << S("must begin above 0");
    QTest::newRow("falling axis") << with([](Figure& f) { f.y[1].from = 8.0; }) << S("not run from 8 to 7");
    QTest::newRow("endless axis") << with([](Figure& f) { f.y[1].to = HUGE_VAL; })
                                  << S("cannot reach to inf");
    QTest::newRow("many curves") << with([](Figure& f) { f.curves.resize(101); }) << S("at most 100 curves");
    QTest::newRow("many gaps") << with([](Figure& f) {
        for (int i = 0; i < 2002; ++i)
            f.curves[0].points.append({0.01 + i * 1e-5, i % 2 == 0 ? 1.0 : Figure::unset});
    }) << S("pieces with gaps");
    QTest::newRow("many points") << with([](Figure& f) {
        f.curves[1].points.fill({0.1, 1}, 10001);
    }) << S("at most 10000 can be drawn singly");
}

void TestFigureJson::faults()
{
    QFETCH(Figure, figure);
    QFETCH(QString, fault);
    QCOMPARE(figure.fault().isEmpty(), fault.isEmpty());
    QVERIFY2(figure.fault().contains(fault), qPrintable(figure.fault()));
}

KDQ_TEST_MAIN(TestFigureJson)
#include "tst_figurejson.moc"
