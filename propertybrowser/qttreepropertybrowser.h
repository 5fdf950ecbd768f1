#pragma once

// A property browser showing the properties as a two-column tree (name, value), with the
// value edited in place.

#include "qtpropertybrowser.h"

#include <QColor>

class QtTreePropertyBrowserPrivate;

class QtTreePropertyBrowser : public QtAbstractPropertyBrowser
{
    Q_OBJECT
    Q_PROPERTY(int indentation READ indentation WRITE setIndentation)
    Q_PROPERTY(bool rootIsDecorated READ rootIsDecorated WRITE setRootIsDecorated)
    Q_PROPERTY(bool alternatingRowColors READ alternatingRowColors WRITE setAlternatingRowColors)
    Q_PROPERTY(bool headerVisible READ isHeaderVisible WRITE setHeaderVisible)
    Q_PROPERTY(ResizeMode resizeMode READ resizeMode WRITE setResizeMode)
    Q_PROPERTY(int splitterPosition READ splitterPosition WRITE setSplitterPosition)
    Q_PROPERTY(bool propertiesWithoutValueMarked READ propertiesWithoutValueMarked WRITE
                       setPropertiesWithoutValueMarked)
public:
    enum ResizeMode { Interactive, Stretch, Fixed, ResizeToContents };
    Q_ENUM(ResizeMode)

    explicit QtTreePropertyBrowser(QWidget *parent = nullptr);
    ~QtTreePropertyBrowser() override;

    int indentation() const;
    void setIndentation(int i);

    bool rootIsDecorated() const;
    void setRootIsDecorated(bool show);

    bool alternatingRowColors() const;
    void setAlternatingRowColors(bool enable);

    bool isHeaderVisible() const;
    void setHeaderVisible(bool visible);

    ResizeMode resizeMode() const;
    void setResizeMode(ResizeMode mode);

    // The width of the name column.
    int splitterPosition() const;
    void setSplitterPosition(int position);

    void setExpanded(QtBrowserItem *item, bool expanded);
    bool isExpanded(QtBrowserItem *item) const;

    bool isItemVisible(QtBrowserItem *item) const;
    void setItemVisible(QtBrowserItem *item, bool visible);

    void setBackgroundColor(QtBrowserItem *item, const QColor &color);
    QColor backgroundColor(QtBrowserItem *item) const;
    // The item's own background colour, or the nearest one set on an ancestor.
    QColor calculatedBackgroundColor(QtBrowserItem *item) const;

    // Rows of properties without a value (groups) drawn on a darker band.
    void setPropertiesWithoutValueMarked(bool mark);
    bool propertiesWithoutValueMarked() const;

    // Makes the item current and opens its value editor.
    void editItem(QtBrowserItem *item);

Q_SIGNALS:
    void collapsed(QtBrowserItem *item);
    void expanded(QtBrowserItem *item);

protected:
    void itemInserted(QtBrowserItem *item, QtBrowserItem *afterItem) override;
    void itemRemoved(QtBrowserItem *item) override;
    void itemChanged(QtBrowserItem *item) override;

private:
    Q_DISABLE_COPY(QtTreePropertyBrowser)
    QScopedPointer<QtTreePropertyBrowserPrivate> d_ptr;
    friend class QtTreePropertyBrowserPrivate;
};
