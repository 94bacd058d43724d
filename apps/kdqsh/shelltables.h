#pragma once

#include <kdQCore/kdDataTable>

#include <QMap>
#include <QSharedPointer>
#include <QStringList>

/// The tables of a session by name. Tables are never changed in place: a change puts a new one in the old
/// one's stead. So a copy of this object is cheap and is all that undo needs.
class ShellTables {
public:
    using Table = QSharedPointer<const kdDataTable>;

    QStringList names() const { return m_tables.keys(); }
    /// Null where there is none.
    Table find(const QString& name) const { return m_tables.value(name); }
    /// The table's own name becomes \a name; a table that had it is replaced.
    void put(const QString& name, kdDataTable table);
    void remove(const QString& name) { m_tables.remove(name); }

private:
    QMap<QString, Table> m_tables;
};
