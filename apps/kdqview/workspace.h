#pragma once

#include "document.h"

/// The open documents. Made once, in main; commands reach it through I(), as the dispatcher's factories
/// cannot carry it. Only commands change it.
class Workspace : public QObject {
    Q_OBJECT

public:
    using DocumentPointer = QSharedPointer<Document>;

    Workspace();
    ~Workspace() override;

    static Workspace& I();

    const QVector<DocumentPointer>& documents() const { return m_documents; }
    /// Null where no open document has the number, or the path.
    DocumentPointer find(int number) const;
    DocumentPointer find(const QString& path) const;
    int indexOf(const Document& document) const;

    void insert(int index, const DocumentPointer& document);
    void remove(const Document& document);

Q_SIGNALS:
    void signalInserted(Document* document);
    /// The document is no longer in the list, but still exists.
    void signalRemoved(Document* document, int formerIndex);

private:
    QVector<DocumentPointer> m_documents;
};
