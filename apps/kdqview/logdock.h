#pragma once

#include <QDockWidget>

class kdReporter;

QT_BEGIN_NAMESPACE
class QAction;
class QTreeWidget;
QT_END_NAMESPACE

/// The messages of the reporter network, newest last. The more important a message, the more it stands out;
/// an error brings the dock to the front.
class LogDock : public QDockWidget {
    Q_OBJECT

public:
    explicit LogDock(const kdReporter& reporter, QWidget* parent = nullptr);

    void addError(const QString& text);
    /// The higher the level, the less important.
    void addMessage(const QString& text, int level);

    int count() const;
    QString lastText() const;

protected:
    void changeEvent(QEvent* event) override;

private:
    void add(const QString& icon, const QColor& colour, const QString& text);
    void copySelected() const;
    void retranslateUi();

    QTreeWidget* m_list;
    QAction* m_copy;
    QAction* m_clear;
};
