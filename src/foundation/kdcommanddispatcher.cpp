#include "kdcommanddispatcher.h"

#include "kdreporter.h"
#include "kdsingleton_p.h"
#include "platform.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QMap>
#include <QPointer>
#include <QRegularExpression>
#include <QTranslator>

kdCommandDispatcher* kdCommandDispatcher::m_Instance = nullptr;

namespace {

QStringList translationFolders()
{
    const QString application = QCoreApplication::applicationDirPath();
    QStringList folders{application + QLatin1String("/translations"),
                        application + QLatin1String("/../share/kdQCore/translations")};
    const QString library = nPlatform::moduleFolder();
    if (!library.isEmpty())
        folders << library + QLatin1String("/" KDQCORE_TRANSLATIONS_FROM_LIBRARY);
    return folders;
}

std::unique_ptr<QTranslator> loadTranslator(const QString& fileName)
{
    const QStringList folders = translationFolders();
    for (const QString& folder : folders) {
        auto translator = std::make_unique<QTranslator>();
        const QString path = folder + QLatin1Char('/') + fileName;
        if (QFileInfo::exists(path) && translator->load(path))
            return translator;
    }
    return nullptr;
}

} // namespace

/// Lets a command report to the dispatcher's receivers for one run; links that it had before stay.
class kdCommandDispatcher::ReporterLink {
public:
    ReporterLink(kdCommand& command, const QList<kdReporter*>& receivers) : m_command(command)
    {
        const QList<kdReporter*> before = command.messageReceivers();
        for (kdReporter* receiver : receivers) {
            if (before.contains(receiver))
                continue;
            command.startReportingTo(*receiver);
            m_added.append(receiver);
        }
    }

    ~ReporterLink()
    {
        for (const QPointer<kdReporter>& receiver : qAsConst(m_added))
            if (receiver)
                m_command.stopReportingTo(*receiver);
    }

    Q_DISABLE_COPY(ReporterLink)

private:
    kdCommand& m_command;
    QList<QPointer<kdReporter>> m_added;
};

kdCommandDispatcher::kdCommandDispatcher()
{
    qRegisterMetaType<QSharedPointer<kdCommand>>();
    registerInternalCommands();
}

kdCommandDispatcher::~kdCommandDispatcher() = default;

void kdCommandDispatcher::createInstance()
{
    KD_SINGLETON(kdCommandDispatcher, kdLog::Command).create(m_Instance, [] {
        return new kdCommandDispatcher;
    });
}

void kdCommandDispatcher::removeInstance()
{
    KD_SINGLETON(kdCommandDispatcher, kdLog::Command).remove(m_Instance, [](auto* instance) {
        delete instance;
    });
}

bool kdCommandDispatcher::created()
{
    return m_Instance != nullptr;
}

kdCommandDispatcher& kdCommandDispatcher::I()
{
    return KD_SINGLETON(kdCommandDispatcher, kdLog::Command).access(m_Instance, []() -> kdCommandDispatcher& {
        static kdCommandDispatcher* const standIn = [] {
            auto* instance = new kdCommandDispatcher;
            instance->m_factories.clear();
            return instance;
        }();
        return *standIn;
    });
}

bool kdCommandDispatcher::registerCommand(Factory factory)
{
    if (!factory || m_factories.contains(factory))
        return false;
    m_factories.append(factory);
    return true;
}

void kdCommandDispatcher::registerInternalCommands()
{
    registerCommand(&kdCommandDispatcher::createComList);
    registerCommand(&kdCommandDispatcher::createComLanguage);
}

QSharedPointer<kdCommand> kdCommandDispatcher::getCommand(const QString& name, const QString& parameters)
{
    for (const Factory factory : qAsConst(m_factories)) {
        QSharedPointer<kdCommand> command = factory(parameters);
        if (command && command->name() == name)
            return command;
    }
    return {};
}

QList<QSharedPointer<kdCommand>> kdCommandDispatcher::commands() const
{
    QMap<QString, QSharedPointer<kdCommand>> byName;
    for (const Factory factory : m_factories) {
        const QSharedPointer<kdCommand> command = factory(QString());
        if (command && !byName.contains(command->name()))
            byName.insert(command->name(), command);
    }
    return byName.values();
}

bool kdCommandDispatcher::undoAvailable() const
{
    return !m_undoList.isEmpty() && m_undoList.constLast()->allowUndo();
}

bool kdCommandDispatcher::redoAvailable() const
{
    return !m_redoList.isEmpty();
}

kdQLanguage::KDLANGUAGE kdCommandDispatcher::language() const
{
    return m_language;
}

bool kdCommandDispatcher::execute(const QString& line)
{
    const QPointer<kdCommandDispatcher> self(this);
    const QStringList pieces = line.split(QLatin1Char(';'));
    for (const QString& piece : pieces)
        if (!self || !executeSingle(piece.trimmed()))
            return false;
    return true;
}

bool kdCommandDispatcher::executeSingle(const QString& line)
{
    if (line.isEmpty())
        return true;
    static const QRegularExpression whiteSpace(QStringLiteral("\\s+"));
    const QRegularExpressionMatch gap = whiteSpace.match(line);
    const QString name = gap.hasMatch() ? line.left(gap.capturedStart()) : line;
    const QString parameters = gap.hasMatch() ? line.mid(gap.capturedEnd()) : QString();
    const QSharedPointer<kdCommand> command = getCommand(name, parameters);
    if (command)
        return execute(command);
    errorMessage(parameters.isEmpty() ? tr("Unknown command: >%1<!").arg(name)
                                      : tr("Unknown command: >%1 %2<!").arg(name, parameters));
    return false;
}

bool kdCommandDispatcher::execute(QSharedPointer<kdCommand> command)
{
    if (!command)
        return true;
    const ReporterLink link(*command, messageReceivers());
    // A command may execute others, and may remove the dispatcher.
    const QPointer<kdCommandDispatcher> self(this);
    kdCommand* const outer = m_currentCommand;
    m_currentCommand = command.data();
    const bool succeeded = command->slotExecute();
    if (!self)
        return succeeded;
    m_currentCommand = outer;
    if (!succeeded)
        return false;

    Q_EMIT signalCommandExecuted(command);
    if (!self)
        return true;
    const bool couldUndo = undoAvailable();
    m_undoList.append(command);
    if (undoAvailable() != couldUndo)
        Q_EMIT signalUndoEnabled(!couldUndo);
    return true;
}

bool kdCommandDispatcher::undo(QSharedPointer<kdCommand> command)
{
    if (!command)
        return false;
    const ReporterLink link(*command, messageReceivers());
    const QPointer<kdCommandDispatcher> self(this);
    if (!command->slotUndo())
        return false;
    if (!self)
        return true;
    // A caller may undo any command: it must not stay on the undo list, where it could never be undone again.
    m_undoList.removeOne(command);
    Q_EMIT signalCommandReverted(command);
    if (self)
        m_redoList.prepend(command);
    return true;
}

bool kdCommandDispatcher::slotUndo()
{
    if (m_undoList.isEmpty())
        return false;
    const QPointer<kdCommandDispatcher> self(this);
    const QSharedPointer<kdCommand> command = m_undoList.takeLast();
    const bool succeeded = command->allowUndo() && undo(command);
    if (!self)
        return succeeded;
    if (!succeeded) {
        m_undoList.append(command);
        return false;
    }
    Q_EMIT signalUndoEnabled(undoAvailable());
    if (self)
        Q_EMIT signalRedoEnabled(redoAvailable());
    return true;
}

bool kdCommandDispatcher::slotRedo()
{
    if (m_redoList.isEmpty())
        return false;
    return execute(m_redoList.takeFirst());
}

bool kdCommandDispatcher::slotStop()
{
    return m_currentCommand && m_currentCommand->slotStop();
}

bool kdCommandDispatcher::setLanguage(const kdQLanguage::KDLANGUAGE& language)
{
    const QString code = kdQLanguage::code(language);
    if (code.isEmpty() || !QCoreApplication::instance())
        return false;
    std::unique_ptr<QTranslator> translator = loadTranslator(QStringLiteral("%commands_%2.qm").arg(code));
    if (!translator && language != kdQLanguage::English)
        return false;
    m_translator = std::move(translator); // a translator that dies leaves the application by itself
    if (m_translator)
        QCoreApplication::installTranslator(m_translator.get());
    m_language = language;
    return true;
}
