#include "shellcall.h"

#include "shellconsole.h"

#include <algorithm>

ShellCall::ShellCall(kdReporterInterface& reporter, const QStringList& arguments,
                     std::function<bool()> isStopped)
    : m_reporter(reporter), m_arguments(arguments), m_isStopped(std::move(isStopped))
{
}

bool ShellCall::readInt(int index, const QString& what, int& value) const
{
    bool isNumber = false;
    const int read = text(index).toInt(&isNumber);
    if (!isNumber)
        return fail(tr("%1 must be a whole number, not '%2'.").arg(what, text(index)));
    value = read;
    return true;
}

bool ShellCall::readReal(int index, const QString& what, double& value) const
{
    bool isNumber = false;
    const double read = text(index).toDouble(&isNumber);
    if (!isNumber)
        return fail(tr("%1 must be a number, not '%2'.").arg(what, text(index)));
    value = read;
    return true;
}

QString ShellCall::numberText(double value)
{
    constexpr int digits = 12;
    return QString::number(value, 'g', digits);
}

bool ShellCall::goOn(double fraction) const
{
    constexpr double almostDone = 0.999; // a full 1 would end the operation
    m_reporter.progress(qMin(fraction, almostDone));
    return !isStopped();
}

void ShellCall::show(const QString& text) const
{
    m_reporter.message(text, ShellConsole::Result);
}

void ShellCall::showAligned(const QVector<QStringList>& rows) const
{
    showAligned(rows.size(), [&rows](int row) { return rows.at(row); });
}

void ShellCall::showAligned(int rows, const std::function<QStringList(int)>& rowAt) const
{
    const ShellOperation operation(*this, tr("Showing rows: %1").arg(rows));
    QVector<int> widths;
    for (int row = 0; row < rows && goOn(0.5 * row / rows); ++row) {
        const QStringList cells = rowAt(row);
        widths.resize(cells.size());
        for (int column = 0; column < cells.size(); ++column)
            widths[column] = qMax(widths.at(column), cells.at(column).size());
    }
    for (int row = 0; row < rows && goOn(0.5 + 0.5 * row / rows); ++row) {
        QStringList cells = rowAt(row);
        for (int column = 0; column < cells.size(); ++column)
            cells[column] = cells.at(column).rightJustified(widths.at(column));
        show(cells.join(QLatin1String("  ")));
    }
}

void ShellCall::tell(const QString& text) const
{
    m_reporter.message(text, ShellConsole::Account);
}

void ShellCall::warn(const QString& text) const
{
    m_reporter.message(tr("Warning: %1").arg(text), ShellConsole::Warning);
}

bool ShellCall::fail(const QString& text) const
{
    m_hasFailed = true;
    if (!isStopped()) // else it failed because it was stopped
        m_reporter.errorMessage(text);
    return false;
}

ShellParameters& ShellParameters::add(const char* name, int values, std::function<bool(int)> take)
{
    m_parameters.append({QLatin1String(name), values, std::move(take)});
    return *this;
}

ShellParameters& ShellParameters::flag(const char* name, bool& value)
{
    return add(name, 0, [&value](int) { return value = true; });
}

ShellParameters& ShellParameters::integer(const char* name, int& value)
{
    return add(name, 1,
               [this, name, &value](int i) { return m_call.readInt(i, QLatin1String(name), value); });
}

ShellParameters& ShellParameters::real(const char* name, double& value)
{
    return reals(name, {&value});
}

ShellParameters& ShellParameters::reals(const char* name, const QVector<double*>& values)
{
    return add(name, values.size(), [this, name, values](int index) {
        return std::all_of(values.begin(), values.end(), [&](double* value) {
            return m_call.readReal(index++, QLatin1String(name), *value);
        });
    });
}

ShellParameters& ShellParameters::text(const char* name, QString& value)
{
    return add(name, 1, [this, &value](int index) {
        value = m_call.text(index);
        return true;
    });
}

bool ShellParameters::read()
{
    for (int index = m_first; index < m_call.count();) {
        const QString word = m_call.text(index++);
        Parameter* const parameter = find(word);
        if (parameter == nullptr)
            return m_call.fail(tr("'%1' is unknown here; possible are: %2.").arg(word, names()));
        if (parameter->isGiven)
            return m_call.fail(tr("'%1' is given twice.").arg(word));
        if (m_call.count() - index < parameter->values)
            return m_call.fail(tr("Too few values after '%1', which takes %2.")
                                   .arg(word, QString::number(parameter->values)));
        if (!parameter->take(index))
            return false;
        parameter->isGiven = true;
        index += parameter->values;
    }
    return true;
}

ShellParameters::Parameter* ShellParameters::find(const QString& name)
{
    const auto found = std::find_if(m_parameters.begin(), m_parameters.end(),
                                    [&name](const Parameter& parameter) { return parameter.name == name; });
    return found != m_parameters.end() ? &*found : nullptr;
}

QString ShellParameters::names() const
{
    QStringList names;
    for (const Parameter& parameter : m_parameters)
        names.append(parameter.name);
    return names.join(QLatin1String(", "));
}
