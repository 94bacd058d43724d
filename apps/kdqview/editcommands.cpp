#include "editcommands.h"

EditCommand::EditCommand(const QString& parameter, int words)
    : ViewCommand(parameter), m_words(parameter.simplified().split(QLatin1Char(' '), Qt::SkipEmptyParts)),
      m_wordCount(words)
{
}

TableModel* EditCommand::findModel()
{
    if (m_words.size() != m_wordCount) {
        fail(helpMessage());
        return nullptr;
    }
    m_document = Workspace::I().find(word(0).toInt());
    if (m_document.isNull()) {
        fail(tr("No document has the number '%1'.").arg(word(0)));
        return nullptr;
    }
    int sheet = 0;
    if (!index(1, m_document->sheetCount(), sheet))
        return nullptr;
    TableModel* const model = m_document->sheet(sheet);
    if (!model->isEditable()) {
        fail(tr("'%1' cannot be edited here.").arg(m_document->sheetName(sheet)));
        return nullptr;
    }
    return model;
}

bool EditCommand::index(int word, int last, int& index) const
{
    bool ok = false;
    const int number = m_words.value(word).toInt(&ok);
    if (!ok || number < 1 || number > last)
        return fail(tr("'%1' is no number from 1 to %2.").arg(m_words.value(word), QString::number(last)));
    index = number - 1;
    return true;
}

bool EditCommand::execute()
{
    m_model = findModel();
    if (m_model == nullptr || !apply(*m_model))
        return false;
    // Redone on what it was undone from, it leads back to the same state, which may be the saved one.
    if (m_stateAfter == 0 || m_stateBefore != m_document->state()) {
        m_stateBefore = m_document->state();
        m_stateAfter = Document::newState();
    }
    m_document->setState(m_stateAfter);
    return true;
}

bool EditCommand::undo()
{
    revert(*m_model);
    m_document->setState(m_stateBefore);
    return true;
}

QString SetValueCommand::helpMessage() const
{
    return tr("Changes a value. Usage: set DOCUMENT SHEET ROW COLUMN VALUE");
}

bool SetValueCommand::apply(TableModel& model)
{
    double value = 0.0;
    if (!index(2, model.rowCount(), m_row) || !index(3, model.columnCount(), m_column))
        return false;
    if (!TableModel::readNumber(word(4), value))
        return fail(tr("'%1' is no number.").arg(word(4)));
    m_valueBefore = model.valuesOf(m_row).at(m_column);
    model.setValue(m_row, m_column, value);
    return true;
}

void SetValueCommand::revert(TableModel& model)
{
    model.setValue(m_row, m_column, m_valueBefore);
}

QString InsertRowCommand::helpMessage() const
{
    return tr("Inserts a row before another. Usage: insert DOCUMENT SHEET ROW");
}

QVector<double> InsertRowCommand::newValues(const TableModel& model, int row)
{
    const int rows = model.rowCount();
    if (rows == 0)
        return QVector<double>(model.columnCount(), 0.0);
    QVector<double> values = model.valuesOf(qMin(row, rows - 1));
    if (row > 0 && row < rows) {
        const QVector<double> before = model.valuesOf(row - 1);
        for (int column = 0; column < values.size(); ++column)
            values[column] = 0.5 * (before.at(column) + values.at(column));
    } else if (rows > 1) { // at an end X goes on by the last step
        const double neighbour = model.valuesOf(row == 0 ? 1 : rows - 2).constFirst();
        values[0] += values.constFirst() - neighbour;
    }
    return values;
}

bool InsertRowCommand::apply(TableModel& model)
{
    if (!index(2, model.rowCount() + 1, m_row))
        return false;
    model.insertValues(m_row, {newValues(model, m_row)});
    return true;
}

void InsertRowCommand::revert(TableModel& model)
{
    model.removeValues(m_row, 1);
}

QString RemoveRowsCommand::helpMessage() const
{
    return tr("Removes rows. Usage: remove DOCUMENT SHEET ROW COUNT");
}

bool RemoveRowsCommand::apply(TableModel& model)
{
    int last = 0;
    if (!index(2, model.rowCount(), m_row) || !index(3, model.rowCount() - m_row, last))
        return false;
    m_removed.clear();
    for (int row = m_row; row <= m_row + last; ++row)
        m_removed.append(model.valuesOf(row));
    model.removeValues(m_row, m_removed.size());
    return true;
}

void RemoveRowsCommand::revert(TableModel& model)
{
    model.insertValues(m_row, m_removed);
}

QString UnitCommand::helpMessage() const
{
    return tr("Converts a column to another unit. Usage: unit DOCUMENT SHEET COLUMN UNIT");
}

bool UnitCommand::apply(TableModel& model)
{
    if (!index(2, model.columnCount(), m_column))
        return false;
    m_columnBefore = model.table().columnRef(m_column);
    const kdUnitSystem unit = m_columnBefore.getUnitSystem();
    kdDataColumn converted = m_columnBefore;
    bool ok = false;
    const kdUnitSystem wanted = kdUnitSystem::fromSymbol(word(3), unit.dimension(), &ok);
    if (!ok || !converted.toUnit(wanted))
        return fail(tr("%1 cannot be converted to '%2'.")
                        .arg(TableModel::titleOf(m_columnBefore, m_column), word(3)));
    model.replaceColumn(m_column, converted);
    return true;
}

void UnitCommand::revert(TableModel& model)
{
    model.replaceColumn(m_column, m_columnBefore);
}
