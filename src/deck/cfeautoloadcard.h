#pragma once

#include "cfeabstractdatcard.h"

/// Automatic loading: in how many steps the solver goes through the load case, how long it takes and how far
/// the tool travels.
///
/// \code
/// cFeAutoLoadCard card;
/// card.setTimeSteps(100);
/// card.setTotalTime(2.5);
/// card.setTotalTravelDist(0.12);
/// writer.writeCard(card);
/// \endcode
///
/// Numbers are written as given, in the units of the deck. Not thread-safe. Owns all its data.
class KDQCORE_EXPORT cFeAutoLoadCard : public cFeAbstractDatCard {
public:
    /// Logs a time, step number or distance that is not positive, and writes it all the same. Without time
    /// steps a "time step" option with a step of 1.0 follows. Always returns true: a piece that could not be
    /// written shows in the writer's next operation and in its flush().
    bool write(CFEDatLineWriter& writer) const override;
    ~cFeAutoLoadCard() override;

    int timeSteps() const { return m_timeSteps; }
    void setTimeSteps(int steps) { m_timeSteps = steps; }

    /// How often at most a step is remeshed because the mesh is too distorted to go on.
    int maxForcedRemeshingNo() const { return m_maxForcedRemeshingNo; }
    void setMaxForcedRemeshingNo(int number) { m_maxForcedRemeshingNo = number; }

    int cutBackStepNo() const { return m_cutBackStepNo; }
    void setCutBackStepNo(int number) { m_cutBackStepNo = number; }

    double totalTime() const { return m_totalTime; }
    void setTotalTime(double time) { m_totalTime = time; }

    double totalTravelDist() const { return m_totalTravelDist; }
    void setTotalTravelDist(double distance) { m_totalTravelDist = distance; }

private:
    void logImplausibleValues() const;

    int m_timeSteps = 0;
    int m_maxForcedRemeshingNo = 1;
    int m_cutBackStepNo = 0;
    double m_totalTime = 0;
    double m_totalTravelDist = 0;
};
