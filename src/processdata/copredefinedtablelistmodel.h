#pragma once

#include <kdQCore/kdDataTable>
#include <kdqcore_export.h>

#include <QAbstractListModel>
#include <QVector>

/// The predefined tables of a folder as a list for choice boxes, and the way of one of them into a project.
///
/// A predefined table is a file of table XML, one table each; its name is that of the table, or of the file
/// where the table has none. The model lists the names in the order of the locale and reads a table's values
/// only when they are asked for. Files that hold no table are left out, as are further tables of a name; the
/// log tells of both.
///
/// \code
/// coPredefinedTableListModel quenchants(installation + "/quenchants");
/// quenchants.setProjectFolder(project + "/tables");
/// comboBox->setModel(&quenchants);
/// data.ensureTableCopiedToProject(&quenchants); // so that the project stands on its own
/// \endcode
///
/// Lives in its thread.
class KDQCORE_EXPORT coPredefinedTableListModel : public QAbstractListModel {
    Q_OBJECT

public:
    enum e_Role : int {
        TableNameRole = Qt::UserRole, ///< QString; the same as Qt::DisplayRole
        FilePathRole                  ///< QString; in the system's spelling the tool tip
    };

    explicit coPredefinedTableListModel(const QString& folder = QString(), QObject* parent = nullptr);

    QString folder() const { return m_folder; }
    void setFolder(const QString& folder);
    /// Reads the folder anew.
    void reload();

    /// Where copyToProject() puts tables; made when the first one comes.
    QString projectFolder() const { return m_projectFolder; }
    void setProjectFolder(const QString& folder) { m_projectFolder = folder; }

    int rowCount(const QModelIndex& parent = QModelIndex()) const override;
    QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
    QHash<int, QByteArray> roleNames() const override;

    /// -1 where there is no such table.
    int rowOfTable(const QString& name) const;
    /// Null where there is no such table or its file cannot be read, which errorText() tells.
    QSharedPointer<const kdDataTable> table(const QString& name) const;

    /// Copies the table's file into the project folder. A file that is there already stays as it is: it may
    /// have been changed for the project. Nothing half written remains after a failure, which errorText()
    /// and the log tell.
    bool copyToProject(const QString& name);
    /// Of the last table() or copyToProject(), translated; empty where it went well.
    QString errorText() const { return m_errorText; }

private:
    struct Entry {
        QString name;
        QString filePath;
    };

    bool fail(const QString& text) const;

    QString m_folder;
    QString m_projectFolder;
    QVector<Entry> m_entries;
    mutable QString m_errorText;
};
