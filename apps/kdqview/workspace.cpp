#include "workspace.h"

#include <QFileInfo>

#include <algorithm>

namespace {
Workspace* workspace = nullptr;
}

Workspace::Workspace()
{
    workspace = this;
}

Workspace::~Workspace()
{
    workspace = nullptr;
}

Workspace& Workspace::I()
{
    Q_ASSERT(workspace != nullptr);
    return *workspace;
}

QSharedPointer<Document> Workspace::find(int number) const
{
    for (const DocumentPointer& document : m_documents)
        if (document->number() == number)
            return document;
    return {};
}

QSharedPointer<Document> Workspace::find(const QString& path) const
{
    const QFileInfo wanted(path);
    for (const DocumentPointer& document : m_documents)
        if (QFileInfo(document->path()) == wanted)
            return document;
    return {};
}

int Workspace::indexOf(const Document& document) const
{
    const auto found =
        std::find_if(m_documents.begin(), m_documents.end(),
                     [&document](const DocumentPointer& candidate) { return candidate.data() == &document; });
    return found != m_documents.end() ? int(found - m_documents.begin()) : -1;
}

void Workspace::insert(int index, const DocumentPointer& document)
{
    m_documents.insert(qBound(0, index, m_documents.size()), document);
    Q_EMIT signalInserted(document.data());
}

void Workspace::remove(const Document& document)
{
    const int index = indexOf(document);
    if (index < 0)
        return;
    const DocumentPointer removed = m_documents.takeAt(index);
    Q_EMIT signalRemoved(removed.data(), index);
}
