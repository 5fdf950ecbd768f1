#pragma once

#include "nui/CommonControls/template/CcAbstractOptions.hpp"

#include <QList>
#include <QStringList>
#include <Qt>

class QAbstractButton;
class QBoxLayout;

namespace VoCc {

// A button of a row that makes its entry current when the user checks it. The button does
// that itself rather than through a signal connection, which a row of many thousand buttons
// would pay for with every one of them.
template<class Button>
class EntryButton : public Button
{
public:
    EntryButton(AbstractOptions *owner, int index) : Button(owner), m_owner(owner), m_index(index)
    { }

protected:
    void nextCheckState() override
    {
        Button::nextCheckState();
        m_owner->setCurrentIndex(m_index);
    }

private:
    AbstractOptions *m_owner;
    int m_index;
};

// The buttons of an option widget in a box layout, one per entry, exclusive.
class ButtonRow
{
public:
    // Makes the button of the entry at index, an EntryButton.
    using Factory = QAbstractButton *(*)(AbstractOptions *owner, int index);

    ButtonRow(AbstractOptions *owner, QBoxLayout *layout, Factory factory);

    // Gives the row one button per entry, showing the entry's text, icon and tool tip. Buttons
    // are kept and only what differs is set anew, so a list change costs one pass.
    void rebuild();
    void check(int index);
    QAbstractButton *button(int index) const;
    QBoxLayout *layout() const { return m_layout; }
    // The row runs left to right when horizontal, top to bottom when vertical.
    Qt::Orientation orientation() const;
    void setOrientation(Qt::Orientation orientation);

private:
    void addButton();
    // Deletes the buttons beyond the first keep.
    void removeButtons(int keep);

    AbstractOptions *m_owner;
    QBoxLayout *m_layout;
    Factory m_factory;
    QList<QAbstractButton *> m_buttons;
    // The icon path each button shows (icons themselves cannot be compared).
    QStringList m_iconPaths;
};

} // namespace VoCc
