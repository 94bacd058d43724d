#pragma once

#include "viewcommand.h"

/// "open FILE": reads a file and shows it. Can be stopped. Undone it closes the document, but keeps it, so
/// that redo need not read the file again.
class OpenCommand : public ViewCommand {
    Q_OBJECT

public:
    using ViewCommand::ViewCommand;

    QString name() const override { return QStringLiteral("open"); }
    QString helpMessage() const override;
    QString text() const override;
    bool allowStop() override { return true; }
    bool execute() override;
    bool undo() override;

private:
    Workspace::DocumentPointer m_document;
};

/// "close DOCUMENT": the document's number. Undone it shows the document again as it was.
class CloseCommand : public ViewCommand {
    Q_OBJECT

public:
    using ViewCommand::ViewCommand;

    QString name() const override { return QStringLiteral("close"); }
    QString helpMessage() const override;
    QString text() const override;
    bool execute() override;
    bool undo() override;

private:
    Workspace::DocumentPointer m_document;
    int m_index = 0;
};
