#pragma once

#include "qtvariantproperty.h"

#include <QHash>
#include <QPointer>
#include <QVector>

QT_BEGIN_NAMESPACE
class QDesignerFormEditorInterface;
QT_END_NAMESPACE

namespace qdesigner_internal {

class DesignerPropertyManager;
class FormWindowBase;
class ResetDecorator;

// Makes the editors of the item editors' property pane: TextEditor for Designer's strings,
// PixmapEditor for icons and pixmaps, IconThemeEditor for an icon's theme, and the variant
// factory's editors for everything else; resettable properties get a reset button.
class DesignerEditorFactory : public QtVariantEditorFactory
{
    Q_OBJECT
public:
    DesignerEditorFactory(QDesignerFormEditorInterface *core, QObject *parent);
    ~DesignerEditorFactory() override;

    void setSpacing(int spacing);
    int spacing() const { return m_spacing; }
    // The form whose pixmap cache previews the icons.
    void setFormWindowBase(FormWindowBase *formWindow);
    FormWindowBase *formWindowBase() const;

signals:
    void resetProperty(QtProperty *property);

protected:
    void connectPropertyManager(QtVariantPropertyManager *manager) override;
    QWidget *createEditor(QtVariantPropertyManager *manager, QtProperty *property,
                          QWidget *parent) override;
    void disconnectPropertyManager(QtVariantPropertyManager *manager) override;

private slots:
    void slotValueChanged(QtProperty *property, const QVariant &value);
    void slotAttributeChanged(QtProperty *property, const QString &attribute,
                              const QVariant &value);
    void slotEditorDestroyed(QObject *object);
    void slotTextChanged(const QString &text);
    void slotPathChanged(const QString &path);
    void slotThemeChanged(const QString &theme);

private:
    QWidget *createDesignerEditor(DesignerPropertyManager *manager, QtProperty *property,
                                  QWidget *parent);
    void showValue(QWidget *editor, QtProperty *property, const QVariant &value);
    void registerEditor(QWidget *editor, QtProperty *property);
    void setPropertyValue(QObject *editor, const QVariant &value);

    QDesignerFormEditorInterface *m_core;
    ResetDecorator *m_resetDecorator;
    QPointer<FormWindowBase> m_formWindow;
    int m_spacing = -1;
    // Kept as QObject pointers: they are compared after the editors are gone.
    QHash<QtProperty *, QVector<QObject *>> m_editors;
    QHash<QObject *, QtProperty *> m_editorToProperty;
};

} // namespace qdesigner_internal
