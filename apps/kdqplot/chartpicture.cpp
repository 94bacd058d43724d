#include "chart.h"

#include <QBuffer>
#include <QGraphicsScene>
#include <QImage>
#include <QPainter>
#include <QRegularExpression>
#include <QtSvg/QSvgGenerator>

namespace {

/// The generator opens a group for every state of the painter, most of which draw nothing, gets a line piece
/// by piece, and gives the size in rounded millimetres.
QByteArray tidied(const QByteArray& svg, const QSize& size)
{
    static const QRegularExpression emptyGroup(QStringLiteral("<g [^>]*>\\s*</g>\\s*"));
    static const QRegularExpression cut(
        QStringLiteral("(\\S+) \" />\\s*<polyline fill=\"none\" vector-effect=\"none\" points=\"\\1 "));
    static const QRegularExpression sizeInMillimetres(
        QStringLiteral("width=\"[^\"]*mm\" height=\"[^\"]*mm\""));
    return QString::fromUtf8(svg)
        .remove(emptyGroup)
        .replace(cut, QStringLiteral("\\1 "))
        .replace(sizeInMillimetres,
                 QStringLiteral("width=\"%1\" height=\"%2\"")
                     .arg(QString::number(size.width()), QString::number(size.height())))
        .toUtf8();
}

QByteArray svg(QGraphicsScene& scene, const QSize& size, const QString& title)
{
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    QSvgGenerator generator;
    generator.setOutputDevice(&buffer);
    generator.setSize(size);
    generator.setViewBox(QRect(QPoint(0, 0), size));
    generator.setTitle(title);
    generator.setDescription(QStringLiteral("kdqplot"));
    QPainter painter(&generator);
    scene.render(&painter, QRectF(QPointF(0, 0), size), scene.sceneRect());
    painter.end();
    return tidied(buffer.data(), size);
}

QByteArray png(QGraphicsScene& scene, const QSize& size, double scale)
{
    QImage image(size * scale, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::TextAntialiasing);
    scene.render(&painter, image.rect(), scene.sceneRect());
    painter.end();
    QBuffer buffer;
    buffer.open(QIODevice::WriteOnly);
    image.save(&buffer, "PNG");
    return buffer.data();
}

} // namespace

void nChart::useNoScreen()
{
    // Windows' own platform needs no screen while nothing is shown, and knows where the fonts are.
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "windows;offscreen");
}

QByteArray nChart::picture(const Figure& figure, Format format, const QSize& size, double scale,
                           QString& error)
{
    error = figure.fault();
    const QSize pixels = format == Png ? size * scale : size;
    if (qMin(size.width(), size.height()) < smallest || qMax(pixels.width(), pixels.height()) > largest)
        error = Figure::tr("A picture has %1 to %2 pixels each way, not %3 x %4.")
                    .arg(QString::number(smallest), QString::number(largest), QString::number(pixels.width()),
                         QString::number(pixels.height()));
    if (!error.isEmpty())
        return {};
    QGraphicsScene scene;
    QtCharts::QChart* const chart = make(figure).release();
    scene.addItem(chart); // the scene owns it now
    chart->resize(size);
    scene.setBackgroundBrush(Qt::white);
    scene.setSceneRect(QRectF(QPointF(0, 0), size));
    return format == Svg ? svg(scene, size, chart->title()) : png(scene, size, scale);
}
