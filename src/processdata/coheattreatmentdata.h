#pragma once

#include "coenum.h"
#include "coheattreatmentstage.h"

#include <QHash>
#include <QList>
#include <QMap>
#include <QStringList>

QT_BEGIN_NAMESPACE
class QXmlStreamReader;
class QXmlStreamWriter;
QT_END_NAMESPACE

/// A heat-treatment process: its field of application and the stages that the solver runs one after another.
///
/// \code
/// coHeatTreatmentData data(nHeatTreatment::CaseHardening);
/// nHeatTreatment::coHeatTreatmentDataFactory::setup(data);
/// data.getStage(1)->setDuration(kdUnitValue(4.0, hours));
/// coHeatTreatmentData::Xml::Writer::writeXml(writer, data);
/// \endcode
///
/// The object owns its stages. Pointers to them that are handed out see and make changes; a copy of the
/// object has stages of its own. Two objects are equal if field and stages are. Not thread-safe.
class KDQCORE_EXPORT coHeatTreatmentData {
public:
    using StagePointer = QSharedPointer<coHeatTreatmentStage>;
    class Xml;

    explicit coHeatTreatmentData(nHeatTreatment::e_FieldOfApplication field = nHeatTreatment::InvalidField);
    coHeatTreatmentData(const coHeatTreatmentData& other);
    coHeatTreatmentData(coHeatTreatmentData&& other) noexcept;
    coHeatTreatmentData& operator=(const coHeatTreatmentData& other);
    coHeatTreatmentData& operator=(coHeatTreatmentData&& other) noexcept;
    virtual ~coHeatTreatmentData();

    /// Over FieldOfApplicationEnumData, with -1 as the invalid value.
    coEnum fieldOfApplication() const;
    /// The stages stay: coHeatTreatmentDataFactory makes those of the field.
    void setFieldOfApplication(nHeatTreatment::e_FieldOfApplication field) { m_field = field; }

    /// In the order in which they run. Null pointers are left out; of stages with the same index the first is
    /// found by it, and the object is not valid.
    void setStages(const QList<StagePointer>& stages);
    const QList<StagePointer>& stages() const { return m_stages; }
    /// Null where no stage has this index.
    StagePointer getStage(int index) const { return m_stagesByIndex.value(index); }
    /// Every index once, in the order of the stages.
    QList<int> getStageIndices() const;
    /// Null where no stage has this index.
    coHeatTreatmentStage::Information getStageInfo(int index) const;
    /// By stage index.
    QMap<int, bool> stagesEnableStatus() const;
    /// Whether the field of application is one, and there are stages, no two with the same index.
    bool isValid() const;

    /// Asks every stage. False where one of them failed.
    bool ensureTableCopiedToProject(coPredefinedTableListModel* model) const;

    // A duration that is no positive number counts as 0. Disabled stages take no time in the process, but
    // totalStageDuration() counts them.

    /// In s.
    kdUnitValue totalStageDuration() const;
    kdUnitValue durationSumOfEnabledStages() const;
    /// When the stage begins, that is after the enabled stages before it, in s; for a disabled stage, when it
    /// would. An empty value (a plain 0) where no stage has this index.
    kdUnitValue startTimeOfStage(int index) const;

    /// getAvgTempRate() of a stage after the enabled one before it. An empty value where no stage has this
    /// index.
    kdUnitValue avgTempRateOfStage(int index) const;
    /// Temperature of the surroundings over the time of all enabled stages, in s and K.
    ///
    /// Where one stage ends and the next begins at another temperature, the table rises or falls within a
    /// millisecond (at most a thousandth of the stage), as solvers want rising times. Stages without a
    /// temperature are bridged by a straight line.
    kdDataTable temperatureOverTime() const;

    friend KDQCORE_EXPORT bool operator==(const coHeatTreatmentData& a, const coHeatTreatmentData& b);
    friend bool operator!=(const coHeatTreatmentData& a, const coHeatTreatmentData& b) { return !(a == b); }

private:
    nHeatTreatment::e_FieldOfApplication m_field;
    QList<StagePointer> m_stages;
    QHash<int, StagePointer> m_stagesByIndex;
};

/// The form of the data in files: one element "coHeatTreatmentData".
class KDQCORE_EXPORT coHeatTreatmentData::Xml {
public:
    class Writer;
    class Reader;

    static QString xmlElementName(); ///< "coHeatTreatmentData"
};

/// Constants keep every bit, tables 16 digits; characters that XML cannot hold become U+FFFD. Of the
/// temperature the file holds whether it is a constant, the constant and the table.
class KDQCORE_EXPORT coHeatTreatmentData::Xml::Writer {
public:
    /// Writes the element where the writer stands. Whether all could be written is told by the writer.
    static void writeXml(QXmlStreamWriter& writer, const coHeatTreatmentData& data);
    /// The children of "massTransferCoeff" and "potential".
    static void writeXmlCaseHardeningProp(QXmlStreamWriter& writer, const coTableInput& input);
    static nHeatTreatment::e_Mode htMode(coTableInput::e_Mode mode);
};

/// Fills the stages that the data already hold, by their index.
///
/// Elements may come in any order, unknown ones are skipped, and what is absent stays as it is, with one
/// exception: a stage that is read holds the tables that its element holds and no others. Its passes become
/// those of "analysis_passes". A stage that cannot be read stays as it was; the stages before it are read.
///
/// All errors are on the stream reader: its own, where the document is broken, else the text that names
/// element and stage. What was wrong with the value is in the log.
class KDQCORE_EXPORT coHeatTreatmentData::Xml::Reader {
public:
    enum e_Result : int {
        ReadAll,      ///< every stage of the document
        UnknownStage, ///< all but the stages whose index the data do not have
        ReadError     ///< the stream reader says which
    };

    /// Reads from the start of the document, or from the start element at which the reader stands to its end.
    /// \a unknownStages gets the texts of the indices that the data do not have.
    static e_Result read(QXmlStreamReader& reader, coHeatTreatmentData& data,
                         QStringList* unknownStages = nullptr);

    /// The same with one bit for an answer: false where all went well, but also after an unknown index; true
    /// where the stream reader has an error. read() tells the three apart.
    static bool readXml(QXmlStreamReader& reader, coHeatTreatmentData& data);

    /// Moves from the start of the document or from any element before it to the start of the data's element
    /// and returns the field of application that it names, by which the stages can be made before they are
    /// read. InvalidField for any other name; where there is no such element, the reader has an error.
    static nHeatTreatment::e_FieldOfApplication findField(QXmlStreamReader& reader);

    static coTableInput::e_Mode tableInputMode(nHeatTreatment::e_Mode mode);

    /// Y columns of files that know no dimension of mass transfer are velocities or plain numbers in m/s.
    /// They get the dimension; velocities in mm/min, m/min and in/s are converted to m/s, all others keep
    /// their values. Columns of any other dimension stay.
    static void correctMassTransferCoefficientDimension(coTableInput& input);

private:
    static void readStage(QXmlStreamReader& reader, coHeatTreatmentData& data, QStringList& unknownStages);
};
