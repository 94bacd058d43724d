#pragma once

#include <QTreeWidget>

class Document;

/// The open documents and their sheets.
class DocumentTree : public QTreeWidget {
    Q_OBJECT

public:
    explicit DocumentTree(QWidget* parent = nullptr);

    /// Does not tell signalChosen().
    void setCurrent(const Document* document, int sheet);

Q_SIGNALS:
    void signalChosen(Document* document, int sheet);

protected:
    void changeEvent(QEvent* event) override;

private:
    void fill();
    void addDocument(Document& document);
    void tell(const QTreeWidgetItem* item);

    bool m_isFilling = false;
    int m_currentNumber = 0; ///< of the document
    int m_currentSheet = 0;
};
