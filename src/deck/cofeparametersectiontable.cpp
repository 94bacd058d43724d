#include "cofeparametersectiontable.h"

#include "cardlines.h"

bool coFeParameterSectionTable::write(CFEDatLineWriter& writer) const
{
    CardLines(writer).sectionKey("table").ints({0, 0, 2, 1, 1, 0, 0, 1}).end();
    return true;
}

coFeParameterSectionTable::~coFeParameterSectionTable() = default;
