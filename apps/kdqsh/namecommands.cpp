#include "namecommands.h"

#include <kdQCore/coCheckAndCorrectName>
#include <kdQCore/coUniqueNameGenerator>
#include <kdQCore/nCreateObjectName>

const ShellCommandGroup& NameCommands::group()
{
    using Entry = ShellCommandEntry;
    constexpr int anyNumber = ShellCommand::anyNumber;
    static const ShellCommandGroup group{
        "name",
        "NameCommands",
        QT_TR_NOOP("Names of objects: what users see, and what is safe in decks and file names."),
        {
            {"internal", "DISPLAY [TAKEN]...",
             QT_TR_NOOP("Shows the internal name that an object of this display name gets."), 1, anyNumber,
             Entry::Query, internal},
            {"unique", "display|internal NAME [TAKEN]...",
             QT_TR_NOOP("Shows the name, with a counter where it is taken."), 2, anyNumber, Entry::Query,
             unique},
            {"check", "display|internal NAME [TAKEN]...",
             QT_TR_NOOP("Shows the name corrected by the rules, and what was wrong with it."), 2, anyNumber,
             Entry::Query, check},
            {"number", "BASE COUNT [TAKEN]...", QT_TR_NOOP("Shows numbered names that are not taken."), 2,
             anyNumber, Entry::Query, number},
        }};
    return group;
}

bool NameCommands::internal(ShellCall& call)
{
    call.show(nCreateObjectName::createUniqueInternalNameFromDisplayName(call.text(0), coInternalName(),
                                                                         call.textsFrom(1)));
    return true;
}

bool NameCommands::unique(ShellCall& call)
{
    bool isInternal = false;
    if (!readKind(call, isInternal))
        return false;
    const coTakenNames taken(call.textsFrom(2));
    if (isInternal)
        call.show(nCreateObjectName::createUniqueInternalName(call.text(1), taken));
    else
        call.show(nCreateObjectName::createUniqueDisplayName(call.text(1), coInternalName(), taken));
    return true;
}

bool NameCommands::check(ShellCall& call)
{
    bool isInternal = false;
    if (!readKind(call, isInternal))
        return false;
    QStringList remarks;
    call.show(coCheckAndCorrectName::checkAndCorrectName(
        call.text(1), call.textsFrom(2),
        isInternal ? coCheckAndCorrectName::eInternalName : coCheckAndCorrectName::eDisplayName, &remarks));
    for (const QString& remark : qAsConst(remarks))
        call.show(remark);
    return true;
}

bool NameCommands::number(ShellCall& call)
{
    int count = 0;
    if (!call.readInt(1, QStringLiteral("COUNT"), count))
        return false;
    if (count < 1)
        return call.fail(tr("COUNT must be at least 1, not %1.").arg(count));
    coUniqueNameGenerator names;
    names.reserve(call.textsFrom(2));
    const ShellOperation operation(call, tr("Numbering '%1'").arg(call.text(0)));
    for (int i = 0; i < count && call.goOn(static_cast<double>(i) / count); ++i)
        call.show(names.next(call.text(0)));
    return true;
}

bool NameCommands::readKind(const ShellCall& call, bool& isInternal)
{
    isInternal = call.is(0, "internal");
    return isInternal || call.is(0, "display")
        || call.fail(tr("'%1' is no kind of name; possible are display and internal.").arg(call.text(0)));
}
