#pragma once

#include "document.h"
#include "progressfile.h"

#include <QCoreApplication>

/// Makes a document of a file: finds out what kind of file it is, reads it and reports how far it has come.
class DocumentReader {
    Q_DECLARE_TR_FUNCTIONS(DocumentReader)

public:
    /// \a isStopped is asked now and then; once it says yes, read() gives up.
    DocumentReader(const kdReporterInterface& reporter, ProgressFile::StopCondition isStopped);

    /// Null where the file cannot be read; errorText() says why.
    QSharedPointer<Document> read(const QString& path);
    QString errorText() const { return m_errorText; }

private:
    using Result = QSharedPointer<Document>;

    Result readAny(QFile& file);
    Result readXml(QFile& file);
    Result readTableXml(QFile& file, const QString& element);
    Result readHeatTreatment(QFile& file);
    Result readDeck(QFile& file);
    Result readText(QFile& file);
    QString readComments(QFile& file);
    Result tableDocument(const QFile& file, kdDataTable table) const;
    Result fail(const QString& errorText);

    const kdReporterInterface& m_reporter;
    ProgressFile::StopCondition m_isStopped;
    QString m_errorText;
};
