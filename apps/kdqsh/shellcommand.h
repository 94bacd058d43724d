#pragma once

#include "shellcall.h"
#include "shelldeck.h"
#include "shellformulas.h"
#include "shellprocesses.h"
#include "shelltables.h"

#include <kdQCore/kdCommand>

#include <QVector>

#include <optional>

/// One row of a group's table of commands.
struct ShellCommandEntry {
    /// What a command changes, and so how it is taken back.
    enum Effect {
        Query, ///< nothing of the session; stays out of the undo list
        ChangesTables,
        ChangesParameters,
        ChangesProcesses,
        WritesDeck, ///< lines of the open deck
        CannotUndo
    };

    const char* name;
    const char* usage;   ///< the arguments: capitals stand for values, brackets for what may be left out
    const char* summary; ///< one line, to be translated in the group's context
    int minimum;         ///< number of arguments
    int maximum;
    Effect effect;
    bool (*run)(ShellCall& call);
};

/// The commands that share their first word.
struct ShellCommandGroup {
    const char* name;    ///< without another word it stands for the entry with an empty name, if there is one
    const char* context; ///< of translation
    const char* summary;
    QVector<ShellCommandEntry> entries;

    const ShellCommandEntry* find(const QString& name) const;
    QString usage(const ShellCommandEntry& entry) const;
    QString summaryOf(const ShellCommandEntry& entry) const;
    QString translatedSummary() const;
    QStringList names() const;
};

/// A command of the shell: finds its row by the first word of its parameters, checks the number of arguments,
/// runs it, and takes back what it changed.
class ShellCommand : public kdCommand {
    Q_OBJECT

public:
    static constexpr int anyNumber = 1 << 20;

    ShellCommand(const ShellCommandGroup& group, const QString& parameter);

    /// Whether it changes nothing, so that it need not be remembered.
    bool isQuery() const;

    QString name() const override;
    QString helpMessage() const override;
    bool allowStop() override { return true; }
    bool allowUndo() override;
    bool execute() override;
    bool undo() override;

private:
    bool run(ShellCall& call);
    bool isStopped();
    bool takeBackStopped();

    const ShellCommandGroup& m_group;
    const ShellCommandEntry* m_entry = nullptr;
    QStringList m_arguments;
    QString m_wordsError;
    ShellTables m_tablesBefore;
    ShellFormulas::Change m_parameterChange;
    ShellProcesses m_processesBefore;
    std::optional<ShellDeck::Mark> m_deckBefore;
};
