#pragma once

#include "qtvariantproperty.h"

#include <QHash>
#include <QIcon>
#include <QPointer>
#include <QVector>

QT_BEGIN_NAMESPACE
class QDesignerFormEditorInterface;
QT_END_NAMESPACE

namespace qdesigner_internal {

class FormWindowBase;

// The variant property manager behind the item editors' property pane. On top of the plain
// types it knows Designer's own values: translatable strings (PropertySheetStringValue, with
// the sub-properties "translatable", "disambiguation" and "comment"), icons
// (PropertySheetIconValue, with one pixmap sub-property per mode and state plus "Theme") and
// pixmaps (PropertySheetPixmapValue). Every property may carry "resettable"; strings carry
// "validationMode" (a TextPropertyValidationMode).
class DesignerPropertyManager : public QtVariantPropertyManager
{
    Q_OBJECT
public:
    DesignerPropertyManager(QDesignerFormEditorInterface *core, QObject *parent);
    ~DesignerPropertyManager() override;

    static int designerStringTypeId();
    static int designerIconTypeId();
    static int designerPixmapTypeId();

    QDesignerFormEditorInterface *core() const { return m_core; }

    // The object whose items are edited: its form window supplies the icon and pixmap caches,
    // its font the default font of the text dialogs.
    void setObject(QObject *object);
    QObject *object() const { return m_object; }
    FormWindowBase *formWindowBase() const;

    // Resource files changed: icons and pixmaps are looked up again and shown anew.
    void reloadResourceProperties();

    // Each returns true when the property was a sub-property of that kind and was reset.
    bool resetFontSubProperty(QtProperty *property);
    bool resetIconSubProperty(QtProperty *property);

    // The parent of a sub-property made by this manager (icon, string or font parts), or null.
    QtProperty *parentProperty(QtProperty *property) const;
    bool isIconThemeSubProperty(const QtProperty *property) const;
    // Whether an editor for the property gets a reset button.
    bool isResettable(QtProperty *property) const;

    QtVariantProperty *addProperty(int propertyType, const QString &name = QString()) override;
    bool isPropertyTypeSupported(int propertyType) const override;
    int valueType(int propertyType) const override;
    using QtVariantPropertyManager::valueType;
    QVariant value(const QtProperty *property) const override;
    QStringList attributes(int propertyType) const override;
    int attributeType(int propertyType, const QString &attribute) const override;
    QVariant attributeValue(const QtProperty *property, const QString &attribute) const override;

public slots:
    void setValue(QtProperty *property, const QVariant &value) override;
    void setAttribute(QtProperty *property, const QString &attribute,
                      const QVariant &value) override;

signals:
    // Every value change, whoever caused it; the flag tells listeners that sub-properties
    // have already been folded into their parent's value.
    void valueChanged(QtProperty *property, const QVariant &value, bool enableSubPropertyHandling);

protected:
    QString valueText(const QtProperty *property) const override;
    QIcon valueIcon(const QtProperty *property) const override;
    void initializeProperty(QtProperty *property) override;
    void uninitializeProperty(QtProperty *property) override;

private slots:
    void slotValueChanged(QtProperty *property, const QVariant &value);
    void slotObjectDestroyed();

private:
    enum SubKind {
        StringTranslatable,
        StringDisambiguation,
        StringComment,
        IconTheme,
        IconPixmap // + index into the mode/state table
    };
    struct SubProperty
    {
        QtProperty *parent;
        int kind;
    };

    bool isDesignerType(int propertyType) const;
    void createSubProperties(QtProperty *property, int type);
    void updateSubProperties(QtProperty *property);
    void applySubProperty(QtProperty *sub, const QVariant &value);
    void markFontParts(QtProperty *font, uint resolveMask);
    QIcon iconFor(const QVariant &value) const;

    QDesignerFormEditorInterface *m_core;
    QPointer<QObject> m_object;
    QHash<const QtProperty *, QVariant> m_values;
    QHash<const QtProperty *, int> m_validationModes;
    QHash<const QtProperty *, bool> m_resettable;
    QHash<const QtProperty *, QVector<QtProperty *>> m_subProperties;
    QHash<const QtProperty *, SubProperty> m_subPropertyInfo;
    int m_creatingType = 0;
    bool m_updatingSubProperties = false;
};

} // namespace qdesigner_internal
