#include "deckkeyword_p.h"

#include <algorithm>
#include <iterator>

namespace {

constexpr DeckKeyword keywords[] = {
    {"autoforge", coDeckOption::Process, false},
    {"auto load", coDeckOption::AutoLoad, true},
    {"element", coDeckOption::Element, false},
    {"feature", coDeckOption::Feature, false},
    {"loadcase", coDeckOption::LoadCase, false},
    {"nodal", coDeckOption::Nodal, false},
    {"point current", coDeckOption::PointCurrent, true},
    {"point load", coDeckOption::PointLoad, true},
    {"solver", coDeckOption::Solver, true},
    {"table", coDeckOption::Table, false},
    {"title", coDeckOption::Title, false},
};

bool isBlank(char c)
{
    return c == ' ' || c == '\t';
}

} // namespace

bool DeckKeyword::begins(const coDeckLine& line, const char* text)
{
    const uint length = qstrlen(text);
    return line.length() >= static_cast<int>(length) && qstrnicmp(line.begin, text, length) == 0;
}

const DeckKeyword* DeckKeyword::find(const coDeckLine& line)
{
    const auto found = std::find_if(std::begin(keywords), std::end(keywords), [&line](const DeckKeyword& k) {
        return begins(line, k.text)
            && (!k.isWholeLine || std::all_of(line.begin + qstrlen(k.text), line.end, isBlank));
    });
    return found == std::end(keywords) ? nullptr : found;
}
