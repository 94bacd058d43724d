#pragma once

#include <kdQCore/coHeatTreatmentData>

#include <QCoreApplication>

QT_BEGIN_NAMESPACE
class QIODevice;
QT_END_NAMESPACE

/// Files of heat-treatment processes: a document of the one element.
class HeatFile {
    Q_DECLARE_TR_FUNCTIONS(HeatFile)

public:
    /// Makes the stages of the field of application that the file names, and fills them. False, with \a error
    /// for the user (\a name stands for the file in it), where the file is broken or names what is not known.
    static bool read(QIODevice& device, const QString& name, coHeatTreatmentData& process, QString& error);
    static bool write(QIODevice& device, const coHeatTreatmentData& process);
};
