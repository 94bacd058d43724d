#include "figure.h"
#include "kdqtest.h"

#include <cmath>

Q_DECLARE_METATYPE(Figure)

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

/// Figures on their way between programs, and what cannot be drawn.
class TestFigureJson : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void roundTrip()
    {
        const Figure figure = sample();
        Figure read;
        QString error;
        QVERIFY2(Figure::fromJson(figure.toJson(), read, error), qPrintable(error));
        QCOMPARE(read.toJson(), figure.toJson());
        QCOMPARE(read.title, figure.title);
        QVERIFY(read.x.isLogarithmic && read.x.to == 0.1 + 0.2 && std::isnan(read.y.at(1).from));
        QCOMPARE(read.y.at(0).label() + read.y.at(1).label(), S("T [°C]s"));
        const Figure::Curve& curve = read.curves.at(0);
        QVERIFY(curve.axis == 1 && curve.points.at(2) == figure.curves.at(0).points.at(2));
        QVERIFY(std::isnan(curve.points.at(1).x()));
        QVERIFY(read.curves.at(1).form == Figure::Curve::Points && read.stretches.at(0).to == 2.0);
    }

    void broken_data()
    {
        QTest::addColumn<QByteArray>("json");
        QTest::addColumn<QString>("place"); // or what is said of it; empty: it is read
        kdqRow("nothing", QByteArray(), "no JSON");
        kdqRow("cut off", sample().toJson().chopped(3), "no JSON");
        kdqRow("deep", QByteArray(100000, '['), "no JSON");
        kdqRow("a list", QByteArray("[]"), "must be an object");
        kdqRow("unknown words", QByteArray(R"({"later": {"a": 1}, "x": {"colour": 3}})"), "");
        kdqRow("title", QByteArray(R"({"title": 5})"), "'title' must be a text");
        kdqRow("x", QByteArray(R"({"x": []})"), "'x' must be an axis");
        kdqRow("y", QByteArray(R"({"y": {}})"), "'y' must be a list");
        kdqRow("second y", QByteArray(R"({"y": [{}, 3]})"), "'y[1]' must be an object");
        kdqRow("end", QByteArray(R"({"y": [{"from": "0"}]})"), "'y[0].from' must be a number");
        kdqRow("flag", QByteArray(R"({"x": {"logarithmic": 1}})"), "'x.logarithmic' must be true");
        kdqRow("no points", QByteArray(R"({"curves": [{}]})"), "'curves[0].points' must be a list");
        kdqRow("axis", QByteArray(R"({"curves": [{"axis": 1e99, "points": []}]})"),
               "'curves[0].axis' must be 0 or 1");
        kdqRow("form", QByteArray(R"({"curves": [{"form": "pie", "points": []}]})"),
               "'curves[0].form' must be lines, steps, points");
        kdqRow("point", QByteArray(R"({"curves": [{"points": [[1, 2], null, [3]]}]})"),
               "'curves[0].points[2]' must be a pair of numbers");
        kdqRow("stretch", QByteArray(R"({"stretches": [{"to": null}]})"),
               "'stretches[0].to' must be a number");
    }

    void broken()
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

    void faults_data()
    {
        QTest::addColumn<Figure>("figure");
        QTest::addColumn<QString>("fault"); // a part of it
        const auto with = [](void (*change)(Figure&)) {
            Figure figure = sample();
            change(figure);
            return figure;
        };
        kdqRow("none", sample(), "");
        kdqRow("empty", Figure(), "one or two y axes, not 0");
        kdqRow("three axes", with([](Figure& f) { f.y.append(Figure::Axis()); }), "not 3");
        kdqRow("no points", with([](Figure& f) { f.curves.clear(); }), "nothing to draw");
        kdqRow("only gaps", with([](Figure& f) {
                   f.curves = {{S("a"), {{-1, 2}, {1, Figure::unset}}}};
               }),
               "nothing to draw");
        kdqRow("axis of a curve", with([](Figure& f) { f.curves[0].axis = 2; }),
               "Curve 'a' belongs to y axis 3, and there are only 2.");
        kdqRow("far out", with([](Figure& f) { f.curves[1].points[0].setY(-1e305); }), "(0.2, -1e+305)");
        kdqRow("logarithm of 0", with([](Figure& f) { f.x.from = 0.0; }), "must begin above 0");
        kdqRow("falling axis", with([](Figure& f) { f.y[1].from = 8.0; }), "not run from 8 to 7");
        kdqRow("endless axis", with([](Figure& f) { f.y[1].to = HUGE_VAL; }), "cannot reach to inf");
        kdqRow("many curves", with([](Figure& f) { f.curves.resize(101); }), "at most 100 curves");
        kdqRow("many gaps", with([](Figure& f) {
                   for (int i = 0; i < 2002; ++i)
                       f.curves[0].points.append({0.01 + i * 1e-5, i % 2 == 0 ? 1.0 : Figure::unset});
               }),
               "pieces with gaps");
        kdqRow("many points", with([](Figure& f) {
                   f.curves[1].points.fill({0.1, 1}, 10001);
               }),
               "at most 10000 can be drawn singly");
    }

    void faults()
    {
        QFETCH(Figure, figure);
        QFETCH(QString, fault);
        QCOMPARE(figure.fault().isEmpty(), fault.isEmpty());
        QVERIFY2(figure.fault().contains(fault), qPrintable(figure.fault()));
    }
};

KDQ_TEST_MAIN(TestFigureJson)
#include "tst_figurejson.moc"
