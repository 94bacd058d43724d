#pragma once

#include <kdQCore/kdReporterInterface>

#include <QCoreApplication>
#include <QStringList>
#include <QVector>

#include <functional>

/// One call of a command: its arguments, read with clear errors, and the way back to the user.
class ShellCall {
    Q_DECLARE_TR_FUNCTIONS(ShellCall)

public:
    /// \a isStopped tells whether the user wants the command to end early.
    ShellCall(kdReporterInterface& reporter, const QStringList& arguments, std::function<bool()> isStopped);

    /// The same call with other arguments.
    ShellCall with(const QStringList& arguments) const
    {
        return ShellCall(m_reporter, arguments, m_isStopped);
    }

    int count() const { return m_arguments.size(); }
    /// Empty beyond the last argument.
    QString text(int index) const { return m_arguments.value(index); }
    /// The arguments from \a first on, with a blank between.
    QString textFrom(int first) const { return textsFrom(first).join(QLatin1Char(' ')); }
    QStringList textsFrom(int first) const { return m_arguments.mid(first); }
    bool is(int index, const char* keyword) const { return text(index) == QLatin1String(keyword); }

    // These report and return false where the argument is no such number; \a what names it in the report.
    bool readInt(int index, const QString& what, int& value) const;
    bool readReal(int index, const QString& what, double& value) const;

    /// A number as results show it.
    static QString numberText(double value);

    kdReporterInterface& reporter() const { return m_reporter; }
    /// Whether to end early: a command that may take long asks now and then, and returns false. What it
    /// changed is taken back, and nothing more is reported.
    bool isStopped() const { return m_isStopped(); }
    const std::function<bool()>& stopCondition() const { return m_isStopped; }
    /// Shows how much of the running operation is done, 0 to 1; false where the command shall stop.
    bool goOn(double fraction) const;
    /// goOn() for what asks through a function; for as long as the call lives.
    std::function<bool(double)> goOnCondition() const
    {
        return [this](double fraction) { return goOn(fraction); };
    }
    /// What the user asked for.
    void show(const QString& text) const;
    /// Rows of a table, its columns right-aligned; every row has the cells of the first.
    void showAligned(const QVector<QStringList>& rows) const;
    /// The same of rows that are made twice rather than kept, which may be millions.
    void showAligned(int rows, const std::function<QStringList(int row)>& rowAt) const;
    /// What was done, left out in quiet runs.
    void tell(const QString& text) const;
    /// What was done although something seems wrong.
    void warn(const QString& text) const;
    /// Reports an error and returns false.
    bool fail(const QString& text) const;
    bool hasFailed() const { return m_hasFailed; }

private:
    kdReporterInterface& m_reporter;
    QStringList m_arguments;
    std::function<bool()> m_isStopped;
    mutable bool m_hasFailed = false;
};

/// What takes long, as the user is told: from here to the end of the object's life.
class ShellOperation {
public:
    ShellOperation(const ShellCall& call, const QString& text) : m_call(call)
    {
        m_call.reporter().startOperation(text);
    }
    ~ShellOperation() { m_call.reporter().finishOperation(m_outcome); }
    Q_DISABLE_COPY(ShellOperation)

    /// Told at the end; nothing where none is set.
    void setOutcome(const QString& text) { m_outcome = text; }

private:
    const ShellCall& m_call;
    QString m_outcome;
};

/// The optional "name value" pairs and single words after a command's fixed arguments, in any order.
///
/// \code
/// int steps = 0;
/// bool is3d = false;
/// if (!ShellParameters(call, 1).integer("steps", steps).flag("3d", is3d).read())
///     return false;
/// \endcode
class ShellParameters {
    Q_DECLARE_TR_FUNCTIONS(ShellParameters)

public:
    ShellParameters(const ShellCall& call, int first) : m_call(call), m_first(first) { }

    ShellParameters& flag(const char* name, bool& value);
    ShellParameters& integer(const char* name, int& value);
    ShellParameters& real(const char* name, double& value);
    /// As many values as \a values has places.
    ShellParameters& reals(const char* name, const QVector<double*>& values);
    ShellParameters& text(const char* name, QString& value);
    /// Any other: \a take reads the given number of arguments from an index on, and reports what is wrong.
    ShellParameters& add(const char* name, int values, std::function<bool(int index)> take);

    /// Reports the first fault: an unknown word, one given twice, a missing or malformed value.
    bool read();

private:
    struct Parameter {
        QString name;
        int values;
        std::function<bool(int index)> take; ///< reads its values from \a index on
        bool isGiven = false;
    };

    Parameter* find(const QString& name);
    QString names() const;

    const ShellCall& m_call;
    int m_first;
    QVector<Parameter> m_parameters;
};
