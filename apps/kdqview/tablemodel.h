#pragma once

#include <kdQCore/kdDataTable>

#include <QAbstractTableModel>

/// A table for views: one row a point, the unit of a column in its header, numbers as the user's language
/// writes them.
///
/// What a user types does not change the table at once: setData() checks it and passes it on by
/// signalValueEntered(), whose receiver makes a command of it, which can be undone. Commands then call the
/// change functions.
class TableModel : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Access { Editable, ReadOnly };

    explicit TableModel(kdDataTable table, Access access = Editable, QObject* parent = nullptr);

    const kdDataTable& table() const { return m_table; }
    bool isEditable() const { return m_access == Editable; }

    /// Numbers as people write them: in the user's language, else with a decimal point. Finite ones only.
    static bool readNumber(const QString& text, double& value);
    /// "temperature [°C]".
    static QString titleOf(const kdDataColumn& column, int index);

    // Rows and columns exist: commands have checked that.
    void setValue(int row, int column, double value);
    /// Rows of one value a column, before \a first.
    void insertValues(int first, const QVector<QVector<double>>& rows);
    void removeValues(int first, int count);
    void replaceColumn(int column, const kdDataColumn& other);
    void setTable(kdDataTable table);
    QVector<double> valuesOf(int row) const;

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    int columnCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
    Qt::ItemFlags flags(const QModelIndex& index) const override;
    /// False where the text is no number, and where no new value comes of it.
    bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;

Q_SIGNALS:
    /// After every change of the table.
    void signalTableChanged();
    void signalValueEntered(int row, int column, double value);
    void signalEntryRefused(const QString& reason);

private:
    kdDataTable m_table;
    Access m_access;
};
