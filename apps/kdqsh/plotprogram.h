#pragma once

#include "figure.h"

/// The program kdqplot, which draws for the shell: the shell itself needs no windows, and so runs where there
/// are none.
class PlotProgram {
    Q_DECLARE_TR_FUNCTIONS(PlotProgram)

public:
    /// Beside this program, else on the search path; empty where there is none.
    static QString path();

    /// Draws into \a file, by whose ending the format goes; \a size is as "800x500". The file is there when
    /// the picture is complete, else it is as it was. False, with \a error for the user, where that fails.
    /// Blocks, for two minutes at most.
    static bool draw(const Figure& figure, const QString& file, const QString& size, QString& error);
};
