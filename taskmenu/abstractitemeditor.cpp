#include "abstractitemeditor.h"

#include "designereditorfactory.h"
#include "designerpropertymanager.h"
#include "qtcompat.h"
#include "itempropertybrowser.h"

#include "qtvariantproperty.h"

#include <QtDesigner/private/formwindowbase_p.h>
#include <QtDesigner/private/qdesigner_utils_p.h>

#include <QDesignerFormWindowInterface>
#include <QLayout>
#include <QListWidgetItem>
#include <QScopedValueRollback>
#include <QSplitter>

namespace qdesigner_internal {

namespace {

const char *const itemFlagNames[] = {"Selectable",    "Editable", "DragEnabled", "DropEnabled",
                                     "UserCheckable", "Enabled",  "Tristate",    nullptr};

const char *const checkStateNames[] = {"Unchecked", "PartiallyChecked", "Checked", nullptr};

QStringList toStringList(const char *const *names)
{
    QStringList result;
    for (; *names; ++names)
        result.append(QLatin1String(*names));
    return result;
}

// What a newly made item's flags are: the value that counts as "not set".
int defaultItemFlags()
{
    static const int flags = int(QListWidgetItem().flags());
    return flags;
}

// The plain role that shows a designer value role, or -1.
int plainRole(int role)
{
    switch (role) {
    case Qt::DisplayPropertyRole:
        return Qt::EditRole;
    case Qt::DecorationPropertyRole:
        return Qt::DecorationRole;
    case Qt::ToolTipPropertyRole:
        return Qt::ToolTipRole;
    case Qt::StatusTipPropertyRole:
        return Qt::StatusTipRole;
    case Qt::WhatsThisPropertyRole:
        return Qt::WhatsThisRole;
    default:
        return -1;
    }
}

} // namespace

AbstractItemEditor::AbstractItemEditor(QDesignerFormWindowInterface *form, QWidget *parent)
    : QWidget(parent), m_iconCache(nullptr), m_updatingBrowser(false)
{
    if (auto *formBase = qobject_cast<FormWindowBase *>(form))
        m_iconCache = formBase->iconCache();
    setWindowFlags(windowFlags() & ~Qt::WindowContextHelpButtonHint);

    QDesignerFormEditorInterface *core = form ? form->core() : nullptr;
    m_propertyManager = new DesignerPropertyManager(core, this);
    m_editorFactory = new DesignerEditorFactory(core, this);
    m_editorFactory->setSpacing(0);
    m_propertyBrowser = new ItemPropertyBrowser;
    m_propertyBrowser->setFactoryForManager(
            static_cast<QtVariantPropertyManager *>(m_propertyManager),
            static_cast<QtVariantEditorFactory *>(m_editorFactory));

    connect(m_editorFactory, &DesignerEditorFactory::resetProperty, this,
            &AbstractItemEditor::resetProperty);
    connect(m_propertyManager,
            qOverload<QtProperty *, const QVariant &, bool>(&DesignerPropertyManager::valueChanged),
            this, &AbstractItemEditor::propertyChanged);
    if (m_iconCache)
        connect(m_iconCache, &DesignerIconCache::reloaded, this,
                &AbstractItemEditor::cacheReloaded);
}

AbstractItemEditor::~AbstractItemEditor()
{
    // The pane goes before the manager and factory it shows, whoever owns it.
    delete m_propertyBrowser.data();
}

int AbstractItemEditor::propertyRole(QtProperty *property) const
{
    return m_propertyToRole.value(m_propertyManager->variantProperty(property), -1);
}

void AbstractItemEditor::setupProperties(const PropertyDefinition *table)
{
    for (; table->name; ++table) {
        const int type = table->typeFunc ? table->typeFunc() : table->type;
        const int role = table->role;
        QtVariantProperty *property =
                m_propertyManager->addProperty(type, QLatin1String(table->name));
        if (!property)
            continue;
        switch (role) {
        case Qt::DisplayPropertyRole:
            property->setAttribute(QStringLiteral("validationMode"), ValidationMultiLine);
            break;
        case Qt::ToolTipPropertyRole:
        case Qt::WhatsThisPropertyRole:
            property->setAttribute(QStringLiteral("validationMode"), ValidationRichText);
            break;
        case Qt::StatusTipPropertyRole:
            property->setAttribute(QStringLiteral("validationMode"), ValidationSingleLine);
            break;
        case ItemFlagsRole:
            property->setAttribute(QStringLiteral("flagNames"), toStringList(itemFlagNames));
            break;
        case Qt::CheckStateRole:
            property->setAttribute(QStringLiteral("enumNames"), toStringList(checkStateNames));
            break;
        default:
            break;
        }
        property->setAttribute(QStringLiteral("resettable"), true);
        m_properties.append(property);
        m_rootProperties.append(property);
        m_propertyToRole.insert(property, role);
    }
}

void AbstractItemEditor::setupObject(QWidget *object)
{
    m_propertyManager->setObject(object);
    QDesignerFormWindowInterface *form = QDesignerFormWindowInterface::findFormWindow(object);
    m_editorFactory->setFormWindowBase(qobject_cast<FormWindowBase *>(form));
}

void AbstractItemEditor::injectPropertyBrowser(QWidget *parent, QWidget *widget)
{
    m_propertySplitter = new QSplitter;
    m_propertySplitter->addWidget(widget);
    m_propertySplitter->addWidget(m_propertyBrowser);
    m_propertySplitter->setStretchFactor(0, 1);
    m_propertySplitter->setStretchFactor(1, 0);
    parent->layout()->addWidget(m_propertySplitter);
}

void AbstractItemEditor::updateBrowser()
{
    QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    for (QtVariantProperty *property : qAsConst(m_properties)) {
        const int role = m_propertyToRole.value(property);
        QVariant value = getItemData(role);
        if (!value.isValid()) {
            value = role == ItemFlagsRole ? QVariant(defaultItemFlags())
                                          : CcQt::defaultValue(property->value().userType());
            property->setModified(false);
        } else {
            property->setModified(true);
        }
        property->setValue(value);
    }
    // Filled once; afterwards only the values change.
    if (m_propertyBrowser->topLevelItems().isEmpty()) {
        for (QtVariantProperty *property : qAsConst(m_rootProperties))
            m_propertyBrowser->addProperty(property);
    }
}

void AbstractItemEditor::propertyChanged(QtProperty *property)
{
    if (m_updatingBrowser)
        return;
    QScopedValueRollback<bool> updating(m_updatingBrowser, true);

    QtVariantProperty *prop = m_propertyManager->variantProperty(property);
    const int role = m_propertyToRole.value(prop, -1);
    if (role == -1)
        return; // a part of a property (a font's family...): its parent reports the change

    const QVariant value = prop->value();
    bool isDefault = false;
    switch (role) {
    case ItemFlagsRole:
        isDefault = value.toInt() == defaultItemFlags();
        break;
    case Qt::DecorationPropertyRole:
        isDefault = qvariant_cast<PropertySheetIconValue>(value).mask() == 0;
        break;
    case Qt::FontRole:
        isDefault = CcQt::fontResolveMask(qvariant_cast<QFont>(value)) == 0;
        break;
    default:
        break;
    }
    prop->setModified(!isDefault);
    setItemData(role, isDefault ? QVariant() : value);

    const int plain = plainRole(role);
    if (plain == Qt::DecorationRole) {
        const auto icon = qvariant_cast<PropertySheetIconValue>(value);
        setItemData(plain, m_iconCache ? m_iconCache->icon(icon) : QIcon());
    } else if (plain != -1) {
        setItemData(plain, qvariant_cast<PropertySheetStringValue>(value).value());
    }

    // Show what the item really holds. A removed role has no value to show; the pane keeps
    // the default the user just chose.
    const QVariant stored = getItemData(role);
    if (stored.isValid())
        prop->setValue(stored);
}

void AbstractItemEditor::resetProperty(QtProperty *property)
{
    if (m_propertyManager->resetFontSubProperty(property)
        || m_propertyManager->resetIconSubProperty(property))
        return;

    QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    QtVariantProperty *prop = m_propertyManager->variantProperty(property);
    const int role = m_propertyToRole.value(prop, -1);
    if (role == -1)
        return;
    prop->setValue(role == ItemFlagsRole ? QVariant(defaultItemFlags())
                                         : CcQt::defaultValue(prop->value().userType()));
    prop->setModified(false);
    setItemData(role, QVariant());

    const int plain = plainRole(role);
    if (plain == Qt::DecorationRole)
        setItemData(plain, QIcon());
    else if (plain != -1)
        setItemData(plain, QString());
}

void AbstractItemEditor::cacheReloaded()
{
    QScopedValueRollback<bool> updating(m_updatingBrowser, true);
    m_propertyManager->reloadResourceProperties();
}

} // namespace qdesigner_internal
