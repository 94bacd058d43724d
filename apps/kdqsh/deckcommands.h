#pragma once

#include "shellcommand.h"

#include <QCoreApplication>

class cFeAbstractDatCard;

/// The commands "deck ...": the line writer and the cards.
class DeckCommands {
    Q_DECLARE_TR_FUNCTIONS(DeckCommands)

public:
    static const ShellCommandGroup& group();

private:
    static QVector<ShellCommandEntry> lineEntries();
    static QVector<ShellCommandEntry> cardEntries();
    static QVector<ShellCommandEntry> fileEntries();

    static bool open(ShellCall& call);
    static bool close(ShellCall& call);
    static bool flush(ShellCall& call);
    static bool info(ShellCall& call);
    static bool format(ShellCall& call);

    static bool title(ShellCall& call);
    static bool comment(ShellCall& call);
    static bool keyword(ShellCall& call);
    static bool key(ShellCall& call);
    static bool text(ShellCall& call);
    static bool lineBreak(ShellCall& call);
    static bool element(ShellCall& call);
    static bool feature(ShellCall& call);
    static bool nodal(ShellCall& call);
    static bool loadcase(ShellCall& call);
    static bool integers(ShellCall& call);
    static bool reals(ShellCall& call);
    static bool column(ShellCall& call);

    static bool sectionTable(ShellCall& call);
    static bool table(ShellCall& call);
    static bool grid(ShellCall& call);
    static bool formula(ShellCall& call);
    static bool solver(ShellCall& call);
    static bool process(ShellCall& call);
    static bool autoLoad(ShellCall& call);
    static bool pointLoad(ShellCall& call);
    static bool pointCurrent(ShellCall& call);

    static bool check(ShellCall& call);
    static bool show(ShellCall& call);
    static bool diff(ShellCall& call);
    static bool patch(ShellCall& call);
    static bool tables(ShellCall& call);

    static CFEDatLineWriter& writer();
    static bool writeCard(const cFeAbstractDatCard& card);
    /// Of about so many numbers, which may be millions.
    static bool writeCard(const ShellCall& call, const cFeAbstractDatCard& card, qint64 reals);
};
