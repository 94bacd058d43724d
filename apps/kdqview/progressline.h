#pragma once

#include <QWidget>

class kdReporter;

QT_BEGIN_NAMESPACE
class QLabel;
class QProgressBar;
class QToolButton;
QT_END_NAMESPACE

/// The status bar's line for a running operation: what it is, how far it has come, and Cancel. Shown while
/// one runs.
class ProgressLine : public QWidget {
    Q_OBJECT

public:
    explicit ProgressLine(const kdReporter& reporter, QWidget* parent = nullptr);

protected:
    void changeEvent(QEvent* event) override;

private:
    void start(const QString& text);
    void setFraction(double fraction);
    void retranslateUi();

    QLabel* m_text;
    QProgressBar* m_bar;
    QToolButton* m_cancel;
};
