#include "kdunitsystem.h"

QString kdUnitSystem::symbol() const
{
    return QStringLiteral("-");
}
