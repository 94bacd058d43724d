#pragma once

#include <kdQCore/kdCommand>

#include <QSharedPointer>
#include <QVector>

/// What undo and redo would do, for the texts of the menus: the dispatcher knows whether there is something
/// to undo, but not what it is.
class CommandHistory : public QObject {
    Q_OBJECT

public:
    CommandHistory();

    bool canUndo() const;
    bool canRedo() const;
    /// Of the command that is next; empty where there is none.
    QString undoText() const;
    QString redoText() const;

    void undo();
    void redo();

Q_SIGNALS:
    void signalChanged();

private:
    using Command = QSharedPointer<kdCommand>;

    void noteExecuted(const Command& command);
    void noteReverted(const Command& command);

    QVector<Command> m_executed; ///< oldest first
    QVector<Command> m_reverted; ///< the one undone last is last
};
