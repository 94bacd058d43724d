#pragma once

#include "cfeabstractdatcard.h"
#include "nmarc.h"

#include <QString>

#include <memory>

/// What the table cards share: name, id, one or two independent variables, and the head lines of a table.
///
/// Use coFeTableCard for a table of values and coFeTableCardUsingFormula for a formula. Other options of the
/// deck refer to a table by its id; the name is for people.
///
/// The head of a table is three blocks: Block1 is the keyword and the name, Block2 says how the data are laid
/// out, Block3 describes the variables. They are values that can be written on their own.
///
/// Not thread-safe. A card owns copies of its variables; copies of a card own copies of their own.
class KDQCORE_EXPORT coFeTableCardBase : public cFeAbstractDatCard {
public:
    /// An independent variable, known by its type alone.
    class KDQCORE_EXPORT IndependentVarBase {
    public:
        IndependentVarBase(nMarc::e_TableVariableType variableType) : m_variableType(variableType) { }

        /// A new copy, which the caller owns.
        virtual IndependentVarBase* getCopy() const;
        virtual ~IndependentVarBase();

        IndependentVarBase(const IndependentVarBase&) = default;
        IndependentVarBase& operator=(const IndependentVarBase&) = default;

        nMarc::e_TableVariableType variableType() const { return m_variableType; }
        void setVariableType(nMarc::e_TableVariableType variableType) { m_variableType = variableType; }

    private:
        nMarc::e_TableVariableType m_variableType;
    };

    /// The keyword "table" and the name, a line break in the name as a blank.
    class KDQCORE_EXPORT Block1 {
    public:
        explicit Block1(const QString& tableName) : m_tableName(tableName) { }
        virtual bool write(CFEDatLineWriter& writer) const;
        virtual ~Block1();

        QString tableName() const { return m_tableName; }

    private:
        QString m_tableName;
    };

    /// Id, number of variables and read method. Points exist only for one variable: with another number of
    /// variables nMarc::ReadPoints becomes nMarc::ReadGrid.
    class KDQCORE_EXPORT Block2 {
    public:
        Block2(int tableId, int nIndependentVars, nMarc::e_TableReadMethod readMethod);
        virtual bool write(CFEDatLineWriter& writer) const;
        virtual ~Block2();

        int tableId() const { return m_tableId; }
        int nIndependentVars() const { return m_nIndependentVars; }
        nMarc::e_TableReadMethod readMethod() const { return m_readMethod; }

    private:
        int m_tableId;
        int m_nIndependentVars;
        nMarc::e_TableReadMethod m_readMethod;
    };

    /// The description of one or two variables.
    class KDQCORE_EXPORT Block3 {
    public:
        /// One variable. Without a type it is not there.
        class KDQCORE_EXPORT Data {
        public:
            Data(nMarc::e_TableVariableType variableType = nMarc::NoTableVariable, int nPoints = 0,
                 bool isExtrapolationAllowed = true);
            virtual bool write(CFEDatLineWriter& writer) const;
            virtual ~Data();

            bool isValid() const { return m_variableType != nMarc::NoTableVariable; }
            nMarc::e_TableVariableType variableType() const { return m_variableType; }
            int nPoints() const { return m_nPoints; }
            bool isExtrapolationAllowed() const { return m_isExtrapolationAllowed; }

        private:
            nMarc::e_TableVariableType m_variableType;
            int m_nPoints;
            bool m_isExtrapolationAllowed;
        };

        explicit Block3(const Data& variable1, const Data& variable2 = Data());
        /// Writes nothing and returns false where variable 1 is not valid; leaves out a variable 2 that is
        /// not.
        virtual bool write(CFEDatLineWriter& writer) const;
        virtual ~Block3();

        const Data& variable1() const { return m_variable1; }
        const Data& variable2() const { return m_variable2; }

    private:
        Data m_variable1;
        Data m_variable2;
    };

    ~coFeTableCardBase() override;

    /// The read method that belongs to the kind of the table and the number of its variables.
    virtual nMarc::e_TableReadMethod getReadMethod() const = 0;

    int nIndependentVars() const { return m_variable2 ? 2 : 1; }
    int tableId() const { return m_tableId; }
    QString tableName() const { return m_tableName; }
    const IndependentVarBase& independentVariable1() const { return *m_variable1; }
    /// Null where the table has one variable.
    const IndependentVarBase* independentVariable2() const { return m_variable2.get(); }
    /// Replaces variable 2 by a copy of \a variable.
    void setIndependentVariable2(const IndependentVarBase& variable);

protected:
    coFeTableCardBase(const QString& tableName, int tableId, const IndependentVarBase& variable1);
    coFeTableCardBase(const coFeTableCardBase& other);
    coFeTableCardBase& operator=(const coFeTableCardBase& other);

    IndependentVarBase& editIndependentVariable1() { return *m_variable1; }
    IndependentVarBase* editIndependentVariable2() { return m_variable2.get(); }
    void removeIndependentVariable2() { m_variable2.reset(); }

    /// Writes the three blocks. A variable 2 without a type is logged and makes the result false.
    bool writeBlocks(CFEDatLineWriter& writer, const Block3& block3) const;

private:
    std::unique_ptr<IndependentVarBase> m_variable1;
    std::unique_ptr<IndependentVarBase> m_variable2;
    int m_tableId;
    QString m_tableName;
};
