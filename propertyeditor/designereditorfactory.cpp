#include "designereditorfactory.h"

#include "designerpropertymanager.h"
#include "pixmapeditor.h"
#include "resetdecorator.h"
#include "texteditor.h"

#include <QtDesigner/private/formwindowbase_p.h>
#include <QtDesigner/private/iconselector_p.h>
#include <QtDesigner/private/qdesigner_utils_p.h>

#include <QSignalBlocker>

namespace qdesigner_internal {

namespace {

// The path the one-line editor of an icon shows: its normal, off pixmap or else its first.
QString iconDisplayPath(const PropertySheetIconValue &icon)
{
    QString path = icon.pixmap(QIcon::Normal, QIcon::Off).path();
    if (path.isEmpty() && !icon.paths().isEmpty())
        path = icon.paths().first().path();
    return path;
}

} // namespace

DesignerEditorFactory::DesignerEditorFactory(QDesignerFormEditorInterface *core, QObject *parent)
    : QtVariantEditorFactory(parent), m_core(core), m_resetDecorator(new ResetDecorator(core, this))
{
    connect(m_resetDecorator, &ResetDecorator::resetProperty, this,
            &DesignerEditorFactory::resetProperty);
}

DesignerEditorFactory::~DesignerEditorFactory()
{
    const QList<QObject *> editors = m_editorToProperty.keys();
    for (QObject *editor : editors)
        disconnect(editor, nullptr, this, nullptr);
}

void DesignerEditorFactory::setSpacing(int spacing)
{
    m_spacing = spacing;
    m_resetDecorator->setSpacing(spacing);
}

void DesignerEditorFactory::setFormWindowBase(FormWindowBase *formWindow)
{
    m_formWindow = formWindow;
    DesignerPixmapCache *cache = formWindow ? formWindow->pixmapCache() : nullptr;
    for (auto it = m_editorToProperty.cbegin(); it != m_editorToProperty.cend(); ++it) {
        if (auto *pixmapEditor = qobject_cast<PixmapEditor *>(it.key()))
            pixmapEditor->setPixmapCache(cache);
    }
}

FormWindowBase *DesignerEditorFactory::formWindowBase() const { return m_formWindow; }

void DesignerEditorFactory::connectPropertyManager(QtVariantPropertyManager *manager)
{
    m_resetDecorator->connectPropertyManager(manager);
    connect(manager, &QtVariantPropertyManager::valueChanged, this,
            &DesignerEditorFactory::slotValueChanged);
    connect(manager, &QtVariantPropertyManager::attributeChanged, this,
            &DesignerEditorFactory::slotAttributeChanged);
    QtVariantEditorFactory::connectPropertyManager(manager);
}

void DesignerEditorFactory::disconnectPropertyManager(QtVariantPropertyManager *manager)
{
    m_resetDecorator->disconnectPropertyManager(manager);
    disconnect(manager, &QtVariantPropertyManager::valueChanged, this,
               &DesignerEditorFactory::slotValueChanged);
    disconnect(manager, &QtVariantPropertyManager::attributeChanged, this,
               &DesignerEditorFactory::slotAttributeChanged);
    QtVariantEditorFactory::disconnectPropertyManager(manager);
}

QWidget *DesignerEditorFactory::createEditor(QtVariantPropertyManager *manager,
                                             QtProperty *property, QWidget *parent)
{
    auto *designerManager = qobject_cast<DesignerPropertyManager *>(manager);
    QWidget *editor =
            designerManager ? createDesignerEditor(designerManager, property, parent) : nullptr;
    if (editor)
        registerEditor(editor, property);
    else
        editor = QtVariantEditorFactory::createEditor(manager, property, parent);
    const bool resettable = designerManager
            ? designerManager->isResettable(property)
            : manager->attributeValue(property, QStringLiteral("resettable")).toBool();
    return m_resetDecorator->editor(editor, resettable, manager, property, parent);
}

QWidget *DesignerEditorFactory::createDesignerEditor(DesignerPropertyManager *manager,
                                                     QtProperty *property, QWidget *parent)
{
    const int type = manager->propertyType(property);
    const QVariant value = manager->value(property);
    if (type == DesignerPropertyManager::designerStringTypeId()) {
        auto *editor = new TextEditor(m_core, parent);
        const QVariant mode = manager->attributeValue(property, QStringLiteral("validationMode"));
        editor->setTextPropertyValidationMode(TextPropertyValidationMode(mode.toInt()));
        if (const QWidget *object = qobject_cast<const QWidget *>(manager->object()))
            editor->setDefaultFont(object->font());
        if (m_spacing >= 0)
            editor->setSpacing(m_spacing);
        showValue(editor, property, value);
        connect(editor, &TextEditor::textChanged, this, &DesignerEditorFactory::slotTextChanged);
        return editor;
    }
    if (type == DesignerPropertyManager::designerIconTypeId()
        || type == DesignerPropertyManager::designerPixmapTypeId()) {
        auto *editor = new PixmapEditor(m_core, parent);
        FormWindowBase *form = m_formWindow ? m_formWindow.data() : manager->formWindowBase();
        editor->setPixmapCache(form ? form->pixmapCache() : nullptr);
        editor->setIconThemeModeEnabled(type == DesignerPropertyManager::designerIconTypeId());
        if (m_spacing >= 0)
            editor->setSpacing(m_spacing);
        showValue(editor, property, value);
        connect(editor, &PixmapEditor::pathChanged, this, &DesignerEditorFactory::slotPathChanged);
        connect(editor, &PixmapEditor::themeChanged, this,
                &DesignerEditorFactory::slotThemeChanged);
        return editor;
    }
    if (manager->isIconThemeSubProperty(property)) {
        auto *editor = new IconThemeEditor(parent, false);
        showValue(editor, property, value);
        connect(editor, &IconThemeEditor::edited, this, &DesignerEditorFactory::slotThemeChanged);
        return editor;
    }
    return nullptr;
}

void DesignerEditorFactory::registerEditor(QWidget *editor, QtProperty *property)
{
    m_editors[property].append(editor);
    m_editorToProperty.insert(editor, property);
    connect(editor, &QObject::destroyed, this, &DesignerEditorFactory::slotEditorDestroyed);
}

void DesignerEditorFactory::slotEditorDestroyed(QObject *object)
{
    QtProperty *property = m_editorToProperty.take(object);
    auto it = m_editors.find(property);
    if (it == m_editors.end())
        return;
    it->removeAll(object);
    if (it->isEmpty())
        m_editors.erase(it);
}

// Shows a value in an editor without it reporting the change back.
void DesignerEditorFactory::showValue(QWidget *editor, QtProperty *property, const QVariant &value)
{
    Q_UNUSED(property)
    const QSignalBlocker blocker(editor);
    if (auto *textEditor = qobject_cast<TextEditor *>(editor)) {
        // The editor the change came from already shows it; setting it again would escape
        // a backslash the user is still typing ("\" before "n").
        const QString text = qvariant_cast<PropertySheetStringValue>(value).value();
        if (textEditor->text() != text)
            textEditor->setText(text);
    } else if (auto *pixmapEditor = qobject_cast<PixmapEditor *>(editor)) {
        if (value.userType() == DesignerPropertyManager::designerIconTypeId()) {
            const auto icon = qvariant_cast<PropertySheetIconValue>(value);
            pixmapEditor->setPath(iconDisplayPath(icon));
            pixmapEditor->setTheme(icon.theme());
        } else {
            pixmapEditor->setPath(qvariant_cast<PropertySheetPixmapValue>(value).path());
        }
    } else if (auto *themeEditor = qobject_cast<IconThemeEditor *>(editor)) {
        if (themeEditor->theme() != value.toString())
            themeEditor->setTheme(value.toString());
    }
}

void DesignerEditorFactory::slotValueChanged(QtProperty *property, const QVariant &value)
{
    const QVector<QObject *> editors = m_editors.value(property);
    for (QObject *editor : editors)
        showValue(static_cast<QWidget *>(editor), property, value);
}

void DesignerEditorFactory::slotAttributeChanged(QtProperty *property, const QString &attribute,
                                                 const QVariant &value)
{
    if (attribute != QLatin1String("validationMode"))
        return;
    const QVector<QObject *> editors = m_editors.value(property);
    for (QObject *editor : editors) {
        if (auto *textEditor = qobject_cast<TextEditor *>(editor))
            textEditor->setTextPropertyValidationMode(TextPropertyValidationMode(value.toInt()));
    }
}

void DesignerEditorFactory::setPropertyValue(QObject *editor, const QVariant &value)
{
    QtProperty *property = m_editorToProperty.value(editor);
    if (!property)
        return;
    if (QtVariantPropertyManager *manager = propertyManager(property))
        manager->setValue(property, value);
}

void DesignerEditorFactory::slotTextChanged(const QString &text)
{
    QtProperty *property = m_editorToProperty.value(sender());
    QtVariantPropertyManager *manager = propertyManager(property);
    if (!manager)
        return;
    // Only the text changes; the translation data stays.
    auto value = qvariant_cast<PropertySheetStringValue>(manager->value(property));
    value.setValue(text);
    setPropertyValue(sender(), QVariant::fromValue(value));
}

void DesignerEditorFactory::slotPathChanged(const QString &path)
{
    QtProperty *property = m_editorToProperty.value(sender());
    QtVariantPropertyManager *manager = propertyManager(property);
    if (!manager)
        return;
    const QVariant old = manager->value(property);
    if (old.userType() == DesignerPropertyManager::designerIconTypeId()) {
        // A file picked for the whole icon replaces its pixmaps; the theme stays.
        PropertySheetIconValue icon {PropertySheetPixmapValue(path)};
        icon.setTheme(qvariant_cast<PropertySheetIconValue>(old).theme());
        setPropertyValue(sender(), QVariant::fromValue(icon));
    } else {
        setPropertyValue(sender(), QVariant::fromValue(PropertySheetPixmapValue(path)));
    }
}

void DesignerEditorFactory::slotThemeChanged(const QString &theme)
{
    QtProperty *property = m_editorToProperty.value(sender());
    QtVariantPropertyManager *manager = propertyManager(property);
    if (!manager)
        return;
    const QVariant old = manager->value(property);
    if (old.userType() == DesignerPropertyManager::designerIconTypeId()) {
        auto icon = qvariant_cast<PropertySheetIconValue>(old);
        icon.setTheme(theme);
        setPropertyValue(sender(), QVariant::fromValue(icon));
    } else {
        setPropertyValue(sender(), theme);
    }
}

} // namespace qdesigner_internal
