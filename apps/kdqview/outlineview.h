#pragma once

#include <QPointer>
#include <QTreeWidget>

class Document;

/// The list of what a document holds beside its tables: the options of a deck, the stages of a process.
class OutlineView : public QTreeWidget {
    Q_OBJECT

public:
    explicit OutlineView(QWidget* parent = nullptr);

    /// Null: shows nothing.
    void setDocument(Document* document);

Q_SIGNALS:
    /// Somebody clicked on what has a table of its own.
    void signalSheetChosen(Document* document, int sheet);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fill();

    QPointer<Document> m_document;
};
