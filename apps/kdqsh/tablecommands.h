#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

/// The commands "table ...": tables of the session and their files.
class TableCommands {
    Q_DECLARE_TR_FUNCTIONS(TableCommands)

public:
    static const ShellCommandGroup& group();

    /// Reports and returns null where the session has no such table.
    static ShellTables::Table find(const ShellCall& call, const QString& name);
    /// Index of the column that \a word names: by its name or title, as x or y, or by its number from 1 on.
    /// Reports and returns -1 where there is none.
    static int columnIndex(const ShellCall& call, const kdDataTable& table, const QString& word);
    /// The separator that a word names: tab, blank, or the word itself; a semicolon for an empty one.
    static QString separator(const QString& word);
    /// States the unit of a column, one of its dimension where the symbol has several meanings. Reports a
    /// symbol that is no unit.
    static bool setColumnUnit(const ShellCall& call, kdDataColumn& column, const QString& symbol);
    /// Shows names and units of the columns and the first \a rows.
    static void showRows(const ShellCall& call, const kdDataTable& table, int rows);
    /// Name, rows and columns in a sentence.
    static QString size(const kdDataTable& table);

private:
    static bool list(ShellCall& call);
    static bool import(ShellCall& call);
    static bool load(ShellCall& call);
    static bool exportTable(ShellCall& call);
    static bool exportText(const kdDataTable& table, QIODevice& device, const QString& separator);

    static bool show(ShellCall& call);
    static bool info(ShellCall& call);
    static bool lookup(ShellCall& call);

    static bool convert(ShellCall& call);
    static bool setUnit(ShellCall& call);
    static bool extract(ShellCall& call);
    static bool copy(ShellCall& call);
    static bool rename(ShellCall& call);
    static bool remove(ShellCall& call);
    static bool sort(ShellCall& call);
    static bool scale(ShellCall& call);
    static bool combine(ShellCall& call);
};
