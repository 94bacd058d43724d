#pragma once

#include "viewcommand.h"

#include <kdQCore/kdDataColumn>

#include <QStringList>

/// A change of one table. The parameters begin with the number of the document and of its sheet; sheets, rows
/// and columns count from 1, as people see them.
///
/// The base finds the table, refuses what cannot be, and takes care of the document's state; derived commands
/// say what changes and how it is taken back.
class EditCommand : public ViewCommand {
    Q_OBJECT

public:
    bool execute() override;
    bool undo() override;

protected:
    /// \a words: how many parameters the command takes, document and sheet included.
    EditCommand(const QString& parameter, int words);

    /// Tells what is wrong through fail().
    virtual bool apply(TableModel& model) = 0;
    virtual void revert(TableModel& model) = 0;

    QString word(int index) const { return m_words.value(index); }
    /// The word as an index from 0; false, and the error told, where it is not from 1 to \a last.
    bool index(int word, int last, int& index) const;

private:
    TableModel* findModel();

    QStringList m_words;
    int m_wordCount;
    Workspace::DocumentPointer m_document; ///< the one that was changed
    TableModel* m_model = nullptr;         ///< its sheet
    int m_stateBefore = 0;
    int m_stateAfter = 0;
};

/// "set DOCUMENT SHEET ROW COLUMN VALUE", the value in the unit of the column.
class SetValueCommand : public EditCommand {
    Q_OBJECT

public:
    explicit SetValueCommand(const QString& parameter) : EditCommand(parameter, 5) { }

    QString name() const override { return QStringLiteral("set"); }
    QString helpMessage() const override;
    QString text() const override { return tr("change value"); }

protected:
    bool apply(TableModel& model) override;
    void revert(TableModel& model) override;

private:
    int m_row = 0;
    int m_column = 0;
    double m_valueBefore = 0.0;
};

/// "insert DOCUMENT SHEET ROW": a row before the one named, half-way between its neighbours; one more than
/// the last row appends.
class InsertRowCommand : public EditCommand {
    Q_OBJECT

public:
    explicit InsertRowCommand(const QString& parameter) : EditCommand(parameter, 3) { }

    QString name() const override { return QStringLiteral("insert"); }
    QString helpMessage() const override;
    QString text() const override { return tr("insert row"); }

protected:
    bool apply(TableModel& model) override;
    void revert(TableModel& model) override;

private:
    static QVector<double> newValues(const TableModel& model, int row);

    int m_row = 0;
};

/// "remove DOCUMENT SHEET ROW COUNT".
class RemoveRowsCommand : public EditCommand {
    Q_OBJECT

public:
    explicit RemoveRowsCommand(const QString& parameter) : EditCommand(parameter, 4) { }

    QString name() const override { return QStringLiteral("remove"); }
    QString helpMessage() const override;
    QString text() const override { return tr("remove rows"); }

protected:
    bool apply(TableModel& model) override;
    void revert(TableModel& model) override;

private:
    int m_row = 0;
    QVector<QVector<double>> m_removed;
};

/// "unit DOCUMENT SHEET COLUMN UNIT": converts a column to another unit of its dimension.
class UnitCommand : public EditCommand {
    Q_OBJECT

public:
    explicit UnitCommand(const QString& parameter) : EditCommand(parameter, 4) { }

    QString name() const override { return QStringLiteral("unit"); }
    QString helpMessage() const override;
    QString text() const override { return tr("change unit"); }

protected:
    bool apply(TableModel& model) override;
    void revert(TableModel& model) override;

private:
    int m_column = 0;
    kdDataColumn m_columnBefore; ///< with its values: converting them back would round
};
