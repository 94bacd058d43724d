#pragma once

#include <kdQCore/kdDataTable>
#include <kdQCore/kdUnitValue>
#include <kdqcore_export.h>

#include <QSharedPointer>

class coPredefinedTableListModel;

/// A quantity of a process that is either a constant or a table.
///
/// The mode says which of the contents counts; the others are kept, so that a user who changes the mode and
/// back finds everything as it was.
///
/// \code
/// coTableInput potential(kdUnitValue(0.8, percent));       // a constant
/// potential.setDataTable(curve);                           // the user's own table
/// potential.setMode(coTableInput::UserDefinedTable);
/// \endcode
///
/// Copies share the table until one of them gets another. Values compare with all their contents, constants
/// by meaning as kdUnitValue does; as in kdDataTable, a NaN in a table equals nothing. A value type.
class KDQCORE_EXPORT coTableInput {
public:
    enum e_Mode : int {
        Constant = 1,
        UserDefinedTable = 2, ///< dataTable()
        PredefinedTable = 3,  ///< the table that the installation has under tableName()
        ProjectTable = 4      ///< the table that the project has under tableName()
    };

    /// A constant: the plain number 0.
    coTableInput() = default;
    explicit coTableInput(const kdUnitValue& constant) : m_constant(constant) { }
    /// The user's own table.
    explicit coTableInput(const kdDataTable& table);

    e_Mode mode() const { return m_mode; }
    void setMode(e_Mode mode) { m_mode = mode; }
    bool isConstant() const { return m_mode == Constant; }

    kdUnitValue constant() const { return m_constant; }
    void setConstant(const kdUnitValue& constant) { m_constant = constant; }

    /// Name of the predefined table or of the one in the project.
    QString tableName() const { return m_tableName; }
    /// The translated "<user-defined>", which a choice list may hand over, is taken for the untranslated one:
    /// it must not get into files.
    void setTableName(const QString& name);

    /// Null where there is none.
    QSharedPointer<const kdDataTable> dataTable() const { return m_dataTable; }
    bool hasDataTable() const { return !m_dataTable.isNull(); }
    void setDataTable(const kdDataTable& table);
    void setDataTable(kdDataTable&& table);
    void removeDataTable() { m_dataTable.reset(); }

    /// Has the model copy the predefined table into the project, where the mode asks for one. False where
    /// that failed, or where there is no model.
    bool ensureTableCopiedToProject(coPredefinedTableListModel* model) const;

    /// Writes an element with the children "mode" (nHeatTreatment::e_Mode), "tableName", "fixed_value" and,
    /// if there is a table, "table".
    void writeXML(QXmlStreamWriter& writer, const QString& elementName) const;
    /// Reads the element at whose start the reader stands, to its end: its children in any order, unknown
    /// ones skipped; what is absent stays, only the table is gone without a "table". On failure the error is
    /// on the reader, this input stays as it was, and the result is false.
    bool readXML(QXmlStreamReader& reader, const QString& elementName);

    friend KDQCORE_EXPORT bool operator==(const coTableInput& a, const coTableInput& b);
    friend bool operator!=(const coTableInput& a, const coTableInput& b) { return !(a == b); }

private:
    e_Mode m_mode = Constant;
    kdUnitValue m_constant;
    QString m_tableName;
    QSharedPointer<const kdDataTable> m_dataTable;
};
