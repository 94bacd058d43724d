#include "kdcommanddispatcher.h"

#include <QCoreApplication>

#include <algorithm>

namespace {

class kdComList : public kdCommand {
    Q_DECLARE_TR_FUNCTIONS(kdComList)

public:
    using kdCommand::kdCommand;

    QString name() const override { return QStringLiteral("list"); }

    QString helpMessage() const override { return tr("Lists all commands."); }

    bool execute() override
    {
        if (!parameter().isEmpty()) {
            errorMessage(tr("The command 'list' takes no parameter, not '%1'.").arg(parameter()));
            return false;
        }
        const QList<QSharedPointer<kdCommand>> commands = kdCommandDispatcher::I().commands();
        int width = 0;
        for (const QSharedPointer<kdCommand>& command : commands)
            width = std::max(width, command->name().size());
        QStringList lines;
        for (const QSharedPointer<kdCommand>& command : commands)
            lines.append((command->name().leftJustified(width + 2) + command->helpMessage()).trimmed());
        setResult(lines.join(QLatin1Char('\n')));
        return true;
    }
};

class kdComLanguage : public kdCommand {
    Q_DECLARE_TR_FUNCTIONS(kdComLanguage)

public:
    using kdCommand::kdCommand;

    QString name() const override { return QStringLiteral("language"); }

    QString helpMessage() const override { return tr("Sets the language of the commands: %1.").arg(codes()); }

    bool allowUndo() override { return true; }

    bool execute() override
    {
        kdQLanguage::KDLANGUAGE language;
        if (!kdQLanguage::fromCode(parameter().trimmed(), language)) {
            errorMessage(tr("'%1' is no language code; there are: %2.").arg(parameter(), codes()));
            return false;
        }
        kdCommandDispatcher& dispatcher = kdCommandDispatcher::I();
        m_former = dispatcher.language();
        if (!dispatcher.setLanguage(language)) {
            errorMessage(tr("The texts of the language '%1' are not installed.").arg(parameter()));
            return false;
        }
        setResult(kdQLanguage::code(language));
        return true;
    }

    bool undo() override { return kdCommandDispatcher::I().setLanguage(m_former); }

private:
    static QString codes()
    {
        QStringList result;
        const QList<kdQLanguage::KDLANGUAGE> languages = kdQLanguage::languages();
        for (const kdQLanguage::KDLANGUAGE language : languages)
            result.append(kdQLanguage::code(language));
        return result.join(QLatin1String(", "));
    }

    kdQLanguage::KDLANGUAGE m_former = kdQLanguage::English;
};

} // namespace

QSharedPointer<kdCommand> kdCommandDispatcher::createComList(const QString& parameters)
{
    return QSharedPointer<kdComList>::create(parameters);
}

QSharedPointer<kdCommand> kdCommandDispatcher::createComLanguage(const QString& parameters)
{
    return QSharedPointer<kdComLanguage>::create(parameters);
}
