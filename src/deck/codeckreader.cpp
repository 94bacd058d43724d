#include "codeckreader.h"

#include "deckcardreader_p.h"
#include "deckcomments_p.h"
#include "deckkeyword_p.h"

#include <QIODevice>

#include <cstring>

namespace {

/// A table's name may follow its keyword at once; the parameter section's key "table" is followed by numbers.
bool isTableSection(const coDeckLine& line, int start)
{
    const QByteArray rest =
        QByteArray(line.begin + start, line.length() - start).replace(',', ' ').simplified();
    return rest == "0 0 2 1 1 0 0 1";
}

} // namespace

class coDeckReader::Private {
public:
    Private(QIODevice& deck, CFEDatLineWriter::datExtensionMode mode, Wanted wanted,
            const coDeckFindingSink& sink)
        : lines(deck, mode, wanted == Cards, sink)
    {
    }

    bool next(coDeckOption& option);
    void readOption(coDeckOption& option);

    DeckLines lines;

private:
    bool isComment() { return lines.ahead() && isComment(*lines.ahead()); }
    static bool isComment(const coDeckLine& line)
    {
        return line.kind == coDeckLine::Comment || line.kind == coDeckLine::Blank;
    }
    void readComments();
    bool isPointLoadAhead();
    void readKnown(coDeckOption& option, const DeckKeyword& keyword);
    void readNumber(coDeckOption& option, int start);
    void readSurplus(coDeckOption& option);
    void readOther(coDeckOption& option);

    DeckComments comments; ///< read, but not yet handed out
    coDeckOption pointLoad;
    QString pointLoadComponent;
    QString pointLoadComment;
};

bool coDeckReader::Private::next(coDeckOption& option)
{
    option = coDeckOption();
    if (comments.isEmpty() && pointLoad.lines == 0 && isComment())
        readComments();
    if (!comments.isEmpty() && isPointLoadAhead())
        comments.splitPointLoad(pointLoad, pointLoadComponent, pointLoadComment);
    const bool hasComments = !comments.isEmpty();
    if (hasComments)
        option = comments.option();
    comments = DeckComments();
    if (hasComments)
        return true;
    if (!lines.ahead())
        return false;
    option = pointLoad;
    readOption(option);
    pointLoad = coDeckOption();
    pointLoadComponent.clear();
    pointLoadComment.clear();
    return true;
}

void coDeckReader::Private::readComments()
{
    comments.option().kind = coDeckOption::Comments;
    while (isComment())
        comments.add(lines.take(comments.option()));
}

bool coDeckReader::Private::isPointLoadAhead()
{
    const DeckKeyword* keyword = lines.ahead() ? DeckKeyword::find(*lines.ahead()) : nullptr;
    return keyword && keyword->kind == coDeckOption::PointLoad;
}

void coDeckReader::Private::readOption(coDeckOption& option)
{
    // Before the line is taken, so that a finding about it has a name.
    if (lines.ahead()->kind == coDeckLine::Keyword)
        option.keyword = QString::fromLocal8Bit(lines.ahead()->bytes()).trimmed();
    const coDeckLine& line = lines.take(option);
    const DeckKeyword* keyword = line.kind == coDeckLine::Keyword ? DeckKeyword::find(line) : nullptr;
    if (keyword) {
        readKnown(option, *keyword);
    } else {
        if (line.kind != coDeckLine::Keyword)
            lines.error(option, 1, tr("keyword expected, found data."));
        readOther(option);
    }
}

void coDeckReader::Private::readKnown(coDeckOption& option, const DeckKeyword& keyword)
{
    const coDeckLine& line = lines.scanner().line();
    auto length = static_cast<int>(std::strlen(keyword.text));
    option.kind = keyword.kind;
    option.keyword = QString::fromLatin1(line.begin, length);
    const bool isFree = line.length() > length && line.begin[length] == ',';
    if (isFree)
        option.format = CFEDatLineWriter::free;
    const int start = length + (isFree ? 1 : 0);
    const qint64 errors = lines.errors();
    DeckCardReader reader(lines, option);
    switch (keyword.kind) {
    case coDeckOption::Title:
    case coDeckOption::LoadCase:
        option.name = QString::fromLocal8Bit(line.begin + start, line.length() - start);
        return readOther(option);
    case coDeckOption::Element:
    case coDeckOption::Feature:
    case coDeckOption::Nodal:
        readNumber(option, start);
        return readOther(option);
    case coDeckOption::Process:
        reader.readProcess();
        break;
    case coDeckOption::AutoLoad:
        reader.readAutoLoad();
        break;
    case coDeckOption::Solver:
        reader.readSolver();
        break;
    case coDeckOption::PointLoad:
        reader.readPointLoad(pointLoadComponent, pointLoadComment);
        break;
    case coDeckOption::PointCurrent:
        reader.readPointCurrent();
        break;
    default:
        if (isTableSection(line, start)) {
            option.kind = coDeckOption::TableSection;
            reader.readTableSection();
        } else {
            option.name = QString::fromLocal8Bit(line.begin + start, line.length() - start);
            if (isFree && lines.isDataAhead() && !lines.ahead()->isFree()) {
                // In fixed columns the comma is the name's.
                option.format = CFEDatLineWriter::fixed;
                option.name.prepend(QLatin1Char(','));
            }
            reader.readTable();
        }
    }
    if (lines.errors() > errors) {
        option.card.reset();
        reader.passOver();
    }
    readSurplus(option);
}

// "element" and its like are only ours with one number behind; otherwise some other option begins that way.
void coDeckReader::Private::readNumber(coDeckOption& option, int start)
{
    const coDeckLine& line = lines.scanner().line();
    coDeckFields fields(line, lines.mode(), option.format, start);
    if (fields.readInt(option.id) && fields.atEnd())
        return;
    option.kind = coDeckOption::Other;
    option.id = 0;
    option.keyword = QString::fromLocal8Bit(line.bytes()).trimmed();
}

void coDeckReader::Private::readSurplus(coDeckOption& option)
{
    if (!lines.isDataAhead())
        return;
    const qint64 first = lines.ahead()->number;
    qint64 count = 0;
    for (; lines.isDataAhead(); ++count)
        lines.take(option);
    option.card.reset();
    lines.errorInLine(option, first, tr("data lines that do not belong to the option: %1.").arg(count));
}

void coDeckReader::Private::readOther(coDeckOption& option)
{
    while (lines.isDataAhead() || isComment()) {
        while (lines.isDataAhead())
            lines.take(option);
        if (isComment())
            readComments();
        if (!lines.isDataAhead())
            return;
        option.lines += comments.option().lines;
        option.size += comments.option().size;
        comments = DeckComments();
    }
}

coDeckReader::coDeckReader(QIODevice& deck, const coDeckLayout& layout, Wanted wanted,
                           const coDeckFindingSink& sink)
    : d(std::make_unique<Private>(deck, layout.mode(), wanted, sink))
{
}

coDeckReader::~coDeckReader() = default;

bool coDeckReader::next(coDeckOption& option)
{
    return d->next(option);
}

bool coDeckReader::hasFailed() const
{
    return d->lines.scanner().hasFailed();
}

QString coDeckReader::errorText() const
{
    return d->lines.scanner().errorText();
}
