#pragma once

#include "CcEntity.hpp"

namespace VoCc {

// A picked entity that can be pinned, so it stays picked across commands.
class VOCC_EXPORT PinEntity : public Entity
{
    Q_OBJECT
    Q_PROPERTY(bool pinned READ isPinned WRITE setPinned)

public:
    explicit PinEntity(QWidget *parent = nullptr);

    bool isPinned() const;
    void setPinned(bool pinned);

private:
    QToolButton *m_pinButton = nullptr;
};

} // namespace VoCc
