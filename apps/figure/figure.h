#pragma once

#include <QByteArray>
#include <QCoreApplication>
#include <QPointF>
#include <QString>
#include <QVector>

#include <limits>

/// What a picture of curves shows: axes with units, curves, named stretches of the x axis. It knows nothing
/// of drawing, so that a program without a window can make one and hand it, as JSON, to one that draws.
///
/// \code
/// Figure figure;
/// figure.x = {"Time", "min"};
/// figure.y = {{"Temperature", "°C"}};
/// figure.curves = {{"furnace", {{0, 20}, {5, 576}, {30, 842}}}};
/// file.write(figure.toJson());
/// \endcode
///
/// A value type. The numbers are those to be shown: nothing here converts units.
struct Figure {
    Q_DECLARE_TR_FUNCTIONS(Figure)

public:
    static constexpr double unset = std::numeric_limits<double>::quiet_NaN();
    static constexpr int mostCurves = 100;
    static constexpr int mostPieces = 1000;        ///< of all curves together
    static constexpr int mostSinglePoints = 10000; ///< of a curve drawn as points
    static constexpr int mostColumns = 4000; ///< more than a picture has pixels, few enough to draw at once
    static constexpr double largest = 1e300; ///< beyond it, differences of values could overflow

    struct Axis {
        QString title;
        QString unit; ///< its symbol; none for an empty one and for "-"
        bool isLogarithmic = false;
        double from = unset; ///< first value shown; unset: as the curves need
        double to = unset;

        /// "Temperature [°C]"
        QString label() const;
    };

    struct Curve {
        enum Form {
            Lines, ///< straight from point to point
            Steps, ///< each value holds until the next point
            Points
        };

        QString name;
        QVector<QPointF> points; ///< a point that is not finite leaves a gap
        int axis = 0;            ///< index in Figure::y
        Form form = Lines;
    };

    /// A part of the x axis with a name: a stage of a process.
    struct Stretch {
        QString name;
        double from = 0.0;
        double to = 0.0;
    };

    QString title;
    Axis x;
    QVector<Axis> y; ///< one, on the left, or two
    QVector<Curve> curves;
    QVector<Stretch> stretches;

    /// Why this cannot be drawn, in words for the user; empty where it can.
    QString fault() const;

    /// The pieces of a curve that can be drawn, in order, without the gaps between: each has a point at
    /// least. On a logarithmic axis what is not positive is a gap. Steps have their corners as points. Lines
    /// are cut off where an axis ends by its from and to, as not every format of pictures does that itself.
    QVector<QVector<QPointF>> pieces(const Curve& curve) const;

    /// The same picture of fewer points, where curves of lines or steps have more than it can show: of
    /// neighbours that fall into the same of \a columns, the first, lowest, highest and last stay. Thinned
    /// steps become lines with corners.
    Figure thinned(int columns = mostColumns) const;

    /// Compact, with all digits of the numbers, in UTF-8.
    QByteArray toJson() const;
    /// Reads what toJson() wrote. What is missing is as in a new Figure, what is unknown is skipped. On
    /// failure \a error names place and fault, \a figure stays as it was, and the result is false. A figure
    /// that was read may still have a fault().
    static bool fromJson(const QByteArray& json, Figure& figure, QString& error);

private:
    QString faultOfAxis(const Axis& axis) const;
    QString faultOfCurve(const Curve& curve, int& pieceCount) const;
    void thin(Curve& curve, const QVector<QVector<QPointF>>& pieces, const QPointF& ends, int columns) const;
    bool isDrawable(const QPointF& point, const Axis& yAxis) const;
    QVector<QVector<QPointF>> clipped(const QVector<QVector<QPointF>>& pieces, Curve::Form form,
                                      const Axis& yAxis) const;
};
