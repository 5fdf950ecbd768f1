#include "nui/CommonControls/template/CcAbstractOptions.hpp"

#include "ccentrylists.h"

namespace VoCc {

AbstractOptions::AbstractOptions(QWidget *parent) : QWidget(parent) { }

AbstractOptions::~AbstractOptions() = default;

QStringList AbstractOptions::textList() const { return m_textList; }

void AbstractOptions::setTextList(const QStringList &texts)
{
    m_textList = texts;
    updateGeomtries();
}

QStringList AbstractOptions::iconList() const { return m_iconList; }

void AbstractOptions::setIconList(const QStringList &iconPaths)
{
    m_iconList = iconPaths;
    updateGeomtries();
}

QStringList AbstractOptions::toolTips() const { return m_toolTips; }

void AbstractOptions::setToolTips(const QStringList &toolTips)
{
    m_toolTips = toolTips;
    updateGeomtries();
}

QVariantList AbstractOptions::stringAttributes(const QString &list) const
{
    return EntryLists::stringAttributes(m_stringAttributes, list);
}

void AbstractOptions::setStringAttributes(const QString &list, const QVariantList &attributes)
{
    EntryLists::setStringAttributes(m_stringAttributes, list, attributes);
}

QStringList AbstractOptions::dataList() const { return m_dataList; }

void AbstractOptions::setDataList(const QStringList &data)
{
    m_dataList = data;
    updateGeomtries();
}

int AbstractOptions::count() const { return m_textList.size(); }

QString AbstractOptions::textAt(int index) const { return EntryLists::at(m_textList, index); }

QString AbstractOptions::iconAt(int index) const { return EntryLists::at(m_iconList, index); }

QString AbstractOptions::toolTipAt(int index) const { return EntryLists::at(m_toolTips, index); }

QString AbstractOptions::dataAt(int index) const { return EntryLists::at(dataList(), index); }

int AbstractOptions::currentIndex() const { return m_currentIndex; }

QString AbstractOptions::currentText() const { return textAt(m_currentIndex); }

QString AbstractOptions::currentData() const { return dataAt(m_currentIndex); }

void AbstractOptions::setCurrentIndex(int index)
{
    if (index < -1)
        return;
    if (index >= count()) {
        m_pendingIndex = index;
        return;
    }
    m_pendingIndex = -1;
    if (index == m_currentIndex)
        return;
    m_currentIndex = index;
    showCurrentIndex(index);
    emit currentIndexChanged(index);
}

void AbstractOptions::updateGeomtries()
{
    // A shrunk list may leave the current entry behind; a first list makes its first entry
    // current, like a combo box does.
    int current = m_currentIndex;
    if (m_pendingIndex >= 0 && m_pendingIndex < count()) {
        current = m_pendingIndex;
        m_pendingIndex = -1;
    }
    if (current >= count())
        current = count() - 1;
    if (current < 0 && count() > 0)
        current = 0;
    rebuildEntries();
    const bool changed = current != m_currentIndex;
    m_currentIndex = current;
    showCurrentIndex(current);
    updateGeometry();
    if (changed)
        emit currentIndexChanged(current);
}

void AbstractOptions::userSelected(int index) { setCurrentIndex(index); }

} // namespace VoCc
