#include "cardlines.h"

CardLines& CardLines::ints(std::initializer_list<int> values)
{
    for (int value : values)
        add(m_writer.writeInt(value));
    return *this;
}

CardLines& CardLines::reals(std::initializer_list<double> values)
{
    for (double value : values)
        add(m_writer.writeDouble(value, false));
    return *this;
}

CardLines& CardLines::field(const QString& text)
{
    return add(m_writer.writeString(text, 0));
}

CardLines& CardLines::text(const QString& text)
{
    return add(m_writer.writeStringUnformatted(CFEDatLineWriter::singleLine(text)));
}

CardLines& CardLines::sectionKey(const char* key)
{
    return add(m_writer.writeParameterSectionKey(QString::fromLatin1(key)));
}

CardLines& CardLines::keywordLine(const char* keyword)
{
    return add(m_writer.writeKeywordLine(keyword));
}

CardLines& CardLines::comment(const QString& text)
{
    return add(m_writer.writeCommentLine(text));
}

CardLines& CardLines::end()
{
    return add(m_writer.writeLineBreak());
}

CardLines& CardLines::add(bool written)
{
    m_ok = m_ok && written;
    return *this;
}
