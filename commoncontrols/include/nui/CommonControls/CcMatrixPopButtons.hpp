#pragma once

#include "CcGlobal.hpp"

#include <QList>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>

#include <memory>

class QGridLayout;
class QMenu;
class QToolButton;

namespace VoCc {

class GridCells;

// A grid of row x column tool buttons (each dimension at most 99, what the editor offers: a
// larger one is limited to 99 with a warning), each with a pop-up menu. Cell i (row-major) takes
// entry i of the text, icon, tool-tip and action lists; missing entries read as empty. A
// cell's menu starts with its action, when it names one; an application adds more entries
// through menu(i). The buttons take up list changes once control returns to the event loop,
// or at once when one (or its menu) is asked for.
class VOCC_EXPORT MatrixPopButtons : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int row READ row WRITE setRow)
    Q_PROPERTY(int column READ column WRITE setColumn)
    Q_PROPERTY(QStringList textList READ textList WRITE setTextList)

public:
    explicit MatrixPopButtons(QWidget *parent = nullptr);
    ~MatrixPopButtons() override;

    int row() const;
    void setRow(int rows);
    int column() const;
    void setColumn(int columns);

    QStringList textList() const;
    void setTextList(const QStringList &texts);
    QStringList iconList() const;
    void setIconList(const QStringList &iconPaths);
    QStringList toolTips() const;
    void setToolTips(const QStringList &toolTips);
    // How the entries' texts and tool tips are marked for translation (see AbstractOptions).
    Q_INVOKABLE QVariantList stringAttributes(const QString &list) const;
    Q_INVOKABLE void setStringAttributes(const QString &list, const QVariantList &attributes);
    QStringList actionList() const;
    void setActionList(const QStringList &actions);

    // The button of the cell at index, or null outside the grid.
    QToolButton *button(int index) const;
    // The pop-up menu of the cell at index, or null outside the grid.
    QMenu *menu(int index) const;
    int buttonCount() const;

    // Lays the buttons out anew for the dimensions (making them anew only when their number
    // changed) and shows the lists.
    Q_INVOKABLE void updateGeomtries();

signals:
    void buttonClicked(int index);
    void actionTriggered(const QString &action);

private:
    void rebuildButtons();
    void refreshButtons();
    void setList(int aspect, const QStringList &list);
    void showAction(QMenu *popup, const QString &action);

    QGridLayout *m_layout = nullptr;
    QList<QToolButton *> m_buttons;
    std::unique_ptr<GridCells> m_cells;
    int m_rows = 2;
    int m_columns = 2;
    QVariantMap m_stringAttributes;
};

} // namespace VoCc
