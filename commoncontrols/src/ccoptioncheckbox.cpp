#include "nui/CommonControls/template/CcOptionCheckBox.hpp"

#include "ccentrylists.h"

#include <QCheckBox>
#include <QHBoxLayout>
#include <QSignalBlocker>

namespace VoCc {

namespace {
const int CheckedEntry = 0;
const int UncheckedEntry = 1;
} // namespace

OptionCheckBox::OptionCheckBox(QWidget *parent)
    : AbstractOptions(parent), m_checkBox(new QCheckBox(this))
{
    auto *layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->addWidget(m_checkBox);
    setFocusProxy(m_checkBox);
    connect(m_checkBox, &QCheckBox::toggled, this, [this](bool checked) {
        if (count() > 0)
            userSelected(checked || count() < 2 ? CheckedEntry : UncheckedEntry);
        rebuildEntries();
    });
}

QCheckBox *OptionCheckBox::checkBox() const { return m_checkBox; }

bool OptionCheckBox::isChecked() const { return m_checkBox->isChecked(); }

void OptionCheckBox::setChecked(bool checked) { m_checkBox->setChecked(checked); }

void OptionCheckBox::rebuildEntries()
{
    // The box shows the entry in force: the first when checked, the second otherwise.
    const int entry = m_checkBox->isChecked() ? CheckedEntry : UncheckedEntry;
    m_checkBox->setText(EntryLists::shownText(textAt(entry)));
    m_checkBox->setIcon(EntryLists::iconFromPath(iconAt(entry)));
    m_checkBox->setToolTip(toolTipAt(entry));
}

void OptionCheckBox::showCurrentIndex(int index)
{
    if (index < 0)
        return;
    const QSignalBlocker blocker(m_checkBox);
    m_checkBox->setChecked(index == CheckedEntry);
    rebuildEntries();
}

} // namespace VoCc
