#pragma once

#include "figure.h"
#include "shellcall.h"

/// The program kdqplot, which draws for the shell: the shell itself needs no windows, and so runs where there
/// are none.
class PlotProgram {
    Q_DECLARE_TR_FUNCTIONS(PlotProgram)

public:
    /// Beside this program, else on the search path; empty where there is none.
    static QString path();

    /// Draws into \a file, by whose ending the format goes; \a size is as "800x500". The file is there when
    /// the picture is complete, else it is as it was. False, and the reason told, where that fails. Blocks,
    /// for two minutes at most, or until the call is stopped.
    static bool draw(const ShellCall& call, const Figure& figure, const QString& file, const QString& size);

private:
    static bool run(const ShellCall& call, const Figure& figure, const QStringList& arguments,
                    const QString& file);
};
