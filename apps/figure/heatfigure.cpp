#include "heatfigure.h"

#include <kdQCore/coHtCaseHardeningStageProp>

#include <algorithm>
#include <cmath>

namespace {

constexpr kdUnitSystem seconds(kdUnitSystem::Time);

/// A unit in which the numbers on the time axis are easy to read.
kdUnitSystem readableTime(double duration)
{
    constexpr double minutes = 600.0;
    constexpr double hours = 3.0 * 3600.0;
    return {kdUnitSystem::Time, duration >= hours ? 3 : duration >= minutes ? 2 : 0};
}

class HeatFigure {
    Q_DECLARE_TR_FUNCTIONS(nHeatFigure)

public:
    explicit HeatFigure(const coHeatTreatmentData& process) : m_process(process) { }

    QString error;

    bool chooseUnits(const nHeatFigure::Options& options)
    {
        m_time = readableTime(m_process.durationSumOfEnabledStages().valueIn(seconds));
        bool ok = options.timeUnit.isEmpty() || take(options.timeUnit, {&m_time});
        for (const QString& symbol : options.yUnits)
            ok = ok && take(symbol, {&m_temperature, &m_potential});
        return ok;
    }

    bool make(Figure& figure)
    {
        kdDataTable table = m_process.temperatureOverTime();
        table.toUnit(m_time, m_temperature);
        if (table.isEmpty()) {
            error = tr("No enabled stage takes time and has a temperature.");
            return false;
        }
        Figure result;
        result.x = {tr("Time"), m_time.symbol()};
        result.y = {{tr("Temperature"), m_temperature.symbol()}};
        result.curves = {{tr("Temperature"), table.points()}};
        addStages(result);
        figure = result;
        return true;
    }

private:
    /// Into the first of the units whose dimension knows the symbol.
    bool take(const QString& symbol, const QVector<kdUnitSystem*>& units)
    {
        QStringList quantities;
        for (kdUnitSystem* const unit : units) {
            bool isKnown = false;
            const kdUnitSystem wanted = kdUnitSystem::fromSymbol(symbol, unit->dimension(), &isKnown);
            if (isKnown) {
                *unit = wanted;
                return true;
            }
            quantities.append(kdUnitSystem::translatedDimensionName(unit->dimension()));
        }
        error = tr("'%1' is no unit of: %2.").arg(symbol, quantities.join(QLatin1String(", ")));
        return false;
    }

    double shownTime(double time) const { return seconds.convert(time, m_time); }

    void addStages(Figure& figure)
    {
        Figure::Curve potential{tr("Carbon potential"), {}, 1};
        double start = 0.0;
        const QList<coHeatTreatmentData::StagePointer> stages = m_process.stages();
        for (const coHeatTreatmentData::StagePointer& stage : stages) {
            const double duration = stage->isEnabled() ? stage->duration().valueIn(seconds) : 0.0;
            if (!(duration > 0.0 && std::isfinite(duration)))
                continue;
            figure.stretches.append({stage->information()->translatedDisplayName(), shownTime(start),
                                     shownTime(start + duration)});
            addPotential(*stage, start, duration, potential.points);
            start += duration;
        }
        if (potential.points.isEmpty())
            return;
        figure.y.append({tr("Carbon potential"), m_potential.symbol()});
        figure.curves.append(potential);
    }

    /// A surface that is tight exchanges no carbon whatever the potential: the curve has a gap there.
    static bool exchangesCarbon(const coHtCaseHardeningStageProp& stage)
    {
        const coTableInput& transfer = stage.massTransferCoefficient();
        return !transfer.isConstant() || transfer.constant().value() > 0.0;
    }

    void addPotential(const coHeatTreatmentStage& stage, double start, double duration,
                      QVector<QPointF>& points) const
    {
        const auto* const hardening = dynamic_cast<const coHtCaseHardeningStageProp*>(&stage);
        const QVector<QPointF> added = hardening && exchangesCarbon(*hardening)
            ? potentialOf(hardening->carbonPotential(), duration)
            : QVector<QPointF>();
        if (added.isEmpty() && !points.isEmpty())
            points.append({Figure::unset, Figure::unset});
        for (const QPointF& point : added)
            points.append({shownTime(start + point.x()), point.y()});
    }

    /// Over the seconds since the stage began.
    QVector<QPointF> potentialOf(const coTableInput& input, double duration) const
    {
        if (input.isConstant()) {
            const double value = input.constant().valueIn(m_potential);
            return {{0.0, value}, {duration, value}};
        }
        if (!input.hasDataTable() || !input.dataTable()->isXYDataTable() || input.dataTable()->isEmpty())
            return {};
        kdDataTable table(*input.dataTable());
        if (table.yUnitSystem().dimension()
            == kdUnitSystem::None) // both have 1 as their first unit, % as second
            table.setUnitY(kdUnitSystem(kdUnitSystem::MassFraction, table.yUnitSystem().unitIndex()));
        table.toUnit(seconds, m_potential);
        QVector<double> times{0.0, duration};
        for (const double time : table.columnRef(0).values())
            if (time > 0.0 && time < duration)
                times.append(time);
        std::sort(times.begin(), times.end());
        QVector<QPointF> points;
        for (const double time : qAsConst(times))
            points.append({time, table.getInterpolDoubleValue(1, time)});
        return points;
    }

    const coHeatTreatmentData& m_process;
    kdUnitSystem m_time;
    kdUnitSystem m_temperature = kdUnitSystem::viewUnit(kdUnitSystem::Temperature);
    kdUnitSystem m_potential = kdUnitSystem::viewUnit(kdUnitSystem::MassFraction);
};

} // namespace

bool nHeatFigure::make(const coHeatTreatmentData& process, const Options& options, Figure& figure,
                       QString& error)
{
    HeatFigure builder(process);
    const bool ok = builder.chooseUnits(options) && builder.make(figure);
    error = builder.error;
    return ok;
}
