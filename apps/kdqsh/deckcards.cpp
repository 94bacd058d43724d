#include "deckcommands.h"
#include "formulacommands.h"
#include "shellsession.h"
#include "tablecommands.h"

#include <kdQCore/cFeAutoLoadCard>
#include <kdQCore/cFePointCurrentCard>
#include <kdQCore/coFeAutoforgeCard>
#include <kdQCore/coFeDataTableCard>
#include <kdQCore/coFeParameterSectionTable>
#include <kdQCore/coFeSolverCard>
#include <kdQCore/coFeTableCardUsingFormula>
#include <kdQCore/cPointLoadCard>
#include <kdQCore/kdUnitValue>

namespace {

using Variable = coFeTableCard::IndependentVarUsingValues;

/// The parameters that all table cards share.
struct TableParameters {
    int id = 0;
    int code = 0;
    int code2 = 0;
    QString name;
    bool holds = false;

    ShellParameters& addTo(ShellParameters& parameters)
    {
        return parameters.integer("id", id).integer("variable", code);
    }

    bool check(const ShellCall& call) const
    {
        if (id < 1)
            return call.fail(DeckCommands::tr("The table needs an id above 0 (id ID)."));
        if (code < 1)
            return call.fail(DeckCommands::tr(
                "The table needs the solver's code of its independent variable (variable CODE)."));
        return true;
    }

    Variable variable() const { return variableOf(code); }
    Variable variable2() const { return variableOf(code2); }

private:
    Variable variableOf(int variableCode) const
    {
        return Variable(static_cast<nMarc::e_TableVariableType>(variableCode), {}, !holds);
    }
};

/// The values in the names of all columns but the first, converted between two units where both are given.
bool valuesOfNames(const ShellCall& call, const kdDataTable& table, const QString& from, const QString& to,
                   QList<double>& values)
{
    bool isFromKnown = from.isEmpty();
    bool isToKnown = to.isEmpty();
    const kdUnitSystem fromUnit = isFromKnown ? kdUnitSystem() : kdUnitSystem::fromSymbol(from, &isFromKnown);
    const kdUnitSystem toUnit =
        isToKnown ? kdUnitSystem() : kdUnitSystem::fromSymbol(to, fromUnit.dimension(), &isToKnown);
    if (from.isEmpty() != to.isEmpty() || !isFromKnown || !isToKnown)
        return call.fail(
            DeckCommands::tr("'%1' cannot be converted to '%2'; from and to name two units.").arg(from, to));
    for (int i = 1; i < table.columns(); ++i) {
        bool isNumber = false;
        const QString name = table.columnRef(i).name();
        const double value = name.toDouble(&isNumber);
        if (!isNumber)
            return call.fail(
                DeckCommands::tr("Column %1 of table '%2' must have a number as its name, not '%3'.")
                    .arg(QString::number(i + 1), table.name(), name));
        values.append(fromUnit.convert(value, toUnit));
    }
    return true;
}

bool readSolver(const ShellCall& call, const QString& word, coMarcSolverType& type)
{
    const struct {
        const char* word;
        nSolver::e_SolverType type;
    } solvers[] = {
        {"automatic", nSolver::AutomaticSolver},
        {"pardiso", nSolver::PardisoParallelDirect},
        {"multifrontal", nSolver::MultifrontalDirect},
        {"mumps", nSolver::MumpsParallelDirect},
        {"iterative", nSolver::IterativeSparse},
        {"sparse", nSolver::SparseDirect},
        {"casi", nSolver::CasiIterative},
        {"profile", nSolver::DirectProfile},
        {"mixed", nSolver::MixedDirectIterative},
    };
    QStringList words;
    for (const auto& solver : solvers) {
        words.append(QLatin1String(solver.word));
        if (word == words.last()) {
            type = solver.type;
            return true;
        }
    }
    return call.fail(
        DeckCommands::tr("'%1' is no solver; possible are: %2.").arg(word, words.join(QLatin1String(", "))));
}

} // namespace

bool DeckCommands::writeCard(const cFeAbstractDatCard& card)
{
    return writer().writeCard(card);
}

bool DeckCommands::writeCard(const ShellCall& call, const cFeAbstractDatCard& card, qint64 reals)
{
    const ShellOperation operation(call, tr("Writing to the deck"));
    const ShellDeck::Watch watch(ShellSession::I().deck, call.goOnCondition(),
                                 reals * writer().getMaxWidthForDouble());
    return writeCard(card);
}

bool DeckCommands::sectionTable(ShellCall& call)
{
    if (!call.is(0, "table"))
        return call.fail(tr("'%1' is no section key; possible is table.").arg(call.text(0)));
    return writeCard(coFeParameterSectionTable());
}

bool DeckCommands::table(ShellCall& call)
{
    TableParameters parameters;
    ShellParameters reader(call, 1);
    if (!parameters.addTo(reader).text("name", parameters.name).flag("hold", parameters.holds).read()
        || !parameters.check(call))
        return false;
    const ShellTables::Table table = TableCommands::find(call, call.text(0));
    if (table.isNull())
        return false;
    coFeDataTableCard card(parameters.name.isEmpty() ? table->name() : parameters.name, parameters.id,
                           parameters.variable());
    if (!card.setTable(*table, table->xUnitSystem(), table->yUnitSystem()))
        return call.fail(card.errorText());
    return writeCard(call, card, qint64(table->rows()) * table->columns());
}

bool DeckCommands::grid(ShellCall& call)
{
    TableParameters parameters;
    QString from;
    QString to;
    bool isSingle = false;
    ShellParameters reader(call, 1);
    parameters.addTo(reader).integer("variable2", parameters.code2).text("from", from).text("to", to);
    reader.text("name", parameters.name).flag("single", isSingle).flag("hold", parameters.holds);
    if (!reader.read() || !parameters.check(call))
        return false;
    if (parameters.code2 < 1)
        return call.fail(tr("The table needs the solver's code of its second variable (variable2 CODE)."));
    const ShellTables::Table table = TableCommands::find(call, call.text(0));
    QList<double> values2;
    if (table.isNull() || !valuesOfNames(call, *table, from, to, values2))
        return false;
    Variable variable2 = parameters.variable2();
    variable2.setValues(values2);
    coFeDataTableCard card(parameters.name.isEmpty() ? table->name() : parameters.name, parameters.id,
                           parameters.variable());
    if (!card.setGrid(*table, variable2, table->xUnitSystem(), table->yUnitSystem()))
        return call.fail(card.errorText());
    if (isSingle)
        card.setDefaultReadMethodForMoreThan1IndependentVar(nMarc::ReadGridValueByValue);
    return writeCard(call, card, qint64(table->rows()) * table->columns());
}

bool DeckCommands::formula(ShellCall& call)
{
    TableParameters parameters;
    QString formula;
    bool isUnchecked = false;
    ShellParameters reader(call, 1);
    parameters.addTo(reader).integer("variable2", parameters.code2).text("formula", formula);
    if (!reader.flag("unchecked", isUnchecked).read() || !parameters.check(call))
        return false;
    if (formula.trimmed().isEmpty())
        return call.fail(tr("The formula of table '%1' is empty.").arg(call.text(0)));
    QStringList variables{QStringLiteral("v1")};
    if (parameters.code2 > 0)
        variables.append(QStringLiteral("v2"));
    if (!isUnchecked && !FormulaCommands::prepareForSolver(call, variables, formula))
        return false;
    coFeTableCardUsingFormula card(call.text(0), parameters.id, parameters.variable());
    if (parameters.code2 > 0)
        card.setIndependentVariable2(parameters.variable2());
    card.setFormula(formula);
    return writeCard(card);
}

bool DeckCommands::solver(ShellCall& call)
{
    coMarcSolverType type;
    if (!readSolver(call, call.text(0), type))
        return false;
    coFeSolverCard card(type);
    bool isUpperCase = false;
    bool isNonSymmetric = false;
    bool isFullK = false;
    bool isReproducible = false;
    bool isCommented = false;
    int rigid = card.autoforgeField10Value();
    int iterations = card.maxIterations();
    double tolerance = card.tolerance();
    ShellParameters reader(call, 1);
    reader.flag("uppercase", isUpperCase).flag("nonsymmetric", isNonSymmetric).flag("fullk", isFullK);
    reader.flag("reproducible", isReproducible).integer("rigid", rigid).flag("comment", isCommented);
    if (!reader.integer("iterations", iterations).real("tolerance", tolerance).read())
        return false;
    card.enableUsingUpperCaseKeywords(isUpperCase);
    card.setIsNonSymmetricSystem(isNonSymmetric);
    card.setIsSolutionProcedureFullK(isFullK);
    card.setIsConditionalNumericalReproducibilityEnabled(isReproducible);
    card.setAutoforgeField10Value(rigid);
    card.setMaxIterations(iterations);
    card.setTolerance(tolerance);
    const bool isCommentWritten = !isCommented || writer().writeCommentLine(card.getSolverTypeUsingComment());
    return writeCard(card) && isCommentWritten;
}

bool DeckCommands::process(ShellCall& call)
{
    coFeAutoforgeCard card;
    bool is3d = false;
    bool isNoHeat = false;
    bool checksHeat = false;
    int material = 0;
    int licences = 0;
    int type = 0;
    int kin = 0;
    int rigid = 0;
    int version = card.kaldoranVersion();
    int contact = 0;
    ShellParameters reader(call, 0);
    reader.flag("3d", is3d).integer("material", material).integer("licences", licences).integer("type", type);
    reader.flag("noheat", isNoHeat).integer("kin", kin).integer("rigid", rigid).integer("version", version);
    if (!reader.flag("checkheat", checksHeat).integer("contact", contact).read())
        return false;
    card.setIs3d(is3d);
    card.setMaterialModel(material);
    card.setOptionalLicenseFeatures(nMarc::LicFlags(QFlag(licences)));
    card.setSpecificProcType(type);
    card.setSuppressHeatGeneration(isNoHeat);
    card.setKinFileFlag(static_cast<coFeAutoforgeCard::e_KinFileFlag>(kin));
    card.setRemoveRigidModesFlag(static_cast<coFeAutoforgeCard::e_RigidModesFlag>(rigid));
    card.setKaldoranVersion(static_cast<coFeAutoforgeCard::e_KaldoranVersion>(version));
    card.setSkipHeatTransferConvergenceCheck(!checksHeat);
    card.setContactTolFlag(static_cast<nMarc::e_AutoForgeContactToleranceFlag>(contact));
    return writeCard(card);
}

bool DeckCommands::autoLoad(ShellCall& call)
{
    cFeAutoLoadCard card;
    double time = 0.0;
    double travel = 0.0;
    int steps = 0;
    int remeshings = card.maxForcedRemeshingNo();
    int cutBack = card.cutBackStepNo();
    ShellParameters reader(call, 0);
    reader.real("time", time).real("travel", travel).integer("steps", steps);
    if (!reader.integer("remeshings", remeshings).integer("cutback", cutBack).read())
        return false;
    card.setTotalTime(time);
    card.setTotalTravelDist(travel);
    card.setTimeSteps(steps);
    card.setMaxForcedRemeshingNo(remeshings);
    card.setCutBackStepNo(cutBack);
    return writeCard(card);
}

bool DeckCommands::pointLoad(ShellCall& call)
{
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    int body = -1;
    bool is3d = false;
    QString nodes;
    QString component;
    QString comment;
    ShellParameters reader(call, 0);
    reader.text("nodes", nodes).integer("body", body).reals("force", {&x, &y, &z}).flag("3d", is3d);
    if (!reader.text("component", component).text("comment", comment).read())
        return false;
    cPointLoadCard card;
    card.setIs3DProcess(is3d);
    card.setForceX(x);
    card.setForceY(y);
    card.setForceZ(z);
    card.setComponentBodyId(body);
    card.setComponentName(component);
    card.setCommentText(comment);
    card.setListOfNodesName(nodes);
    const bool isWritten = writeCard(card);
    if (!isWritten && (nodes.isEmpty() || body < 0))
        return call.fail(
            tr("The point load needs a list of nodes (nodes NAME) and a body of 0 or above (body ID); "
               "the deck holds comments instead."));
    return isWritten;
}

bool DeckCommands::pointCurrent(ShellCall& call)
{
    const double notGiven = qQNaN();
    double current = notGiven;
    int tableId = 0;
    QString label;
    QString node;
    QString unit = QStringLiteral("A");
    ShellParameters reader(call, 0);
    reader.text("label", label).text("node", node).real("current", current).text("unit", unit);
    if (!reader.integer("table", tableId).read())
        return false;
    bool isUnitKnown = false;
    const kdUnitSystem unitSystem =
        kdUnitSystem::fromSymbol(unit, kdUnitSystem::ElectricCurrent, &isUnitKnown);
    if (!isUnitKnown)
        return call.fail(tr("'%1' is no unit of electric current.").arg(unit));
    cFePointCurrentCard card;
    card.setLabel(label);
    card.setControlNode(node);
    if (!qIsNaN(current))
        card.setCurrent(kdUnitValue(current, unitSystem));
    if (tableId > 0)
        card.setTableId(tableId);
    return writeCard(card);
}
