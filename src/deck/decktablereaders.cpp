#include "cofedatatablecard.h"
#include "cofetablecardusingformula.h"
#include "deckcardreader_p.h"

#include <cmath>

namespace {

QString number(double value)
{
    return QString::number(value, 'g', 16);
}

} // namespace

template <typename Taker>
bool DeckCardReader::readListLine(const coDeckLine& line, qint64& count, const Taker& taker)
{
    coDeckFields fields(line, m_lines.mode(), m_option.format);
    bool isGood = true;
    for (; !fields.atEnd(); ++count)
        isGood = taker(fields, count) && isGood;
    return isGood;
}

template <typename Taker>
bool DeckCardReader::readList(qint64 expected, const QString& what, const Taker& taker)
{
    qint64 count = 0;
    qint64 firstLine = 0;
    bool isGood = true;
    bool isContinued = true;
    while (isContinued) {
        const coDeckLine* line = m_lines.takeData(m_option);
        if (!line)
            return false;
        firstLine = firstLine == 0 ? line->number : firstLine;
        isContinued = line->isContinued();
        isGood = readListLine(*line, count, taker) && isGood;
    }
    if (count == expected)
        return isGood;
    m_lines.errorInLine(
        m_option, firstLine,
        tr("%1 %2 expected, found %3.").arg(QString::number(expected), what, QString::number(count)));
    return false;
}

void DeckCardReader::readTable()
{
    TableHead head;
    if (!readTableHead(head))
        return;
    switch (head.readMethod) {
    case nMarc::ReadGrid:
    case nMarc::ReadGridValueByValue:
        return readGrid(head);
    case nMarc::ReadPoints:
        return readPoints(head);
    case nMarc::ReadFormula:
        return readFormula(head);
    default:
        m_lines.error(m_option, 0, tr("read method 0, 1, 2 or 3 expected, found %1.").arg(head.readMethod));
    }
}

bool DeckCardReader::readTableHead(TableHead& head)
{
    if (!note(nextRow()
                  .integer(m_option.id)
                  .integer(head.variables)
                  .constants(0, 2)
                  .integer(head.readMethod)
                  .end()))
        return false;
    if (head.variables != 1 && head.variables != 2) {
        m_lines.error(m_option, 0, tr("1 or 2 variables expected, found %1.").arg(head.variables));
        return false;
    }
    DeckRow row = nextRow();
    for (int i = 0; i < head.variables; ++i) {
        TableVariable& variable = head.variable[i];
        row.integer(variable.type).integer(variable.points).choice(variable.isExtrapolated, 2, 1);
        if (row.ok() && variable.type == nMarc::NoTableVariable)
            m_lines.error(m_option, row.column(), tr("variable %1 has no type.").arg(i + 1));
    }
    if (head.readMethod == nMarc::ReadPoints && head.variables == 2)
        m_lines.error(m_option, 0, tr("a table of two variables cannot be read point by point."));
    head.line = m_lines.scanner().line().number;
    return note(row.end());
}

void DeckCardReader::readFormula(const TableHead& head)
{
    QString formula;
    if (!m_lines.takeText(m_option, formula))
        return;
    if (formula.trimmed().isEmpty())
        return m_lines.error(m_option, 1, tr("formula expected, found an empty line."));
    m_option.kind = coDeckOption::FormulaTable;
    for (int i = 0; i < head.variables; ++i)
        m_isOurs = m_isOurs && head.variable[i].points == 0 && head.variable[i].isExtrapolated;
    using Variable = coFeTableCardBase::IndependentVarBase;
    const auto type = [&head](int i) {
        return static_cast<nMarc::e_TableVariableType>(head.variable[i].type);
    };
    coFeTableCardUsingFormula card(m_option.name, m_option.id, Variable(type(0)));
    if (head.variables == 2)
        card.setIndependentVariable2(Variable(type(1)));
    card.setFormula(formula);
    keep(card);
}

// Comments behind the last announced point are the next option's.
bool DeckCardReader::isPointAhead(bool isExpected)
{
    if (isExpected)
        m_lines.takeComments(m_option);
    return m_lines.isDataAhead();
}

void DeckCardReader::readPoints(TableHead& head)
{
    QList<double> values;
    double lastX = 0.0;
    bool isGood = true;
    int count = 0;
    for (; isPointAhead(count < head.variable[0].points); ++count) {
        double x = 0.0;
        coDeckFields fields(m_lines.take(m_option), m_lines.mode(), m_option.format);
        if (!readValue(fields.takeReal(), x) || !takeValue(fields, values) || !isAtEnd(fields)) {
            isGood = false;
            continue;
        }
        if (count > 0 && x < lastX) {
            m_lines.error(m_option, 1,
                          tr("x must not descend, but %1 follows %2.").arg(number(x), number(lastX)));
            isGood = false;
        }
        lastX = x;
        if (m_lines.readsCards())
            head.variable[0].values.append(x);
    }
    const QString announced = QString::number(head.variable[0].points);
    if (count != head.variable[0].points)
        m_lines.errorInLine(m_option, head.line,
                            tr("%1 points are announced, %2 follow.").arg(announced, QString::number(count)));
    else if (count == 0)
        m_lines.errorInLine(m_option, head.line, tr("the table has no points."));
    else if (isGood)
        keepTable(head, values);
}

void DeckCardReader::readGrid(TableHead& head)
{
    qint64 expected = 1;
    bool isGood = true;
    for (int i = 0; i < head.variables; ++i) {
        isGood = readGridVariable(head.variable[i], i + 1) && isGood;
        expected *= head.variable[i].points;
    }
    QList<double> values;
    isGood = readList(expected, tr("table values"),
                      [&](coDeckFields& fields, qint64) { return takeValue(fields, values); })
        && isGood;
    m_isOurs = m_isOurs && head.variables == 2;
    if (isGood)
        keepTable(head, values);
}

bool DeckCardReader::readGridVariable(TableVariable& variable, int number)
{
    double last = 0.0;
    const auto take = [&](coDeckFields& fields, qint64 index) {
        double value = 0.0;
        if (!readValue(fields.takeReal(), value))
            return false;
        const bool isAscending = index == 0 || value > last;
        if (!isAscending)
            m_lines.error(m_option, fields.field().column,
                          value == last ? tr("values %1 and %2 of variable %3 print alike: %4.")
                                              .arg(QString::number(index), QString::number(index + 1),
                                                   QString::number(number), ::number(value))
                                        : tr("the values of variable %1 must ascend, but %2 follows %3.")
                                              .arg(QString::number(number), ::number(value), ::number(last)));
        last = value;
        if (m_lines.readsCards())
            variable.values.append(value);
        return isAscending;
    };
    return readList(variable.points, tr("values of variable %1").arg(number), take);
}

bool DeckCardReader::readValue(const coDeckFields::Field& field, double& value)
{
    const bool isNumber = m_lines.readReal(field, value);
    if (Q_LIKELY(isNumber && std::isfinite(value)))
        return true;
    if (field.isEmpty()) {
        value = 0.0;
        m_isOurs = false;
        m_lines.warning(m_option, field.column, tr("the blank field reads as 0."));
        return true;
    }
    m_lines.error(m_option, field.column,
                  isNumber ? tr("finite number expected, found '%1'.").arg(field.text())
                           : tr("number expected, found '%1'.").arg(field.text()));
    return false;
}

// Without cards a value only has to be one.
bool DeckCardReader::takeValue(coDeckFields& fields, QList<double>& values)
{
    const coDeckFields::Field& field = fields.takeReal();
    double value = 0.0;
    if (!m_lines.readsCards())
        return nDeckNumber::isPlainReal(field.begin, field.end) || readValue(field, value);
    if (!readValue(field, value))
        return false;
    values.append(value);
    return true;
}

bool DeckCardReader::isAtEnd(coDeckFields& fields)
{
    if (fields.atEnd())
        return true;
    const coDeckFields::Field& field = fields.takeRest();
    m_lines.error(m_option, field.column,
                  tr("end of line expected, found '%1'.").arg(field.text().trimmed()));
    return false;
}

void DeckCardReader::keepTable(const TableHead& head, const QList<double>& values)
{
    if (!m_lines.readsCards() || !m_isOurs || !m_lines.isWhole(m_option) || values.isEmpty())
        return;
    using Variable = coFeTableCard::IndependentVarUsingValues;
    const auto variable = [&head](int i) {
        const TableVariable& read = head.variable[i];
        return Variable(static_cast<nMarc::e_TableVariableType>(read.type), read.values, read.isExtrapolated);
    };
    coFeDataTableCard card(m_option.name, m_option.id, variable(0));
    card.setOwnValues(values);
    if (head.variables == 2) {
        card.setDefaultReadMethodForMoreThan1IndependentVar(
            static_cast<nMarc::e_TableReadMethod>(head.readMethod));
        card.coFeTableCard::setIndependentVariable2(variable(1));
        if (card.requiredNumberOfVariableDependentValues() != values.size())
            return m_lines.error(m_option, 0, tr("two values of a variable are too close to be told apart."));
    }
    m_option.card = QSharedPointer<coFeDataTableCard>::create(card);
}
