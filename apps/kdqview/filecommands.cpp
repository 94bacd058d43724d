#include "filecommands.h"

#include "documentreader.h"

#include <QDir>
#include <QFileInfo>

QString OpenCommand::helpMessage() const
{
    return tr("Opens a table, a heat treatment or a deck. Usage: open FILE");
}

QString OpenCommand::text() const
{
    return tr("open '%1'").arg(QFileInfo(parameter()).fileName());
}

bool OpenCommand::execute()
{
    Workspace& workspace = Workspace::I();
    if (parameter().isEmpty() || !workspace.find(parameter()).isNull())
        return fail(parameter().isEmpty() ? helpMessage() : tr("'%1' is open.").arg(parameter()));
    if (m_document.isNull()) {
        DocumentReader reader(*this, [this] { return stopRequested(); });
        m_document = reader.read(QFileInfo(parameter()).absoluteFilePath());
        if (m_document.isNull())
            return fail(reader.errorText());
    }
    workspace.insert(workspace.documents().size(), m_document);
    message(tr("Opened '%1': %2.").arg(m_document->fileName(), m_document->summary()), 1);
    return true;
}

bool OpenCommand::undo()
{
    Workspace::I().remove(*m_document);
    return true;
}

QString CloseCommand::helpMessage() const
{
    return tr("Closes a document. Usage: close DOCUMENT");
}

QString CloseCommand::text() const
{
    const auto document = m_document.isNull() ? Workspace::I().find(parameter().toInt()) : m_document;
    return document.isNull() ? tr("close") : tr("close '%1'").arg(document->fileName());
}

bool CloseCommand::execute()
{
    m_document = Workspace::I().find(parameter().toInt());
    if (m_document.isNull())
        return fail(tr("No document has the number '%1'.").arg(parameter()));
    m_index = Workspace::I().indexOf(*m_document);
    Workspace::I().remove(*m_document);
    return true;
}

bool CloseCommand::undo()
{
    Workspace::I().insert(m_index, m_document);
    return true;
}
