#include "typedline.h"

using nPlatform::ConsoleKey;

namespace {

constexpr char16_t ctrl(char letter)
{
    return static_cast<char16_t>(letter - 'A' + 1);
}

constexpr char16_t backspace = '\b', tab = '\t', escape = 27, ctrlBackspace = 127;

char16_t controlOf(const ConsoleKey& key)
{
    const bool isControl =
        key.kind == ConsoleKey::Character && key.text.at(0).category() == QChar::Other_Control;
    return isControl && !key.isModified ? key.text.at(0).unicode() : u'\0';
}

} // namespace

TypedLine::TypedLine(const QStringList& earlier, const LineEditor::Completer& completer)
    : m_earlier(earlier), m_completer(completer), m_place(static_cast<int>(earlier.size()))
{
}

QString TypedLine::prompt(const QString& usual) const
{
    return m_isSearching ? tr("Search for '%1': ").arg(m_sought.text()) : usual;
}

TypedLine::State TypedLine::press(const ConsoleKey& key)
{
    State state = Typing;
    if (key.kind == ConsoleKey::Other || key.kind == ConsoleKey::Resized)
        return state;
    for (int i = 0; i < key.count && state == Typing; ++i)
        if (!m_isSearching || !goOnSearching(key))
            state = pressOnce(key);
    return state;
}

TypedLine::State TypedLine::pressOnce(const ConsoleKey& key)
{
    const EditedLine::Reach reach = key.isModified ? EditedLine::Word : EditedLine::Character;
    switch (key.kind) {
    case ConsoleKey::Character:
        return pressCharacter(key);
    case ConsoleKey::Left:
        m_line.goBack(reach);
        break;
    case ConsoleKey::Right:
        m_line.goOn(reach);
        break;
    case ConsoleKey::Up:
        recall(-1);
        break;
    case ConsoleKey::Down:
        recall(1);
        break;
    case ConsoleKey::Home:
        key.isModified ? m_line.cutBack(EditedLine::All) : m_line.goBack(EditedLine::All);
        break;
    case ConsoleKey::End:
        key.isModified ? m_line.cutOn(EditedLine::All) : m_line.goOn(EditedLine::All);
        break;
    case ConsoleKey::Delete:
        m_line.cutOn(reach);
        break;
    default:
        return Ended;
    }
    return Typing;
}

TypedLine::State TypedLine::pressCharacter(const ConsoleKey& key)
{
    const char16_t control = controlOf(key);
    if (control != u'\0')
        return pressControl(control);
    if (key.isModified)
        pressWithAlt(key.text.at(0).toLower().unicode());
    else
        m_line.insert(key.text);
    return Typing;
}

TypedLine::State TypedLine::pressControl(char16_t control)
{
    switch (control) {
    case '\r':
    case '\n':
        return Entered;
    case tab:
        return complete();
    case ctrl('C'):
        return Dropped;
    case ctrl('D'):
    case ctrl('Z'):
        if (m_line.text().isEmpty())
            return Ended;
        break;
    case ctrl('R'):
        beginSearch();
        return Typing;
    default:
        break;
    }
    edit(control);
    return Typing;
}

void TypedLine::edit(char16_t control)
{
    switch (control) {
    case ctrl('A'):
        return m_line.goBack(EditedLine::All);
    case ctrl('B'):
        return m_line.goBack(EditedLine::Character);
    case ctrl('D'):
        return m_line.cutOn(EditedLine::Character);
    case ctrl('E'):
        return m_line.goOn(EditedLine::All);
    case ctrl('F'):
        return m_line.goOn(EditedLine::Character);
    case backspace:
        return m_line.cutBack(EditedLine::Character);
    case ctrl('K'):
        return m_line.cutOn(EditedLine::All);
    case ctrl('N'):
        return recall(1);
    case ctrl('P'):
        return recall(-1);
    case ctrl('U'):
    case escape:
        m_line.goOn(EditedLine::All);
        return m_line.cutBack(EditedLine::All);
    case ctrl('W'):
    case ctrlBackspace:
        return m_line.cutBack(EditedLine::Word);
    case ctrl('Y'):
        return m_line.paste();
    default:
        return;
    }
}

void TypedLine::pressWithAlt(char16_t character)
{
    switch (character) {
    case 'b':
        return m_line.goBack(EditedLine::Word);
    case 'f':
        return m_line.goOn(EditedLine::Word);
    case 'd':
        return m_line.cutOn(EditedLine::Word);
    case backspace:
    case ctrlBackspace:
        return m_line.cutBack(EditedLine::Word);
    default:
        return;
    }
}

TypedLine::State TypedLine::complete()
{
    const LineEditor::Completion completion = m_completer(m_line.beforeCursor());
    if (completion.candidates.isEmpty())
        return Typing;
    if (completion.goesOn(m_line.beforeCursor())) {
        m_line.replaceFrom(completion.begin, completion.text);
        return Typing;
    }
    m_choice = completion.choice();
    return Choosing;
}

void TypedLine::recall(int step)
{
    const int newLine = static_cast<int>(m_earlier.size());
    if (m_place + step < 0 || m_place + step > newLine)
        return;
    if (m_place == newLine)
        m_unfinished = m_line.text();
    m_place += step;
    m_line.set(m_place == newLine ? m_unfinished : m_earlier.at(m_place));
}

void TypedLine::beginSearch()
{
    m_isSearching = true;
    m_sought = EditedLine();
    m_lineBeforeSearch = m_line;
    m_placeBeforeSearch = m_place;
}

/// What no line has is not taken up.
void TypedLine::search(int from, const EditedLine& sought)
{
    int place = from;
    while (place >= 0 && !m_earlier.at(place).contains(sought.text()))
        --place;
    if (place < 0)
        return;
    recall(place - m_place);
    m_sought = sought;
}

bool TypedLine::goOnSearching(const ConsoleKey& key)
{
    const int newest = static_cast<int>(m_earlier.size()) - 1;
    const char16_t control = controlOf(key);
    EditedLine sought = m_sought;
    if (control == ctrl('R')) {
        search(m_place - 1, sought);
    } else if (control == backspace) {
        sought.cutBack(EditedLine::Character);
        search(newest, sought);
    } else if (control == escape || control == ctrl('G')) {
        m_isSearching = false;
        m_line = m_lineBeforeSearch;
        m_place = m_placeBeforeSearch;
    } else if (control == u'\0' && key.kind == ConsoleKey::Character && !key.isModified) {
        sought.insert(key.text);
        search(qMin(m_place, newest), sought);
    } else {
        m_isSearching = false;
    }
    return m_isSearching || control == escape || control == ctrl('G');
}
