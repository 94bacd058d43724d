#include "tablemodel.h"

#include <QLocale>

#include <cmath>

namespace {

/// Digits that tell neighbouring measurements apart and hide the last bits of unit conversions.
constexpr int shownDigits = 10;

QString numberText(double value, int digits)
{
    if (std::isnan(value))
        return QString(); // a value that is missing
    QLocale locale;
    locale.setNumberOptions(QLocale::OmitGroupSeparator);
    return locale.toString(value, 'g', digits);
}

} // namespace

TableModel::TableModel(kdDataTable table, Access access, QObject* parent)
    : QAbstractTableModel(parent), m_table(std::move(table)), m_access(access)
{
}

bool TableModel::readNumber(const QString& text, double& value)
{
    bool ok = false;
    QLocale locale;
    locale.setNumberOptions(QLocale::RejectGroupSeparator); // 1.5 must not become 15 in German
    double number = locale.toDouble(text.trimmed(), &ok);
    if (!ok)
        number = text.trimmed().toDouble(&ok);
    if (!ok || !std::isfinite(number))
        return false;
    value = number;
    return true;
}

QString TableModel::titleOf(const kdDataColumn& column, int index)
{
    QString name = column.title().isEmpty() ? column.name() : column.title();
    if (name.isEmpty())
        name = column.getUnitSystem().dimension() != kdUnitSystem::None
            ? kdUnitSystem::translatedDimensionName(column.getUnitSystem().dimension())
            : tr("column %1").arg(index + 1);
    const QString unit = column.getUnitSystem().symbol();
    return unit.isEmpty() || unit == QLatin1String("-") ? name : QStringLiteral("%1 [%2]").arg(name, unit);
}

void TableModel::setValue(int row, int column, double value)
{
    m_table.columnRef(column).setValueAt(row, value);
    Q_EMIT dataChanged(index(row, column), index(row, column));
    Q_EMIT signalTableChanged();
}

void TableModel::insertValues(int first, const QVector<QVector<double>>& rows)
{
    if (rows.isEmpty())
        return;
    beginInsertRows(QModelIndex(), first, first + rows.size() - 1);
    for (int column = 0; column < m_table.columns(); ++column) {
        QVector<double> values = m_table.columnRef(column).values();
        values.insert(first, rows.size(), 0.0);
        for (int row = 0; row < rows.size(); ++row)
            values[first + row] = rows.at(row).value(column);
        m_table.columnRef(column).setValues(values);
    }
    endInsertRows();
    Q_EMIT signalTableChanged();
}

void TableModel::removeValues(int first, int count)
{
    beginRemoveRows(QModelIndex(), first, first + count - 1);
    for (int column = 0; column < m_table.columns(); ++column)
        m_table.columnRef(column).removeValues(first, count);
    endRemoveRows();
    Q_EMIT signalTableChanged();
}

void TableModel::replaceColumn(int column, const kdDataColumn& other)
{
    m_table.columnRef(column) = other;
    Q_EMIT headerDataChanged(Qt::Horizontal, column, column);
    if (rowCount() > 0)
        Q_EMIT dataChanged(index(0, column), index(rowCount() - 1, column));
    Q_EMIT signalTableChanged();
}

void TableModel::setTable(kdDataTable table)
{
    beginResetModel();
    m_table = std::move(table);
    endResetModel();
    Q_EMIT signalTableChanged();
}

QVector<double> TableModel::valuesOf(int row) const
{
    QVector<double> values;
    for (int column = 0; column < m_table.columns(); ++column)
        values.append(m_table.columnRef(column).value(row));
    return values;
}

int TableModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_table.rows();
}

int TableModel::columnCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : m_table.columns();
}

QVariant TableModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return QVariant();
    const double value = m_table.columnRef(index.column()).value(index.row());
    switch (role) {
    case Qt::DisplayRole:
        return numberText(value, shownDigits);
    case Qt::EditRole:
        return numberText(value, QLocale::FloatingPointShortest);
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignRight | Qt::AlignVCenter);
    default:
        return QVariant();
    }
}

QVariant TableModel::headerData(int section, Qt::Orientation orientation, int role) const
{
    if (role != Qt::DisplayRole)
        return QAbstractTableModel::headerData(section, orientation, role);
    if (orientation == Qt::Vertical)
        return section + 1;
    const kdDataColumn* const column = m_table.column(section);
    return column != nullptr ? titleOf(*column, section) : QString();
}

Qt::ItemFlags TableModel::flags(const QModelIndex& index) const
{
    const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
    return isEditable() ? flags | Qt::ItemIsEditable : flags;
}

bool TableModel::setData(const QModelIndex& index, const QVariant& value, int role)
{
    if (!index.isValid() || role != Qt::EditRole || !isEditable())
        return false;
    const QString text = value.toString();
    if (text == data(index, Qt::EditRole).toString())
        return false;
    double number = 0.0;
    if (!readNumber(text, number)) {
        Q_EMIT signalEntryRefused(tr("Row %1, %2: '%3' is no number; the value stays %4.")
                                      .arg(QString::number(index.row() + 1),
                                           titleOf(m_table.columnRef(index.column()), index.column()), text,
                                           data(index, Qt::DisplayRole).toString()));
        return false;
    }
    Q_EMIT signalValueEntered(index.row(), index.column(), number);
    return true;
}
