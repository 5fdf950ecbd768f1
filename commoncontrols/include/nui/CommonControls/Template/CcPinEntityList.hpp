#pragma once

#include "CcEntityList.hpp"

namespace VoCc {

// A list of picked entities that can be pinned as a whole.
class VOCC_EXPORT PinEntityList : public EntityList
{
    Q_OBJECT
    Q_PROPERTY(bool pinned READ isPinned WRITE setPinned)

public:
    explicit PinEntityList(QWidget *parent = nullptr);

    bool isPinned() const;
    void setPinned(bool pinned);

private:
    QToolButton *m_pinButton = nullptr;
};

} // namespace VoCc
