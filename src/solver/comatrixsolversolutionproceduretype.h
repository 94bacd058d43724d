#pragma once

#include <kdqcore_export.h>

#include <QCoreApplication>
#include <QString>
#include <QVariant>

class QXmlStreamReader;
class QXmlStreamWriter;

/// How the matrix solver updates the stiffness matrix: the DI procedure or the full stiffness matrix (full
/// K).
///
/// Stored in project files as
/// \code{.xml}
/// <matrix_solver_solution_procedure_type value="1"/>
/// \endcode
/// A plain value.
class KDQCORE_EXPORT coMatrixSolverSolutionProcedureType {
    Q_DECLARE_TR_FUNCTIONS(coMatrixSolverSolutionProcedureType)

public:
    enum e_Type : unsigned char { SolutionProcedureDI = 0, SolutionProcedureFullK = 1 };

    coMatrixSolverSolutionProcedureType() = default;
    coMatrixSolverSolutionProcedureType(e_Type type) : m_type(type) { }

    e_Type type() const { return m_type; }
    void setType(e_Type type) { m_type = type; }
    bool isSolutionProcedureDI() const { return m_type == SolutionProcedureDI; }
    bool isSolutionProcedureFullK() const { return m_type == SolutionProcedureFullK; }

    QString viewName() const;

    int typeToId() const { return typeToId(m_type); }
    static int typeToId(e_Type type) { return type == SolutionProcedureFullK ? 1 : 0; }
    static e_Type typeFromId(int id) { return id == 1 ? SolutionProcedureFullK : SolutionProcedureDI; }
    QVariant toVariant() const;
    static coMatrixSolverSolutionProcedureType fromVariant(const QVariant& variant);

    static QString xmlElementName();
    /// Writes the element whole.
    void writeXML(QXmlStreamWriter& writer) const;
    /// Reads the reader's current element and leaves the reader at its end. An element of another name, or
    /// without the attribute "value", gives the id as its text. Where there is no integer, raises the
    /// reader's error, keeps the type and returns false.
    bool readXML(QXmlStreamReader& reader);

    friend bool operator==(const coMatrixSolverSolutionProcedureType& a,
                           const coMatrixSolverSolutionProcedureType& b)
    {
        return a.m_type == b.m_type;
    }
    friend bool operator!=(const coMatrixSolverSolutionProcedureType& a,
                           const coMatrixSolverSolutionProcedureType& b)
    {
        return !(a == b);
    }

private:
    e_Type m_type = SolutionProcedureDI;
};
