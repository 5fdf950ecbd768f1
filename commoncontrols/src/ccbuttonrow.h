#pragma once

#include <QList>
#include <Qt>
#include <functional>

class QAbstractButton;
class QBoxLayout;
class QButtonGroup;

namespace VoCc {

class AbstractOptions;

// The buttons of an option widget in a box layout, one per entry, exclusive.
class ButtonRow
{
public:
    using Factory = std::function<QAbstractButton *()>;

    ButtonRow(AbstractOptions *owner, QBoxLayout *layout, Factory factory);

    // Makes one button per entry with the entry's text, icon and tool tip.
    void rebuild();
    void check(int index);
    QAbstractButton *button(int index) const;
    QBoxLayout *layout() const { return m_layout; }
    // The row runs left to right when horizontal, top to bottom when vertical.
    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

private:
    AbstractOptions *m_owner;
    QBoxLayout *m_layout;
    QButtonGroup *m_group;
    Factory m_factory;
    QList<QAbstractButton *> m_buttons;
};

} // namespace VoCc
