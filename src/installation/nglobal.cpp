#include "nglobal.h"

QString nGlobal::kaldoranRemapName()
{
    return QStringLiteral("Kaldoran Remap");
}

QString nGlobal::kaldoranMultimeshName()
{
    return QStringLiteral("Kaldoran Multimesh");
}

QString nGlobal::kaldoranUtilitiesName()
{
    return QStringLiteral("Kaldoran.utilities");
}

QString nGlobal::kaldoranUtilitiesVersion()
{
    return QStringLiteral("2018");
}
