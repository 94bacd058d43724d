#include "unitsymbols.h"

#include "unitcatalogue.h"
#include "unitexpression.h"

#include <QHash>
#include <QVector>

using nUnitCatalogue::DimensionEntry;
using nUnitCatalogue::findDimension;

namespace {

struct Synonym {
    const char* typed;
    const char* symbol;
};

// Other compounds for units of the catalogue. Spellings of single units are the parser's.
constexpr Synonym synonyms[] = {
    {"1", "kg/kg"},
    {"C", "degC"},
    {"F", "degF"},
    {"deg C", "degC"},
    {"deg F", "degF"},
    {"degC", "K"},
    {"rpm", "1/min"},
    {"rev/min", "1/min"},
    {"r/min", "1/min"},
    {"U/min", "1/min"},
    {"1/s", "Hz"},
    {"Hz", "1/s"},
    {"Nm", "N m"},
    {"Nmm", "N mm"},
    {"kNm", "kN m"},
    {"Ws", "J"},
    {"W s", "J"},
    {"N m", "J"},
    {"Nm", "J"},
    {"J/s", "W"},
    {"kW h", "kWh"},
    {"dm3", "l"},
    {"kg/dm3", "g/cm3"},
    {"kg/l", "g/cm3"},
    {"N/m2", "Pa"},
    {"MN/m2", "MPa"},
    {"kN/mm2", "GPa"},
    {"lbf/in2", "psi"},
    {"10^-6/K", "um/(m K)"},
    {"1e-6/K", "um/(m K)"},
    {"1E-6/K", "um/(m K)"},
    {"ppm/K", "um/(m K)"},
};

using Index = QHash<QString, QVector<UnitNumber>>;

template <typename Visitor>
void visitUnits(Visitor visit)
{
    for (int dimension = 0; dimension < nUnitCatalogue::dimensionCount; ++dimension)
        for (int unit = 0; unit < findDimension(dimension)->unitCount; ++unit)
            visit(UnitNumber{dimension, unit}, findDimension(dimension)->units[unit]);
}

QString keyOf(const char* text)
{
    return nUnitExpression::key(QString::fromUtf8(text));
}

Index buildIndex()
{
    Index index;
    visitUnits([&index](UnitNumber number, const nUnitCatalogue::Unit& unit) {
        index[keyOf(unit.symbol)].append(number);
    });
    const Index symbols = index;
    for (const Synonym& synonym : synonyms)
        index[keyOf(synonym.typed)] += symbols.value(keyOf(synonym.symbol));
    visitUnits([&index](UnitNumber number, const nUnitCatalogue::Unit& unit) {
        index[QString::fromUtf8(unit.name).toLower()].append(number);
    });
    return index;
}

const Index& index()
{
    static const Index built = buildIndex();
    return built;
}

constexpr int anyDimension = -1;

UnitNumber firstIn(const QVector<UnitNumber>& candidates, int dimension)
{
    for (const UnitNumber& candidate : candidates)
        if (dimension == anyDimension || candidate.dimension == dimension)
            return candidate;
    return {};
}

UnitNumber findExactly(const QString& text, int dimension)
{
    const DimensionEntry* entry = findDimension(dimension);
    for (int unit = 0; entry && unit < entry->unitCount; ++unit)
        if (text == QString::fromUtf8(entry->units[unit].symbol))
            return {dimension, unit};
    return {};
}

// From the strictest reading to the most lenient.
UnitNumber findTyped(const QString& text, int dimension)
{
    for (const QString& key :
         {nUnitExpression::key(text), nUnitExpression::lenientKey(text), text.toLower()}) {
        const UnitNumber found = key.isEmpty() ? UnitNumber() : firstIn(index().value(key), dimension);
        if (found.unitIndex >= 0)
            return found;
    }
    return {};
}

} // namespace

UnitNumber nUnitSymbols::find(const QString& text)
{
    const QString symbol = text.trimmed();
    for (int dimension = 0; dimension < nUnitCatalogue::dimensionCount; ++dimension) {
        const UnitNumber found = findExactly(symbol, dimension);
        if (found.unitIndex >= 0)
            return found;
    }
    return findTyped(symbol, anyDimension);
}

UnitNumber nUnitSymbols::find(const QString& text, int dimension)
{
    if (!findDimension(dimension))
        return {};
    const QString symbol = text.trimmed();
    const UnitNumber found = findExactly(symbol, dimension);
    return found.unitIndex >= 0 ? found : findTyped(symbol, dimension);
}
