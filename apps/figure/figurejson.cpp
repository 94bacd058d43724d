#include "figure.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>

namespace {

struct FormName {
    const char* name;
    Figure::Curve::Form form;
};

constexpr FormName formNames[] = {
    {"lines", Figure::Curve::Lines}, {"steps", Figure::Curve::Steps}, {"points", Figure::Curve::Points}};

QJsonObject axisObject(const Figure::Axis& axis)
{
    QJsonObject object{{QStringLiteral("title"), axis.title}, {QStringLiteral("unit"), axis.unit}};
    if (axis.isLogarithmic)
        object.insert(QStringLiteral("logarithmic"), true);
    if (!std::isnan(axis.from))
        object.insert(QStringLiteral("from"), axis.from);
    if (!std::isnan(axis.to))
        object.insert(QStringLiteral("to"), axis.to);
    return object;
}

QJsonObject curveObject(const Figure::Curve& curve)
{
    QJsonArray points;
    for (const QPointF& point : curve.points)
        points.append(std::isfinite(point.x()) && std::isfinite(point.y())
                          ? QJsonValue(QJsonArray{point.x(), point.y()})
                          : QJsonValue());
    return {{QStringLiteral("name"), curve.name},
            {QStringLiteral("axis"), curve.axis},
            {QStringLiteral("form"), QLatin1String(formNames[curve.form].name)},
            {QStringLiteral("points"), points}};
}

/// Reads values by their keys and keeps the first fault, with its place.
class Reader {
    Q_DECLARE_TR_FUNCTIONS(Figure)

public:
    QString error;

    Figure figure(const QJsonObject& object)
    {
        Figure result;
        result.title = text(object, QStringLiteral("title"));
        const QJsonValue x = object.value(QLatin1String("x"));
        if (!x.isUndefined() && need(x.isObject(), QStringLiteral("x"), tr("an axis")))
            result.x = axis(x.toObject(), QStringLiteral("x."));
        each(object, QStringLiteral("y"),
             [&](const QJsonObject& item, const QString& place) { result.y.append(axis(item, place)); });
        each(object, QStringLiteral("curves"), [&](const QJsonObject& item, const QString& place) {
            result.curves.append(curve(item, place));
        });
        each(object, QStringLiteral("stretches"), [&](const QJsonObject& item, const QString& place) {
            result.stretches.append({text(item, QStringLiteral("name"), place),
                                     number(item, QStringLiteral("from"), place, 0.0),
                                     number(item, QStringLiteral("to"), place, 0.0)});
        });
        return result;
    }

private:
    bool need(bool isRight, const QString& place, const QString& what)
    {
        if (!isRight && error.isEmpty())
            error = tr("The picture's description is wrong: '%1' must be %2.").arg(place, what);
        return isRight;
    }

    QString text(const QJsonObject& object, const QString& key, const QString& place = {})
    {
        const QJsonValue value = object.value(key);
        need(value.isUndefined() || value.isString(), place + key, tr("a text"));
        return value.toString();
    }

    double number(const QJsonObject& object, const QString& key, const QString& place, double absent)
    {
        const QJsonValue value = object.value(key);
        need(value.isUndefined() || value.isDouble(), place + key, tr("a number"));
        return value.toDouble(absent);
    }

    template <typename Take>
    void each(const QJsonObject& object, const QString& key, Take take)
    {
        const QJsonValue value = object.value(key);
        if (value.isUndefined() || !need(value.isArray(), key, tr("a list")))
            return;
        int index = 0;
        const QJsonArray items = value.toArray();
        for (const QJsonValue& item : items) {
            const QString place = QStringLiteral("%1[%2]").arg(key, QString::number(index++));
            if (!need(item.isObject(), place, tr("an object")))
                return;
            take(item.toObject(), place + QLatin1Char('.'));
        }
    }

    Figure::Axis axis(const QJsonObject& object, const QString& place)
    {
        Figure::Axis axis;
        axis.title = text(object, QStringLiteral("title"), place);
        axis.unit = text(object, QStringLiteral("unit"), place);
        const QJsonValue logarithmic = object.value(QLatin1String("logarithmic"));
        need(logarithmic.isUndefined() || logarithmic.isBool(), place + QLatin1String("logarithmic"),
             tr("true or false"));
        axis.isLogarithmic = logarithmic.toBool();
        axis.from = number(object, QStringLiteral("from"), place, Figure::unset);
        axis.to = number(object, QStringLiteral("to"), place, Figure::unset);
        return axis;
    }

    Figure::Curve curve(const QJsonObject& object, const QString& place)
    {
        Figure::Curve curve;
        curve.name = text(object, QStringLiteral("name"), place);
        const double axis = number(object, QStringLiteral("axis"), place, 0.0);
        if (need(axis == 0.0 || axis == 1.0, place + QLatin1String("axis"), tr("0 or 1")))
            curve.axis = int(axis);
        curve.form = form(object, place);
        const QJsonValue value = object.value(QLatin1String("points"));
        if (need(value.isArray(), place + QLatin1String("points"), tr("a list")))
            curve.points = points(value.toArray(), place);
        return curve;
    }

    Figure::Curve::Form form(const QJsonObject& object, const QString& place)
    {
        const QString name = text(object, QStringLiteral("form"), place);
        for (const FormName& known : formNames)
            if (name == QLatin1String(known.name))
                return known.form;
        need(name.isEmpty(), place + QLatin1String("form"), QStringLiteral("lines, steps, points"));
        return Figure::Curve::Lines;
    }

    QVector<QPointF> points(const QJsonArray& items, const QString& place)
    {
        QVector<QPointF> points;
        points.reserve(items.size());
        for (const QJsonValue& item : items) {
            const QJsonArray pair = item.toArray();
            const bool isPair = pair.size() == 2 && pair.at(0).isDouble() && pair.at(1).isDouble();
            if (!isPair && !item.isNull()) {
                need(false, QStringLiteral("%1points[%2]").arg(place, QString::number(points.size())),
                     tr("a pair of numbers, or null for a gap"));
                return points;
            }
            points.append(isPair ? QPointF(pair.at(0).toDouble(), pair.at(1).toDouble())
                                 : QPointF(Figure::unset, Figure::unset));
        }
        return points;
    }
};

} // namespace

QByteArray Figure::toJson() const
{
    QJsonArray yAxes;
    for (const Axis& axis : y)
        yAxes.append(axisObject(axis));
    QJsonArray curveList;
    for (const Curve& curve : curves)
        curveList.append(curveObject(curve));
    QJsonArray stretchList;
    for (const Stretch& stretch : stretches)
        stretchList.append(QJsonObject{{QStringLiteral("name"), stretch.name},
                                       {QStringLiteral("from"), stretch.from},
                                       {QStringLiteral("to"), stretch.to}});
    const QJsonObject object{{QStringLiteral("title"), title},
                             {QStringLiteral("x"), axisObject(x)},
                             {QStringLiteral("y"), yAxes},
                             {QStringLiteral("curves"), curveList},
                             {QStringLiteral("stretches"), stretchList}};
    return QJsonDocument(object).toJson(QJsonDocument::Compact);
}

bool Figure::fromJson(const QByteArray& json, Figure& figure, QString& error)
{
    QJsonParseError parseError;
    const QJsonDocument document = QJsonDocument::fromJson(json, &parseError);
    if (!document.isObject()) {
        error = parseError.error == QJsonParseError::NoError
            ? tr("The picture's description is wrong: it must be an object.")
            : tr("The picture's description is no JSON: %1 at byte %2.")
                  .arg(parseError.errorString(), QString::number(parseError.offset));
        return false;
    }
    Reader reader;
    Figure read = reader.figure(document.object());
    error = reader.error;
    if (!error.isEmpty())
        return false;
    figure = std::move(read);
    return true;
}
