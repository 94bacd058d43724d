#pragma once

#include "cfeabstractdatcard.h"

#include <QString>

/// A force on the nodes of a node list, as it acts on a component.
///
/// \code
/// cPointLoadCard card;
/// card.setIs3DProcess(true);
/// card.setForceZ(-2.0e5);
/// card.setComponentBodyId(2);
/// card.setComponentName(QStringLiteral("Punch"));
/// card.setListOfNodesName(QStringLiteral("punch_top"));
/// writer.writeCard(card);
/// \endcode
///
/// Forces are in newton. Not thread-safe. Owns all its data.
class KDQCORE_EXPORT cPointLoadCard : public cFeAbstractDatCard {
public:
    /// Comment lines come first: the component's name and the comment text, each where there is one. Without
    /// a name of the node list, or with a negative body id, a comment in the deck says so instead of the
    /// card, and the result is false.
    bool write(CFEDatLineWriter& writer) const override;
    ~cPointLoadCard() override;

    /// False by default: an axisymmetric or plane process, whose plane is (Z, X).
    bool is3DProcess() const { return m_is3DProcess; }
    void setIs3DProcess(bool is3D) { m_is3DProcess = is3D; }

    double forceX() const { return m_forceX; }
    void setForceX(double force) { m_forceX = force; }
    /// Not written in a 2-D process.
    double forceY() const { return m_forceY; }
    void setForceY(double force) { m_forceY = force; }
    double forceZ() const { return m_forceZ; }
    void setForceZ(double force) { m_forceZ = force; }

    /// -1, which is not valid, by default.
    int componentBodyId() const { return m_componentBodyId; }
    void setComponentBodyId(int id) { m_componentBodyId = id; }

    /// Only for comments.
    QString componentName() const { return m_componentName; }
    void setComponentName(const QString& name) { m_componentName = name; }
    QString commentText() const { return m_commentText; }
    void setCommentText(const QString& text) { m_commentText = text; }

    QString listOfNodesName() const { return m_listOfNodesName; }
    void setListOfNodesName(const QString& name) { m_listOfNodesName = name; }

    /// Body id and name of the node list, "2_punch_top": unique where no two loads of a deck act on the same
    /// nodes of the same body. A load case refers to the load by "ptld_" and this label.
    QString uniqueLabel() const;

private:
    bool writeComments(CFEDatLineWriter& writer) const;
    bool writeFailure(CFEDatLineWriter& writer, const QString& reason) const;
    bool writeForces(CFEDatLineWriter& writer) const;

    bool m_is3DProcess = false;
    double m_forceX = 0;
    double m_forceY = 0;
    double m_forceZ = 0;
    int m_componentBodyId = -1;
    QString m_componentName;
    QString m_commentText;
    QString m_listOfNodesName;
};
