#include "cfeautoloadcard.h"
#include "cfepointcurrentcard.h"
#include "cofeautoforgecard.h"
#include "cofeparametersectiontable.h"
#include "cofesolvercard.h"
#include "cpointloadcard.h"
#include "deckcardreader_p.h"
#include "deckkeyword_p.h"

#include <kdQCore/coMarcSolverType>

namespace {

const char* const optimisation = "optimize";
const char* const timeStep = "time step";
constexpr int pointRows = 5;

} // namespace

bool DeckCardReader::isAhead(const char* keyword)
{
    const coDeckLine* line = m_lines.ahead();
    return line && DeckKeyword::begins(*line, keyword);
}

void DeckCardReader::passOver()
{
    bool isNodeListNext = false;
    for (; m_lines.isDataAhead(); ++m_rows)
        isNodeListNext = isNodeListMark(m_lines.take(m_option));
    const bool isPoint =
        m_option.kind == coDeckOption::PointLoad || m_option.kind == coDeckOption::PointCurrent;
    if ((m_option.kind == coDeckOption::Solver && isAhead(optimisation))
        || (m_option.kind == coDeckOption::AutoLoad && isAhead(timeStep))
        || (isPoint && (m_rows == pointRows || isNodeListNext) && isNameAhead()))
        m_lines.take(m_option);
    while (m_lines.isDataAhead())
        m_lines.take(m_option);
}

/// Whether this is the line "2" of a point load or current, behind which the node list stands.
bool DeckCardReader::isNodeListMark(const coDeckLine& line) const
{
    coDeckFields fields(line, m_lines.mode(), m_option.format);
    int value = 0;
    return fields.readInt(value) && value == 2 && fields.atEnd();
}

// Rather than the next option, where the node list is missing.
bool DeckCardReader::isNameAhead()
{
    const coDeckLine* line = m_lines.ahead();
    if (!line || line->kind != coDeckLine::Keyword)
        return false;
    const DeckKeyword* keyword = DeckKeyword::find(*line);
    return !keyword || !keyword->isWholeLine;
}

DeckRow DeckCardReader::keywordRow(int keywordLength)
{
    const coDeckLine& line = m_lines.scanner().line();
    const bool isFree = m_option.format != CFEDatLineWriter::fixed;
    const int keyWidth = m_lines.mode() == CFEDatLineWriter::standard ? 10 : 20;
    return DeckRow(m_lines, m_option, line, isFree ? keywordLength + 1 : qMax(keyWidth, keywordLength));
}

bool DeckCardReader::note(const DeckRow& row)
{
    m_isOurs = m_isOurs && row.isOurs();
    return row.ok();
}

void DeckCardReader::readTableSection()
{
    if (note(keywordRow(5).constants(0, 2).constant(2).constants(1, 2).constants(0, 2).constant(1).end()))
        keep(coFeParameterSectionTable());
}

void DeckCardReader::readProcess()
{
    coFeAutoforgeCard card;
    bool is3d = false;
    int material = 0;
    int licences = 0;
    int type = 0;
    bool isNoHeat = false;
    int kin = 0;
    int rigid = 0;
    int version = 0;
    bool checksHeat = false;
    int contact = 0;
    DeckRow row = keywordRow(9);
    row.choice(is3d, 2, 1).integer(material).constant(2).integer(licences).constant(0).integer(type);
    row.choice(isNoHeat, 1, 0).integer(kin).integer(rigid).integer(version).choice(checksHeat, 1, 0);
    if (!note(row.integer(contact).end()))
        return;
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
    keep(card);
}

void DeckCardReader::readAutoLoad()
{
    int steps = 0;
    int remeshings = 0;
    int cutBack = 0;
    double time = 0.0;
    double travel = 0.0;
    DeckRow row = nextRow();
    row.integer(steps).constant(0).constant(10).integer(remeshings).integer(cutBack).real(time).real(travel);
    if (!note(row.end()))
        return;
    if (steps == 0) {
        QString keyword;
        if (!m_lines.takeText(m_option, keyword))
            return;
        if (keyword.trimmed().compare(QLatin1String(timeStep), Qt::CaseInsensitive) != 0)
            return m_lines.error(m_option, 1, tr("'time step' expected, found '%1'.").arg(keyword));
        if (!note(nextRow().constantReal(1.0).end()))
            return;
    }
    cFeAutoLoadCard card;
    card.setTimeSteps(steps);
    card.setMaxForcedRemeshingNo(remeshings);
    card.setCutBackStepNo(cutBack);
    card.setTotalTime(time);
    card.setTotalTravelDist(travel);
    keep(card);
}

void DeckCardReader::readSolver()
{
    int id = 0;
    bool isNonSymmetric = false;
    bool isFullK = false;
    DeckRow row = nextRow();
    row.integer(id).choice(isNonSymmetric, 1, 0).constant(0).choice(isFullK, 1, 0).constant(0);
    if (!row.ok())
        return;
    if (!coMarcSolverType::isMarcDatFileId(id))
        return m_lines.error(m_option, 1, tr("%1 is the number of no solver.").arg(id));
    const coMarcSolverType type(coMarcSolverType::typeFromMarcDatFileId(id));
    row.constant(type.isCasiIterative() ? 2 : 0).constants(0, 2);
    coFeSolverCard card(type);
    if (type.isCasiIterative()) {
        row.constants(0, 7).constant(1);
    } else if (type.isPardisoParallelDirect() && !row.atEnd()) {
        int rigid = 0;
        row.constants(0, 5).integer(rigid).constant(1).constant(0);
        card.setIsConditionalNumericalReproducibilityEnabled(true);
        card.setAutoforgeField10Value(rigid == 0 || rigid == 1 ? 1 - rigid : rigid);
    }
    if (!note(row.end()) || !readSolverExtras(card, id))
        return;
    card.setIsNonSymmetricSystem(isNonSymmetric);
    card.setIsSolutionProcedureFullK(isFullK);
    card.enableUsingUpperCaseKeywords(m_option.keyword == QLatin1String("SOLVER"));
    keep(card);
}

bool DeckCardReader::readSolverExtras(coFeSolverCard& card, int solverId)
{
    const bool isSparse = card.solverType().isIterativeSparse();
    if (isSparse || card.solverType().isMixedDirectIterative()) {
        int iterations = 0;
        double tolerance = 0.0;
        if (!note(nextRow().integer(iterations).constant(1).constant(isSparse ? 5 : 0).end())
            || !note(nextRow().real(tolerance).end()))
            return false;
        card.setMaxIterations(iterations);
        card.setTolerance(tolerance);
    }
    if (!coFeSolverCard::hasOptimisation(solverId))
        return true;
    m_lines.takeComments(m_option);
    if (!isAhead(optimisation)) {
        m_isOurs = false;
        return true;
    }
    m_lines.take(m_option);
    return note(keywordRow(static_cast<int>(qstrlen(optimisation))).constant(isSparse ? 9 : 11).end());
}

void DeckCardReader::readPointLoad(const QString& component, const QString& comment)
{
    const QString prefix = QStringLiteral("ptld_");
    double forces[3] = {0.0, 0.0, 0.0};
    int count = 0;
    if (!note(nextRow().constant(1).constants(0, 2).end())
        || !note(nextRow().constant(1).constants(0, 5).rest(m_option.name).end()))
        return;
    DeckRow row = nextRow();
    for (; count < 2 || (count < 3 && !row.atEnd()); ++count)
        row.real(forces[count]);
    QString nodes;
    if (!note(row.end()) || !readForceTables(count) || !note(nextRow().constant(2).end())
        || !m_lines.takeText(m_option, nodes))
        return;
    cPointLoadCard card;
    card.setIs3DProcess(count == 3);
    card.setForceX(count == 3 ? forces[0] : forces[1]);
    card.setForceY(count == 3 ? forces[1] : 0.0);
    card.setForceZ(count == 3 ? forces[2] : forces[0]);
    card.setComponentName(component);
    card.setCommentText(comment);
    card.setListOfNodesName(nodes);
    card.setComponentBodyId(m_option.name.mid(prefix.size()).section(QLatin1Char('_'), 0, 0).toInt());
    m_isOurs = m_isOurs && m_option.name == prefix + card.uniqueLabel();
    m_option.nodeList = nodes;
    keep(card);
}

/// One zero a direction; one more than forces where the last force is blank.
bool DeckCardReader::readForceTables(int forces)
{
    DeckRow row = nextRow();
    row.constants(0, forces);
    if (row.ok() && forces == 2 && !row.atEnd()) {
        m_isOurs = false;
        m_lines.warning(m_option, 0, tr("the third force is missing and reads as 0."));
        row.constant(0);
    }
    return note(row.end());
}

void DeckCardReader::readPointCurrent()
{
    double current = 0.0;
    int tableId = 0;
    QString node;
    if (!note(nextRow().constants(0, 2).end())
        || !note(nextRow().constant(1).constants(0, 5).word(m_option.name).end())
        || !note(nextRow().real(current).constantReal(0.0).constantReal(0.0).end())
        || !note(nextRow().integer(tableId).constants(0, 2).end()) || !note(nextRow().constant(2).end())
        || !m_lines.takeText(m_option, node))
        return;
    if (m_option.format != CFEDatLineWriter::fixed && node.endsWith(QLatin1Char(',')))
        node.chop(1);
    cFePointCurrentCard card;
    card.setLabel(m_option.name);
    card.setCurrent(kdUnitValue(current, kdUnitSystem(kdUnitSystem::ElectricCurrent, 0)));
    card.setTableId(tableId);
    card.setControlNode(node);
    m_option.nodeList = node;
    m_option.tableReference = tableId;
    keep(card);
}
