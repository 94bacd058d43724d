#include "codeckcheck.h"

#include "codeckreader.h"

#include <QRegularExpression>

namespace {

// "define node set NAME", and some more.
constexpr int mostWordsBeforeName = 8;

QStringList wordsOf(const QString& text)
{
    static const QRegularExpression separators(QStringLiteral("[\\s,]+"));
    return text.split(separators, Qt::SkipEmptyParts);
}

QString asName(const QStringList& words)
{
    return words.join(QLatin1Char(' '));
}

} // namespace

bool coDeckCheck::run(QIODevice& deck)
{
    *this = coDeckCheck(m_layout);
    coDeckReader reader(deck, m_layout, coDeckReader::NoCards,
                        [this](const coDeckFinding& finding) { add(finding); });
    coDeckOption option;
    while (reader.next(option))
        note(option);
    if (reader.hasFailed())
        add({coDeckFinding::Error, 0, 0, QString(), reader.errorText()});
    checkReferences();
    return m_errors == 0;
}

void coDeckCheck::add(const coDeckFinding& finding)
{
    ++(finding.severity == coDeckFinding::Error ? m_errors : m_warnings);
    if (m_findings.size() < mostFindings)
        m_findings.append(finding);
}

void coDeckCheck::note(const coDeckOption& option)
{
    ++m_options;
    if (option.kind == coDeckOption::Table || option.kind == coDeckOption::FormulaTable)
        noteTable(option);
    if (option.tableReference != 0 || !option.nodeList.isEmpty())
        m_references.append({{coDeckFinding::Error, option.firstLine, 0, option.text(), QString()},
                             option.tableReference,
                             option.nodeList});
    if (option.kind == coDeckOption::Other)
        noteNames(wordsOf(option.keyword));
}

// A name is a word of the line, or all of its end: names may hold blanks.
void coDeckCheck::noteNames(QStringList words)
{
    for (int i = 1; i < words.size(); ++i)
        m_names.insert(words.at(i));
    for (int i = 0; i < mostWordsBeforeName && words.size() > 2; ++i) {
        words.removeFirst();
        m_names.insert(asName(words));
    }
}

void coDeckCheck::noteTable(const coDeckOption& option)
{
    const auto known = m_tableLines.constFind(option.id);
    if (known == m_tableLines.constEnd())
        m_tableLines.insert(option.id, option.firstLine);
    else
        add({coDeckFinding::Error, option.firstLine, 0, option.text(),
             tr("the id %1 is taken by the table of line %2.")
                 .arg(QString::number(option.id), QString::number(*known))});
}

void coDeckCheck::checkReferences()
{
    for (Reference& reference : m_references) {
        coDeckFinding& finding = reference.place;
        if (reference.table != 0 && !m_tableLines.contains(reference.table)) {
            finding.text = tr("the deck holds no table %1.").arg(reference.table);
            add(finding);
        }
        if (!reference.nodeList.isEmpty() && !m_names.contains(asName(wordsOf(reference.nodeList)))) {
            finding.severity = coDeckFinding::Warning;
            finding.text =
                tr("no keyword line of the deck names the node list '%1'.").arg(reference.nodeList);
            add(finding);
        }
    }
}
