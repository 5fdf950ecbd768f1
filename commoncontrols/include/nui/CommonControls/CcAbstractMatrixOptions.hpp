#pragma once

#include "CcGlobal.hpp"

#include <QList>
#include <QStringList>
#include <QVariantMap>
#include <QWidget>

#include <memory>

class QAbstractButton;
class QButtonGroup;
class QGridLayout;

namespace VoCc {

class GridCells;

// A grid of row x column buttons. Button i sits at row i / column, column i % column and
// takes entry i of the text, icon (pixmap path), tool-tip and action lists; lists shorter
// than the grid leave the remaining buttons blank, longer ones keep their extra entries for
// a larger grid. The dimensions are the properties "row" and "column", each at most 99 (what
// the editors offer): a larger one is limited to 99 with a warning. The buttons take up
// list changes once control returns to the event loop, or at once when one is asked for.
class VOCC_EXPORT AbstractMatrixOptions : public QWidget
{
    Q_OBJECT
    Q_PROPERTY(int row READ row WRITE setRow)
    Q_PROPERTY(int column READ column WRITE setColumn)

public:
    explicit AbstractMatrixOptions(QWidget *parent = nullptr);
    ~AbstractMatrixOptions() override;

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

    // The button at index (row-major), or null outside the grid.
    QAbstractButton *button(int index) const;
    int buttonCount() const;

    // Lays the buttons out anew for the dimensions (making them anew only when their number
    // changed) and shows the lists.
    Q_INVOKABLE void updateGeomtries();

signals:
    void buttonClicked(int index);
    // Emitted when a button whose entry names an action is clicked.
    void actionTriggered(const QString &action);

protected:
    // Makes the button for one cell; subclasses choose its kind.
    virtual QAbstractButton *createButton() = 0;
    // Whether only one button of the grid may be checked at a time.
    virtual bool isExclusive() const;

private:
    void rebuildButtons();
    void refreshButtons();
    void setList(int aspect, const QStringList &list);
    void onButtonClicked(int index);

    QGridLayout *m_layout = nullptr;
    QButtonGroup *m_group = nullptr;
    QList<QAbstractButton *> m_buttons;
    std::unique_ptr<GridCells> m_cells;
    int m_rows = 2;
    int m_columns = 2;
    QVariantMap m_stringAttributes;
};

} // namespace VoCc
