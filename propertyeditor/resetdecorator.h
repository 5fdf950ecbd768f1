#pragma once

#include <QHash>
#include <QObject>
#include <QVector>

class QtAbstractPropertyManager;
class QtProperty;

QT_BEGIN_NAMESPACE
class QDesignerFormEditorInterface;
QT_END_NAMESPACE

namespace qdesigner_internal {

class ResetWidget;

// Puts a reset button beside the editors of resettable properties. The button is enabled
// while the property is modified; clicking it emits resetProperty().
class ResetDecorator : public QObject
{
    Q_OBJECT
public:
    explicit ResetDecorator(QDesignerFormEditorInterface *core, QObject *parent = nullptr);
    ~ResetDecorator() override;

    void connectPropertyManager(QtAbstractPropertyManager *manager);
    // The editor to give the browser: subEditor itself when the property is not resettable,
    // otherwise a ResetWidget holding it (or showing the value when subEditor is null).
    QWidget *editor(QWidget *subEditor, bool resettable, QtAbstractPropertyManager *manager,
                    QtProperty *property, QWidget *parent);
    void disconnectPropertyManager(QtAbstractPropertyManager *manager);
    void setSpacing(int spacing);

signals:
    void resetProperty(QtProperty *property);

private slots:
    void slotPropertyChanged(QtProperty *property);
    void slotEditorDestroyed(QObject *object);

private:
    QDesignerFormEditorInterface *m_core;
    // Kept as QObject pointers: they are compared after the widgets are gone.
    QHash<QtProperty *, QVector<QObject *>> m_createdResetWidgets;
    QHash<QObject *, QtProperty *> m_resetWidgetToProperty;
    int m_spacing = -1;
};

} // namespace qdesigner_internal
