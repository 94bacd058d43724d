#pragma once

#include "figure.h"
#include "tablemodel.h"

#include <QDateTime>
#include <QSharedPointer>
#include <QStringList>
#include <QVector>

class kdReporterInterface;

/// What a file holds beside its tables, for a list beside them: the options of a deck, the stages of a
/// process.
struct Outline {
    struct Row {
        QStringList cells;
        int sheet = -1; ///< the table that belongs to it
    };
    QStringList titles;
    QVector<Row> rows;
};

/// An open file: one or more tables, its sheets. The kinds of files derive from it.
///
/// A document knows whether it differs from its file: every change gives it a new state, undoing the change
/// gives it the former state back, and it is modified while its state is not the one that was saved.
class Document : public QObject {
    Q_OBJECT

public:
    explicit Document(const QString& path);
    ~Document() override;

    /// Identifies the document in commands; never used again in the same run.
    int number() const { return m_number; }
    QString path() const { return m_path; }
    QString fileName() const;

    int sheetCount() const { return m_sheets.size(); }
    /// Null for an index out of range.
    TableModel* sheet(int index) const { return m_sheets.value(index).data(); }
    virtual QString sheetName(int index) const;
    /// Empty for files that hold nothing but tables.
    virtual Outline outline() const;
    /// What a sheet looks like: the given columns over its first, all of them for none. False where that
    /// makes no picture, \a error says why.
    virtual bool makeFigure(int sheet, const QVector<int>& columns, Figure& figure, QString& error) const;
    /// For people: "deck, options: 12, tables: 4".
    virtual QString summary() const = 0;
    /// Of the icon in the resources.
    virtual QString iconPath() const = 0;

    /// Of the names under which it can be saved; the ending decides on the form. None for what cannot be.
    virtual QStringList fileEndings() const = 0;
    /// Replaces the file, or leaves it as it was. False where it could not be written, \a error says why.
    bool save(const QString& path, const kdReporterInterface& reporter, QString& error);
    /// Whether somebody else wrote to the file since it was read or saved.
    bool isChangedOnDisk() const;

    bool isModified() const { return m_state != m_savedState; }
    int state() const { return m_state; }
    void setState(int state);
    /// A state that no document had before.
    static int newState();

Q_SIGNALS:
    /// Name, path or isModified() are others.
    void signalTitleChanged();

protected:
    TableModel& addSheet(kdDataTable table, TableModel::Access access);
    virtual bool write(QIODevice& device, const QString& path) const = 0;

private:
    int m_number;
    int m_state;
    int m_savedState;
    QString m_path;
    QDateTime m_fileTime;
    QVector<QSharedPointer<TableModel>> m_sheets;
};
