#include "formulafigure.h"

#include <algorithm>
#include <cmath>

namespace {

constexpr int firstPoints = 401;
constexpr int rounds = 12;          // each halves the steps where the curve needs it
constexpr int mostPoints = 20000;   // noise would be refined without end
constexpr double tolerance = 0.001; // of the height of the picture

/// Points of the curve over a parameter that runs evenly from 0 to 1.
class Sampling {
public:
    Sampling(coExpression& formula, const nFormulaFigure::Range& range) : m_formula(formula), m_range(range)
    {
        while (m_variable < formula.nbVariables() && formula.variableName(m_variable) != range.variable)
            ++m_variable;
        QVector<double> parameters(firstPoints);
        for (int i = 0; i < firstPoints; ++i)
            parameters[i] = double(i) / (firstPoints - 1);
        m_samples = evaluated(parameters);
        m_error = QStringLiteral("%1 %2").arg(formula.errorString(), formula.errorDetails()).trimmed();
    }

    /// Of the first point that failed.
    QString error() const { return m_error; }

    QVector<QPointF> points()
    {
        for (int round = 0; round < rounds && m_samples.size() < mostPoints; ++round)
            if (!refine())
                break;
        QVector<QPointF> points;
        for (const Sample& sample : qAsConst(m_samples))
            points.append({sample.x, sample.y});
        return points;
    }

private:
    struct Sample {
        double parameter;
        double x;
        double y; // NaN where the formula fails
    };

    double xAt(double parameter) const
    {
        if (parameter == 0.0 || parameter == 1.0)
            return parameter == 0.0 ? m_range.from : m_range.to;
        return m_range.isLogarithmic ? m_range.from * std::pow(m_range.to / m_range.from, parameter)
                                     : m_range.from + (m_range.to - m_range.from) * parameter;
    }

    QVector<Sample> evaluated(const QVector<double>& parameters)
    {
        QVector<double> x(parameters.size());
        std::transform(parameters.begin(), parameters.end(), x.begin(), [this](double p) { return xAt(p); });
        QVector<double> y(x.size());
        m_formula.evaluateAll(m_variable, x.constData(), x.size(), y.data());
        QVector<Sample> samples(x.size());
        for (int i = 0; i < x.size(); ++i)
            samples[i] = {parameters.at(i), x.at(i), std::isfinite(y.at(i)) ? y.at(i) : Figure::unset};
        return samples;
    }

    /// How far a point may lie off its neighbours' line: by a share of the height of the curve, beside a pole
    /// by that of its quieter part, which a picture then shows.
    double bearableBend() const
    {
        QVector<double> values;
        for (const Sample& sample : m_samples)
            if (!std::isnan(sample.y))
                values.append(sample.y);
        if (values.isEmpty())
            return 0.0;
        std::sort(values.begin(), values.end());
        const int outer = values.size() / 20;
        const double inner = values.at(values.size() - 1 - outer) - values.at(outer);
        return tolerance * std::max(inner, 0.01 * (values.last() - values.first()));
    }

    /// Whether the curve leaves its neighbours' line at this point, or begins or ends beside it.
    bool isBentAt(int index, double bearable) const
    {
        const Sample& before = m_samples.at(index - 1);
        const Sample& here = m_samples.at(index);
        const Sample& after = m_samples.at(index + 1);
        if (std::isnan(before.y) && std::isnan(here.y) && std::isnan(after.y))
            return false;
        const double share = (here.parameter - before.parameter) / (after.parameter - before.parameter);
        return !(std::abs(before.y + (after.y - before.y) * share - here.y) <= bearable);
    }

    /// Puts a point into the middle of each step beside a bend; false where there is none.
    bool refine()
    {
        const double bearable = bearableBend();
        QVector<bool> needsMiddle(m_samples.size(), false); // of the step that begins at the sample
        for (int i = 1; i + 1 < m_samples.size(); ++i)
            if (isBentAt(i, bearable))
                needsMiddle[i - 1] = needsMiddle[i] = true;
        QVector<double> middles;
        for (int i = 0; i + 1 < m_samples.size(); ++i)
            if (needsMiddle.at(i))
                middles.append((m_samples.at(i).parameter + m_samples.at(i + 1).parameter) / 2);
        if (middles.isEmpty())
            return false;
        const QVector<Sample> added = evaluated(middles);
        QVector<Sample> merged(m_samples.size() + added.size());
        std::merge(m_samples.begin(), m_samples.end(), added.begin(), added.end(), merged.begin(),
                   [](const Sample& a, const Sample& b) { return a.parameter < b.parameter; });
        m_samples = merged;
        return true;
    }

    coExpression& m_formula;
    const nFormulaFigure::Range& m_range;
    int m_variable = 0;
    QVector<Sample> m_samples;
    QString m_error;
};

} // namespace

bool nFormulaFigure::make(coExpression& formula, const Range& range, Figure& figure, QString& error)
{
    Sampling sampling(formula, range);
    const Figure::Curve curve{formula.text(), sampling.points()};
    const bool hasValue = std::any_of(curve.points.cbegin(), curve.points.cend(),
                                      [](const QPointF& point) { return !std::isnan(point.y()); });
    error = hasValue ? QString() : sampling.error();
    if (!hasValue)
        return false;
    Figure result;
    result.x.title = range.variable;
    result.x.isLogarithmic = range.isLogarithmic;
    result.y = {Figure::Axis()};
    result.curves = {curve};
    figure = result;
    return true;
}
