#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

class coCSVSettings;
class coCSVWriter;

/// The commands "csv ...": tables as CSV files, and the user's separators for these.
class CsvCommands {
    Q_DECLARE_TR_FUNCTIONS(CsvCommands)

public:
    static const ShellCommandGroup& group();

private:
    static bool exportTable(ShellCall& call);
    static bool settings(ShellCall& call);

    static bool setForm(const ShellCall& call, const kdDataTable& table, coCSVWriter& writer);
    static bool setUnits(const ShellCall& call, const kdDataTable& table, const QString& units,
                         coCSVWriter& writer);
    static bool readDecimal(const ShellCall& call, const QString& word, int& decimalSeparator);
};
