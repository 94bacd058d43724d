#include "plotcommands.h"

#include "formulacommands.h"
#include "heatcommands.h"
#include "heatfigure.h"
#include "plotprogram.h"
#include "shellsession.h"
#include "tablecommands.h"
#include "tablefigure.h"

const ShellCommandGroup& PlotCommands::group()
{
    using Entry = ShellCommandEntry;
    constexpr int anyNumber = ShellCommand::anyNumber;
    static const ShellCommandGroup group{
        "plot",
        "PlotCommands",
        QT_TR_NOOP("Pictures of tables, formulas and heat treatments, as SVG or PNG."),
        {
            {"table",
             "NAME... to FILE [columns X,Y,...] [right Y,...] [steps|points] [title TEXT] [names TEXT,...] "
             "[size WxH] [xunit UNIT] [yunit UNIT,...] [xtitle TEXT] [ytitle TEXT] [y2title TEXT] "
             "[xrange A B] [yrange A B] [logx] [logy]",
             QT_TR_NOOP("Draws columns of tables; two y axes where they have two kinds of units."), 3,
             anyNumber, Entry::Query, table},
            {"formula",
             "FORMULA... over NAME from A to B to FILE [title TEXT] [names TEXT,...] [size WxH] [xunit UNIT] "
             "[yunit UNIT] [xtitle TEXT] [ytitle TEXT] [xrange A B] [yrange A B] [logx] [logy]",
             QT_TR_NOOP("Draws the values of formulas while one variable runs, with gaps where they have "
                        "none."),
             7, anyNumber, Entry::Query, formula},
            {"heat",
             "NAME to FILE [title TEXT] [names TEXT,...] [size WxH] [xunit UNIT] [yunit UNIT,...] "
             "[xtitle TEXT] [ytitle TEXT] [y2title TEXT] [xrange A B] [yrange A B] [logx] [logy]",
             QT_TR_NOOP("Draws temperature and carbon potential of a process over its stages."), 3, anyNumber,
             Entry::Query, heat},
        }};
    return group;
}

ShellParameters& PlotCommands::Options::addTo(ShellParameters& parameters)
{
    return parameters.text("title", title)
        .text("size", size)
        .text("xunit", xUnit)
        .text("yunit", yUnits)
        .text("xtitle", xTitle)
        .text("ytitle", yTitle)
        .text("y2title", y2Title)
        .text("names", names)
        .reals("xrange", {&xFrom, &xTo})
        .reals("yrange", {&yFrom, &yTo})
        .flag("logx", isXLogarithmic)
        .flag("logy", isYLogarithmic);
}

bool PlotCommands::Options::applyTo(const ShellCall& call, Figure& figure) const
{
    const auto set = [](QString& text, const QString& wanted) { text = wanted.isEmpty() ? text : wanted; };
    const QStringList nameList = names.split(QLatin1Char(','), Qt::SkipEmptyParts);
    if (!nameList.isEmpty() && nameList.size() != figure.curves.size())
        return call.fail(tr("'names' gives %1 names to %2 curves.")
                             .arg(QString::number(nameList.size()), QString::number(figure.curves.size())));
    for (int i = 0; i < nameList.size(); ++i)
        figure.curves[i].name = nameList.at(i).trimmed();
    set(figure.title, title);
    set(figure.x.title, xTitle);
    set(figure.y.first().title, yTitle);
    set(figure.y.last().title, figure.y.size() > 1 ? y2Title : QString());
    figure.x.from = xFrom;
    figure.x.to = xTo;
    figure.y.first().from = yFrom;
    figure.y.first().to = yTo;
    figure.x.isLogarithmic = isXLogarithmic;
    for (Figure::Axis& axis : figure.y)
        axis.isLogarithmic = isYLogarithmic;
    return true;
}

/// Where "to FILE" stands. A formula has another "to", the end of its range, so the file is known by its
/// ending.
int PlotCommands::fileIndex(const ShellCall& call)
{
    const auto isPicture = [](const QString& file) {
        return file.endsWith(QLatin1String(".svg"), Qt::CaseInsensitive)
            || file.endsWith(QLatin1String(".png"), Qt::CaseInsensitive);
    };
    for (int i = call.count() - 2; i > 0; --i)
        if (call.is(i, "to") && isPicture(call.text(i + 1)))
            return i;
    call.fail(tr("The picture is missing: to FILE, whose name ends in .svg or .png."));
    return -1;
}

bool PlotCommands::draw(const ShellCall& call, const Options& options, Figure& figure)
{
    if (!options.applyTo(call, figure) || !PlotProgram::draw(call, figure, options.file, options.size))
        return false;
    call.tell(tr("Picture '%1' drawn.").arg(options.file));
    return true;
}

bool PlotCommands::readColumns(const ShellCall& call, const kdDataTable& table, const QString& words,
                               QVector<int>& columns)
{
    const QStringList list = words.split(QLatin1Char(','), Qt::SkipEmptyParts);
    for (const QString& word : list) {
        columns.append(TableCommands::columnIndex(call, table, word));
        if (columns.last() < 0)
            return false;
    }
    return true;
}

bool PlotCommands::table(ShellCall& call)
{
    Options options;
    QString columns;
    QString right;
    bool isSteps = false;
    bool isPoints = false;
    const int file = fileIndex(call);
    if (file < 0)
        return false;
    options.file = call.text(file + 1);
    ShellParameters parameters(call, file + 2);
    parameters.text("columns", columns).text("right", right).flag("steps", isSteps).flag("points", isPoints);
    if (!options.addTo(parameters).read())
        return false;
    if (isSteps && isPoints)
        return call.fail(tr("'steps' and 'points' exclude each other."));
    QVector<nTableFigure::Source> sources;
    for (int i = 0; i < file; ++i) {
        nTableFigure::Source source{TableCommands::find(call, call.text(i)), -1, {}, {}};
        if (source.table.isNull() || !readColumns(call, *source.table, columns, source.y)
            || !readColumns(call, *source.table, right, source.right))
            return false;
        if (source.y.size() == 1)
            return call.fail(tr("'columns' needs the column of the x axis and one at least to draw."));
        if (!source.y.isEmpty())
            source.x = source.y.takeFirst();
        sources.append(source);
    }
    nTableFigure::Options units;
    units.xUnit = options.xUnit;
    units.yUnits = options.yUnitList();
    units.form = isSteps ? Figure::Curve::Steps : isPoints ? Figure::Curve::Points : Figure::Curve::Lines;
    Figure figure;
    QString error;
    return nTableFigure::make(sources, units, figure, error) ? draw(call, options, figure) : call.fail(error);
}

bool PlotCommands::stateUnit(const ShellCall& call, const QString& symbol, Figure::Axis& axis)
{
    bool isKnown = symbol.isEmpty();
    if (!isKnown)
        axis.unit = kdUnitSystem::fromSymbol(symbol, &isKnown).symbol();
    return isKnown || call.fail(tr("'%1' is no unit.").arg(symbol));
}

bool PlotCommands::evaluate(const ShellCall& call, const QStringList& formulas,
                            const nFormulaFigure::Range& range, Figure& figure)
{
    const ShellOperation operation(call, tr("Evaluating the formulas"));
    for (int i = 0; i < formulas.size(); ++i) {
        Figure single;
        QString error;
        coExpression formula;
        if (!call.goOn(static_cast<double>(i) / formulas.size())
            || !FormulaCommands::read(call, formulas.at(i), formula)
            || !FormulaCommands::bind(call, {range.variable}, formula))
            return false;
        if (!nFormulaFigure::make(formula, range, single, error))
            return call.fail(error);
        single.curves.first().name = formulas.at(i);
        single.curves = figure.curves + single.curves;
        figure = single;
    }
    return true;
}

bool PlotCommands::formula(ShellCall& call)
{
    Options options;
    FormulaCommands::Range range;
    const int file = fileIndex(call);
    int over = 0;
    while (over < call.count() && !call.is(over, "over"))
        ++over;
    if (file < 0)
        return false;
    QStringList words = call.textsFrom(0);
    options.file = words.at(file + 1);
    words.erase(words.begin() + file, words.begin() + file + 2);
    const ShellCall settings = call.with(words);
    ShellParameters parameters(settings, over);
    if (!options.addTo(range.addEndsTo(parameters)).read() || !range.check(call))
        return false;
    if (over == 0 || range.variable.isEmpty())
        return call.fail(tr("A formula and the variable that runs (over NAME) are needed."));
    Figure figure;
    const nFormulaFigure::Range ends{range.variable, range.from, range.to, options.isXLogarithmic};
    if (!evaluate(call, call.textsFrom(0).mid(0, over), ends, figure))
        return false;
    if (over == 1)
        figure.y.first().title = call.text(0);
    return stateUnit(call, options.xUnit, figure.x) && stateUnit(call, options.yUnits, figure.y.first())
        && draw(call, options, figure);
}

bool PlotCommands::drawProcess(const ShellCall& call, const QString& name, const Options& options)
{
    const ShellProcesses::Process process = HeatCommands::find(call, name);
    if (process.isNull())
        return false;
    Figure figure;
    QString error;
    if (!nHeatFigure::make(*process, {options.xUnit, options.yUnitList()}, figure, error))
        return call.fail(error);
    figure.title = name;
    return draw(call, options, figure);
}

bool PlotCommands::drawProcess(const ShellCall& call, const QString& name, const QString& file)
{
    Options options;
    options.file = file;
    return drawProcess(call, name, options);
}

bool PlotCommands::heat(ShellCall& call)
{
    Options options;
    const int file = fileIndex(call);
    if (file < 0)
        return false;
    if (file != 1)
        return call.fail(tr("One process is drawn at a time: NAME to FILE."));
    options.file = call.text(2);
    ShellParameters parameters(call, 3);
    return options.addTo(parameters).read() && drawProcess(call, call.text(0), options);
}
