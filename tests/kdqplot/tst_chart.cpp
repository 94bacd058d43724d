#include "axisticks.h"
#include "chart.h"
#include "kdqtest.h"

#include <QApplication>
#include <QImage>
#include <QXmlStreamReader>

Q_DECLARE_METATYPE(Figure)

/// Pictures as files, read by others than those who drew them.
class TestChart : public QObject {
    Q_OBJECT

private Q_SLOTS:
    void ticks_data();
    void ticks();
    void sharedGrid();
    void svg();
    void png();
    void forms_data();
    void forms();
    void aMillionPoints();
    void refused_data();
    void refused();
};

namespace {

Figure sample()
{
    Figure figure;
    figure.title = S("Öl & <Wasser>\x01");
    figure.x = {S("Time"), S("min")};
    figure.y = {{S("Temperature"), S("°C")}, {S("Carbon potential"), S("%")}};
    figure.curves = {{S("furnace & bath"), {{0, 20}, {50, 930}, {100, 930}}},
                     {S("carbon"), {{0, 0.2}, {40, 1.0}, {Figure::unset, 0}, {60, 1.0}, {100, 0.8}}, 1}};
    figure.stretches = {{S("Heating"), 0, 50}, {S("Holding"), 50, 100}};
    return figure;
}

Figure oneCurve(Figure::Curve::Form form, const QVector<QPointF>& points)
{
    Figure figure;
    figure.y = {Figure::Axis()};
    figure.curves = {{S("c"), points, 0, form}};
    return figure;
}

struct Svg {
    QString size;
    QStringList texts;
    QVector<QPair<QString, int>> lines; ///< colour and number of points of each polyline in colour
    int circles = 0;
    bool isWellFormed = false;
};

Svg readSvg(const QByteArray& bytes)
{
    Svg result;
    QStringList colours{QString()};
    QXmlStreamReader reader(bytes);
    while (!reader.atEnd()) {
        reader.readNext();
        const QXmlStreamAttributes attributes = reader.attributes();
        const QStringRef name = reader.name();
        if (reader.isEndElement() && name == S("g"))
            colours.removeLast();
        if (!reader.isStartElement())
            continue;
        if (name == S("svg"))
            result.size = S("%1 %2 %3")
                              .arg(attributes.value(S("width")), attributes.value(S("height")),
                                   attributes.value(S("viewBox")));
        else if (name == S("g"))
            colours.append(attributes.value(S("stroke")).toString());
        else if (name == S("text") || name == S("title"))
            result.texts.append(reader.readElementText());
        else if (name == S("circle"))
            ++result.circles;
        else if ((name == S("polyline") || name == S("path")) && colours.last() == S("#0072b2"))
            result.lines.append({colours.last(), attributes.value(S("points")).count(QLatin1Char(','))});
    }
    result.isWellFormed = !reader.hasError();
    return result;
}

QByteArray picture(const Figure& figure, nChart::Format format, double scale = 1.0)
{
    QString error;
    return nChart::picture(figure, format, QSize(640, 400), scale, error);
}

} // namespace

void TestChart::ticks_data()
{
    QTest::addColumn<double>("lowest");
    QTest::addColumn<double>("highest");
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<double>("step");
    QTest::addColumn<int>("decimals");
    kdqRow("round", 0.0, 1200.0, 0.0, 1200.0, 200.0, 0);
    kdqRow("quarters", -0.7, 0.7, -0.75, 0.75, 0.25, 2);
    kdqRow("rounded sums", 0.1, 0.1 + 0.2, 0.1, 0.3, 0.05, 2);
    kdqRow("equal values", 20.0, 20.0, 18.0, 22.0, 1.0, 0);
    kdqRow("nothing", 0.0, 0.0, -1.0, 1.0, 0.5, 1);
    kdqRow("small", 1e-300, 6e-300, 1e-300, 6e-300, 1e-300, 12);
}

void TestChart::ticks()
{
    QFETCH(double, lowest);
    QFETCH(double, highest);
    QFETCH(double, from);
    QFETCH(double, to);
    QFETCH(double, step);
    const AxisTicks ticks = AxisTicks::around(lowest, highest, 6);
    const double close = 1e-9 * step;
    QVERIFY2(std::abs(ticks.step - step) < close, qPrintable(QString::number(ticks.step)));
    QVERIFY2(std::abs(ticks.from - from) < close, qPrintable(QString::number(ticks.from)));
    QVERIFY2(std::abs(ticks.to - to) < close, qPrintable(QString::number(ticks.to)));
    QTEST(ticks.decimals(), "decimals");
}

void TestChart::sharedGrid()
{
    for (const QPair<double, double>& values :
         {qMakePair(0.35, 1.1), qMakePair(-7.0, -1.0), qMakePair(0.0, 1e6), qMakePair(5.0, 5.0)})
        for (int steps = 1; steps < 12; ++steps) {
            const AxisTicks ticks = AxisTicks::withSteps(values.first, values.second, steps);
            QCOMPARE(ticks.steps(), steps);
            QVERIFY(ticks.from <= values.first && ticks.to >= values.second);
        }
}

void TestChart::svg()
{
    const QByteArray bytes = picture(sample(), nChart::Svg);
    const Svg svg = readSvg(bytes);
    QVERIFY(svg.isWellFormed);
    QCOMPARE(svg.size, S("640 400 0 0 640 400"));
    for (const QString& expected :
         {S("Öl & <Wasser>\ufffd"), S("Time [min]"), S("Temperature [°C]"), S("Carbon potential [%]"),
          S("furnace & bath"), S("carbon"), S("Heating"), S("Holding"), S("1000"), S("0,6")})
        QVERIFY2(svg.texts.contains(expected), qPrintable(svg.texts.join(S(" / "))));
    QCOMPARE(picture(sample(), nChart::Svg), bytes);
}

void TestChart::png()
{
    const QImage image = QImage::fromData(picture(sample(), nChart::Png, 1.5), "PNG");
    QCOMPARE(image.size(), QSize(960, 600));
    QCOMPARE(image.pixelColor(2, 2), QColor(Qt::white));
    int blue = 0;
    for (int x = image.width() / 2; x < image.width() * 3 / 4; ++x) // where the furnace holds
        for (int y = 0; y < image.height() / 2; ++y)
            blue += image.pixelColor(x, y) == QColor(0x00, 0x72, 0xb2) ? 1 : 0;
    QVERIFY2(blue >= image.width() / 4, qPrintable(QString::number(blue)));
}

void TestChart::forms_data()
{
    QTest::addColumn<Figure>("figure");
    QTest::addColumn<QVector<int>>("lines"); // points of each
    QTest::addColumn<int>("circles");
    const double gap = Figure::unset;
    kdqRow("line", oneCurve(Figure::Curve::Lines, {{0, 1}, {1, 3}, {2, 2}}), QVector<int>{3}, 0);
    kdqRow("gap", oneCurve(Figure::Curve::Lines, {{0, 1}, {1, 3}, {gap, 0}, {2, 2}, {3, 2}, {4, 1}}),
           QVector<int>{2, 3}, 0);
    kdqRow("steps", oneCurve(Figure::Curve::Steps, {{0, 1}, {1, 3}, {2, 2}}), QVector<int>{5}, 0);
    kdqRow("single point", oneCurve(Figure::Curve::Lines, {{2, 2}}), QVector<int>{}, 1);
    kdqRow("points", oneCurve(Figure::Curve::Points, {{0, 1}, {1, 3}, {2, 2}}), QVector<int>{}, 3);
    Figure logarithmic = oneCurve(Figure::Curve::Lines, {{-1, 1}, {1, 1e-200}, {10, 1e200}});
    logarithmic.x.isLogarithmic = logarithmic.y[0].isLogarithmic = true;
    kdqRow("logarithmic", logarithmic, QVector<int>{2}, 0);
    kdqRow("huge", oneCurve(Figure::Curve::Lines, {{-1e300, -1e300}, {1e300, 1e300}}), QVector<int>{2}, 0);
}

void TestChart::forms()
{
    QFETCH(Figure, figure);
    const Svg svg = readSvg(picture(figure, nChart::Svg));
    QVERIFY(svg.isWellFormed);
    QVector<int> lines;
    for (const auto& line : svg.lines)
        lines.append(line.second);
    QTEST(lines, "lines");
    QTEST(svg.circles, "circles");
}

void TestChart::aMillionPoints()
{
    QVector<QPointF> points;
    for (int i = 0; i < 1000000; ++i)
        points.append({double(i), double(i % 7)});
    const QByteArray bytes = picture(oneCurve(Figure::Curve::Lines, points), nChart::Svg);
    QVERIFY(readSvg(bytes).isWellFormed);
    QVERIFY2(bytes.size() < 500000, qPrintable(QString::number(bytes.size())));
}

void TestChart::refused_data()
{
    QTest::addColumn<Figure>("figure");
    QTest::addColumn<QSize>("size");
    QTest::addColumn<QString>("expected");
    kdqRow("nothing", oneCurve(Figure::Curve::Lines, {}), QSize(640, 400), "nothing to draw");
    kdqRow("small", sample(), QSize(640, 199), "200 to 10000 pixels each way, not 1280 x 398");
    kdqRow("large", sample(), QSize(5001, 400), "not 10002 x 800");
}

void TestChart::refused()
{
    QFETCH(Figure, figure);
    QFETCH(QSize, size);
    QFETCH(QString, expected);
    QString error;
    QVERIFY(nChart::picture(figure, nChart::Png, size, 2.0, error).isEmpty());
    QVERIFY2(error.contains(expected), qPrintable(error));
}

int main(int argc, char** argv)
{
    nChart::useNoScreen();
    QApplication application(argc, argv);
    kdqPrepareTest("TestChart");
    TestChart test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_chart.moc"
