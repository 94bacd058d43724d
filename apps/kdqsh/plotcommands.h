#pragma once

#include "formulafigure.h"
#include "shellcommand.h"

#include <QCoreApplication>

/// The commands "plot ...": pictures of tables, formulas and heat treatments.
class PlotCommands {
    Q_DECLARE_TR_FUNCTIONS(PlotCommands)

public:
    static const ShellCommandGroup& group();

    /// The picture of a process as "plot heat" makes it without options.
    static bool drawProcess(const ShellCall& call, const QString& name, const QString& file);

private:
    /// What all of them may say about the picture.
    struct Options {
        QString file;
        QString size = QStringLiteral("800x500");
        QString title;
        QString xTitle;
        QString yTitle;
        QString y2Title;
        QString names; ///< of the curves, separated by commas
        QString xUnit;
        QString yUnits; ///< separated by commas
        double xFrom = Figure::unset;
        double xTo = Figure::unset;
        double yFrom = Figure::unset;
        double yTo = Figure::unset;
        bool isXLogarithmic = false;
        bool isYLogarithmic = false;

        ShellParameters& addTo(ShellParameters& parameters);
        QStringList yUnitList() const { return yUnits.split(QLatin1Char(','), Qt::SkipEmptyParts); }
        bool applyTo(const ShellCall& call, Figure& figure) const;
    };

    static bool table(ShellCall& call);
    static bool formula(ShellCall& call);
    static bool heat(ShellCall& call);

    static int fileIndex(const ShellCall& call);
    static bool draw(const ShellCall& call, const Options& options, Figure& figure);
    static bool drawProcess(const ShellCall& call, const QString& name, const Options& options);
    static bool readColumns(const ShellCall& call, const kdDataTable& table, const QString& words,
                            QVector<int>& columns);
    static bool evaluate(const ShellCall& call, const QStringList& formulas,
                         const nFormulaFigure::Range& range, Figure& figure);
    static bool stateUnit(const ShellCall& call, const QString& symbol, Figure::Axis& axis);
};
