#include "designerpropertymanager.h"

#include "qtcompat.h"

#include <QtDesigner/private/formwindowbase_p.h>
#include <QtDesigner/private/qdesigner_utils_p.h>
#include <QtDesigner/private/shared_enums_p.h>
#include <QtDesigner/private/textpropertyeditor_p.h>

#include <QApplication>
#include <QDesignerFormEditorInterface>
#include <QDesignerFormWindowInterface>
#include <QFileInfo>
#include <QFont>
#include <QWidget>

namespace qdesigner_internal {

namespace {

const char resettableAttribute[] = "resettable";
const char validationModeAttribute[] = "validationMode";

// The pixmap sub-properties of an icon, in the order Designer's own pane shows them.
struct IconState
{
    QIcon::Mode mode;
    QIcon::State state;
    const char *name;
};
const IconState iconStates[] = {
        {QIcon::Normal, QIcon::Off,
         QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Normal Off")},
        {QIcon::Normal, QIcon::On,
         QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Normal On")},
        {QIcon::Disabled, QIcon::Off,
         QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Disabled Off")},
        {QIcon::Disabled, QIcon::On,
         QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Disabled On")},
        {QIcon::Active, QIcon::Off,
         QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Active Off")},
        {QIcon::Active, QIcon::On,
         QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Active On")},
        {QIcon::Selected, QIcon::Off,
         QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Selected Off")},
        {QIcon::Selected, QIcon::On,
         QT_TRANSLATE_NOOP("qdesigner_internal::DesignerPropertyManager", "Selected On")},
};
const int iconStateCount = int(sizeof(iconStates) / sizeof(iconStates[0]));

// A font's sub-properties and the resolve bit each one stands for, in the order the
// variant manager creates them.
struct FontPart
{
    const char *name;
    uint resolveBit;
};
const FontPart fontParts[] = {
        {"Family", QFont::FamilyResolved},       {"Point Size", QFont::SizeResolved},
        {"Bold", QFont::WeightResolved},         {"Italic", QFont::StyleResolved},
        {"Underline", QFont::UnderlineResolved}, {"Strikeout", QFont::StrikeOutResolved},
        {"Kerning", QFont::KerningResolved},
};
const int fontPartCount = int(sizeof(fontParts) / sizeof(fontParts[0]));

PropertySheetStringValue stringValue(const QVariant &v)
{
    return qvariant_cast<PropertySheetStringValue>(v);
}

PropertySheetIconValue iconValue(const QVariant &v)
{
    return qvariant_cast<PropertySheetIconValue>(v);
}

PropertySheetPixmapValue pixmapValue(const QVariant &v)
{
    return qvariant_cast<PropertySheetPixmapValue>(v);
}

} // namespace

DesignerPropertyManager::DesignerPropertyManager(QDesignerFormEditorInterface *core,
                                                 QObject *parent)
    : QtVariantPropertyManager(parent), m_core(core)
{
    connect(this,
            qOverload<QtProperty *, const QVariant &>(&QtVariantPropertyManager::valueChanged),
            this, &DesignerPropertyManager::slotValueChanged);
}

DesignerPropertyManager::~DesignerPropertyManager()
{
    // Sub-properties are deleted with their parents; forget them first so that
    // uninitializeProperty() does not reach properties already gone.
    m_subPropertyInfo.clear();
    m_subProperties.clear();
    clear();
}

int DesignerPropertyManager::designerStringTypeId()
{
    return qMetaTypeId<PropertySheetStringValue>();
}

int DesignerPropertyManager::designerIconTypeId() { return qMetaTypeId<PropertySheetIconValue>(); }

int DesignerPropertyManager::designerPixmapTypeId()
{
    return qMetaTypeId<PropertySheetPixmapValue>();
}

bool DesignerPropertyManager::isDesignerType(int propertyType) const
{
    return propertyType == designerStringTypeId() || propertyType == designerIconTypeId()
            || propertyType == designerPixmapTypeId();
}

void DesignerPropertyManager::setObject(QObject *object)
{
    if (m_object == object)
        return;
    if (m_object)
        disconnect(m_object, &QObject::destroyed, this,
                   &DesignerPropertyManager::slotObjectDestroyed);
    m_object = object;
    if (object)
        connect(object, &QObject::destroyed, this, &DesignerPropertyManager::slotObjectDestroyed);
    // Icons are looked up through the object's form: show them anew.
    reloadResourceProperties();
}

void DesignerPropertyManager::slotObjectDestroyed() { m_object = nullptr; }

FormWindowBase *DesignerPropertyManager::formWindowBase() const
{
    if (!m_object)
        return nullptr;
    return qobject_cast<FormWindowBase *>(QDesignerFormWindowInterface::findFormWindow(m_object));
}

void DesignerPropertyManager::reloadResourceProperties()
{
    const QList<const QtProperty *> keys = m_values.keys();
    for (const QtProperty *property : keys) {
        const int type = propertyType(property);
        if (type == designerIconTypeId() || type == designerPixmapTypeId())
            emit propertyChanged(const_cast<QtProperty *>(property));
    }
}

QtVariantProperty *DesignerPropertyManager::addProperty(int propertyType, const QString &name)
{
    const int previousType = m_creatingType;
    m_creatingType = propertyType;
    QtVariantProperty *property = QtVariantPropertyManager::addProperty(propertyType, name);
    m_creatingType = previousType;
    if (property && isDesignerType(propertyType))
        createSubProperties(property, propertyType);
    return property;
}

void DesignerPropertyManager::initializeProperty(QtProperty *property)
{
    QtVariantPropertyManager::initializeProperty(property);
    if (isDesignerType(m_creatingType))
        m_values.insert(property, CcQt::defaultValue(m_creatingType));
    if (m_creatingType == designerStringTypeId())
        m_validationModes.insert(property, ValidationMultiLine);
}

void DesignerPropertyManager::uninitializeProperty(QtProperty *property)
{
    m_values.remove(property);
    m_validationModes.remove(property);
    m_resettable.remove(property);
    m_subPropertyInfo.remove(property);
    const QVector<QtProperty *> subs = m_subProperties.take(property);
    for (QtProperty *sub : subs) {
        if (m_subPropertyInfo.remove(sub))
            delete sub;
    }
    QtVariantPropertyManager::uninitializeProperty(property);
}

void DesignerPropertyManager::createSubProperties(QtProperty *property, int type)
{
    QVector<QtProperty *> subs;
    auto add = [&](int subType, const QString &name, int kind) {
        QtVariantProperty *sub = addProperty(subType, name);
        m_subPropertyInfo.insert(sub, SubProperty {property, kind});
        property->addSubProperty(sub);
        subs.append(sub);
    };
    if (type == designerStringTypeId()) {
        add(QVariant::Bool, tr("translatable"), StringTranslatable);
        add(QVariant::String, tr("disambiguation"), StringDisambiguation);
        add(QVariant::String, tr("comment"), StringComment);
    } else if (type == designerIconTypeId()) {
        for (int i = 0; i < iconStateCount; ++i)
            add(designerPixmapTypeId(), tr(iconStates[i].name), IconPixmap + i);
        add(QVariant::String, tr("Theme"), IconTheme);
    }
    if (subs.isEmpty())
        return;
    m_subProperties.insert(property, subs);
    updateSubProperties(property);
}

// Shows a parent's value in its sub-properties, without feeding the changes back.
void DesignerPropertyManager::updateSubProperties(QtProperty *property)
{
    const QVector<QtProperty *> subs = m_subProperties.value(property);
    if (subs.isEmpty())
        return;
    const bool wasUpdating = m_updatingSubProperties;
    m_updatingSubProperties = true;
    const QVariant v = m_values.value(property);
    for (QtProperty *sub : subs) {
        const int kind = m_subPropertyInfo.value(sub).kind;
        switch (kind) {
        case StringTranslatable:
            setValue(sub, stringValue(v).translatable());
            break;
        case StringDisambiguation:
            setValue(sub, stringValue(v).disambiguation());
            break;
        case StringComment:
            setValue(sub, stringValue(v).comment());
            break;
        case IconTheme:
            setValue(sub, iconValue(v).theme());
            break;
        default: {
            const IconState &s = iconStates[kind - IconPixmap];
            setValue(sub, QVariant::fromValue(iconValue(v).pixmap(s.mode, s.state)));
            break;
        }
        }
        // Icon parts that are set can be reset one by one.
        if (kind >= IconTheme)
            sub->setModified(kind == IconTheme ? !iconValue(v).theme().isEmpty()
                                               : !pixmapValue(value(sub)).path().isEmpty());
    }
    m_updatingSubProperties = wasUpdating;
}

// A sub-property was edited: fold it into its parent's value.
void DesignerPropertyManager::applySubProperty(QtProperty *sub, const QVariant &value)
{
    const SubProperty info = m_subPropertyInfo.value(sub);
    QVariant parentValue = m_values.value(info.parent);
    switch (info.kind) {
    case StringTranslatable:
    case StringDisambiguation:
    case StringComment: {
        PropertySheetStringValue s = stringValue(parentValue);
        if (info.kind == StringTranslatable)
            s.setTranslatable(value.toBool());
        else if (info.kind == StringDisambiguation)
            s.setDisambiguation(value.toString());
        else
            s.setComment(value.toString());
        parentValue = QVariant::fromValue(s);
        break;
    }
    case IconTheme: {
        PropertySheetIconValue icon = iconValue(parentValue);
        icon.setTheme(value.toString());
        parentValue = QVariant::fromValue(icon);
        break;
    }
    default: {
        const IconState &s = iconStates[info.kind - IconPixmap];
        PropertySheetIconValue icon = iconValue(parentValue);
        icon.setPixmap(s.mode, s.state, pixmapValue(value));
        parentValue = QVariant::fromValue(icon);
        break;
    }
    }
    setValue(info.parent, parentValue);
}

void DesignerPropertyManager::slotValueChanged(QtProperty *property, const QVariant &value)
{
    if (!m_updatingSubProperties && m_subPropertyInfo.contains(property))
        applySubProperty(property, value);
    if (value.userType() == QMetaType::QFont && propertyType(property) == QVariant::Font)
        markFontParts(property, CcQt::fontResolveMask(qvariant_cast<QFont>(value)));
    emit valueChanged(property, value, true);
}

QtProperty *DesignerPropertyManager::parentProperty(QtProperty *property) const
{
    const auto it = m_subPropertyInfo.constFind(property);
    if (it != m_subPropertyInfo.constEnd())
        return it->parent;
    // Font parts belong to the variant manager; find the font that holds them.
    const QSet<QtProperty *> all = properties();
    for (QtProperty *candidate : all) {
        if (propertyType(candidate) == QVariant::Font
            && candidate->subProperties().contains(property))
            return candidate;
    }
    return nullptr;
}

bool DesignerPropertyManager::isIconThemeSubProperty(const QtProperty *property) const
{
    const auto it = m_subPropertyInfo.constFind(property);
    return it != m_subPropertyInfo.constEnd() && it->kind == IconTheme;
}

bool DesignerPropertyManager::isResettable(QtProperty *property) const
{
    if (m_resettable.value(property, false))
        return true;
    const auto it = m_subPropertyInfo.constFind(property);
    if (it != m_subPropertyInfo.constEnd())
        return it->kind >= IconTheme; // icon parts reset; translation data does not
    QtProperty *font = parentProperty(property);
    return font && m_resettable.value(font, false);
}

// A font part counts as modified (and can be reset) while the font resolves it.
void DesignerPropertyManager::markFontParts(QtProperty *font, uint resolveMask)
{
    const QList<QtProperty *> parts = font->subProperties();
    for (int i = 0; i < parts.size() && i < fontPartCount; ++i)
        parts.at(i)->setModified(resolveMask & fontParts[i].resolveBit);
}

bool DesignerPropertyManager::resetFontSubProperty(QtProperty *property)
{
    QtProperty *font = parentProperty(property);
    if (!font || propertyType(font) != QVariant::Font)
        return false;
    const QList<QtProperty *> parts = font->subProperties();
    const int index = parts.indexOf(property);
    uint bit = 0;
    for (int i = 0; i < fontPartCount && !bit; ++i) {
        if (property->propertyName() == QLatin1String(fontParts[i].name))
            bit = fontParts[i].resolveBit;
    }
    if (!bit && index >= 0 && index < fontPartCount)
        bit = fontParts[index].resolveBit;
    if (!bit)
        return false;

    // The part takes the default again and is no longer resolved.
    const QWidget *widget = qobject_cast<const QWidget *>(m_object.data());
    const QFont defaultFont = widget ? widget->font() : QApplication::font();
    QFont f = qvariant_cast<QFont>(value(font));
    const uint mask = CcQt::fontResolveMask(f) & ~bit;
    switch (bit) {
    case QFont::FamilyResolved:
        f.setFamily(defaultFont.family());
        break;
    case QFont::SizeResolved:
        f.setPointSizeF(defaultFont.pointSizeF());
        break;
    case QFont::WeightResolved:
        f.setWeight(defaultFont.weight());
        break;
    case QFont::StyleResolved:
        f.setStyle(defaultFont.style());
        break;
    case QFont::UnderlineResolved:
        f.setUnderline(defaultFont.underline());
        break;
    case QFont::StrikeOutResolved:
        f.setStrikeOut(defaultFont.strikeOut());
        break;
    case QFont::KerningResolved:
        f.setKerning(defaultFont.kerning());
        break;
    }
    CcQt::setFontResolveMask(f, mask);
    setValue(font, f);
    return true;
}

bool DesignerPropertyManager::resetIconSubProperty(QtProperty *property)
{
    const auto it = m_subPropertyInfo.constFind(property);
    if (it == m_subPropertyInfo.constEnd() || it->kind < IconTheme)
        return false;
    if (it->kind == IconTheme)
        setValue(property, QString());
    else
        setValue(property, QVariant::fromValue(PropertySheetPixmapValue()));
    return true;
}

bool DesignerPropertyManager::isPropertyTypeSupported(int propertyType) const
{
    return isDesignerType(propertyType)
            || QtVariantPropertyManager::isPropertyTypeSupported(propertyType);
}

int DesignerPropertyManager::valueType(int propertyType) const
{
    if (isDesignerType(propertyType))
        return propertyType;
    return QtVariantPropertyManager::valueType(propertyType);
}

QVariant DesignerPropertyManager::value(const QtProperty *property) const
{
    const auto it = m_values.constFind(property);
    if (it != m_values.constEnd())
        return it.value();
    return QtVariantPropertyManager::value(property);
}

QStringList DesignerPropertyManager::attributes(int propertyType) const
{
    QStringList result = QtVariantPropertyManager::attributes(propertyType);
    result.append(QLatin1String(resettableAttribute));
    if (propertyType == designerStringTypeId())
        result.append(QLatin1String(validationModeAttribute));
    return result;
}

int DesignerPropertyManager::attributeType(int propertyType, const QString &attribute) const
{
    if (attribute == QLatin1String(resettableAttribute))
        return QVariant::Bool;
    if (propertyType == designerStringTypeId()
        && attribute == QLatin1String(validationModeAttribute))
        return QVariant::Int;
    return QtVariantPropertyManager::attributeType(propertyType, attribute);
}

QVariant DesignerPropertyManager::attributeValue(const QtProperty *property,
                                                 const QString &attribute) const
{
    if (attribute == QLatin1String(resettableAttribute))
        return m_resettable.value(property, false);
    if (attribute == QLatin1String(validationModeAttribute)) {
        const auto it = m_validationModes.constFind(property);
        return it != m_validationModes.constEnd() ? QVariant(it.value()) : QVariant();
    }
    return QtVariantPropertyManager::attributeValue(property, attribute);
}

void DesignerPropertyManager::setAttribute(QtProperty *property, const QString &attribute,
                                           const QVariant &value)
{
    if (attribute == QLatin1String(resettableAttribute)) {
        const bool resettable = value.toBool();
        if (m_resettable.value(property, false) == resettable && m_resettable.contains(property))
            return;
        m_resettable.insert(property, resettable);
        emit attributeChanged(property, attribute, resettable);
        return;
    }
    if (attribute == QLatin1String(validationModeAttribute)) {
        const auto it = m_validationModes.find(property);
        if (it == m_validationModes.end() || it.value() == value.toInt())
            return;
        it.value() = value.toInt();
        emit attributeChanged(property, attribute, it.value());
        emit propertyChanged(property); // the shown text depends on the mode
        return;
    }
    QtVariantPropertyManager::setAttribute(property, attribute, value);
}

void DesignerPropertyManager::setValue(QtProperty *property, const QVariant &value)
{
    const auto it = m_values.find(property);
    if (it == m_values.end()) {
        QtVariantPropertyManager::setValue(property, value);
        return;
    }
    const int type = propertyType(property);
    QVariant v = value;
    if (v.userType() != type) {
        // A plain string is accepted for strings and pixmaps; anything else means the default.
        if (type == designerStringTypeId() && v.canConvert<QString>())
            v = QVariant::fromValue(PropertySheetStringValue(v.toString()));
        else if (type == designerPixmapTypeId() && v.canConvert<QString>())
            v = QVariant::fromValue(PropertySheetPixmapValue(v.toString()));
        else
            v = CcQt::defaultValue(type);
    }
    bool same;
    if (type == designerStringTypeId())
        same = stringValue(v) == stringValue(it.value());
    else if (type == designerIconTypeId())
        same = iconValue(v) == iconValue(it.value());
    else
        same = pixmapValue(v) == pixmapValue(it.value());
    if (same)
        return;
    it.value() = v;
    updateSubProperties(property);
    emit propertyChanged(property);
    emit QtVariantPropertyManager::valueChanged(property, v);
}

QString DesignerPropertyManager::valueText(const QtProperty *property) const
{
    const auto it = m_values.constFind(property);
    if (it == m_values.constEnd())
        return QtVariantPropertyManager::valueText(property);
    const int type = propertyType(property);
    if (type == designerStringTypeId()) {
        const auto mode = TextPropertyValidationMode(m_validationModes.value(property));
        return TextPropertyEditor::stringToEditorString(stringValue(it.value()).value(), mode);
    }
    if (type == designerPixmapTypeId())
        return QFileInfo(pixmapValue(it.value()).path()).fileName();
    const PropertySheetIconValue icon = iconValue(it.value());
    QString path = icon.pixmap(QIcon::Normal, QIcon::Off).path();
    if (path.isEmpty() && !icon.paths().isEmpty())
        path = icon.paths().first().path();
    if (!path.isEmpty())
        return QFileInfo(path).fileName();
    if (!icon.theme().isEmpty())
        return tr("[Theme] %1").arg(icon.theme());
    return QString();
}

QIcon DesignerPropertyManager::iconFor(const QVariant &v) const
{
    FormWindowBase *form = formWindowBase();
    if (v.userType() == designerIconTypeId()) {
        const PropertySheetIconValue icon = iconValue(v);
        if (icon.isEmpty())
            return QIcon();
        if (form)
            return form->iconCache()->icon(icon);
        QIcon result = QIcon::fromTheme(icon.theme());
        const auto &paths = icon.paths();
        for (auto p = paths.cbegin(); p != paths.cend(); ++p)
            result.addFile(p.value().path(), QSize(), p.key().first, p.key().second);
        return result;
    }
    const PropertySheetPixmapValue pixmap = pixmapValue(v);
    if (pixmap.path().isEmpty())
        return QIcon();
    if (form)
        return QIcon(form->pixmapCache()->pixmap(pixmap));
    return QIcon(pixmap.path());
}

QIcon DesignerPropertyManager::valueIcon(const QtProperty *property) const
{
    const auto it = m_values.constFind(property);
    if (it == m_values.constEnd())
        return QtVariantPropertyManager::valueIcon(property);
    if (propertyType(property) == designerStringTypeId())
        return QIcon();
    return iconFor(it.value());
}

} // namespace qdesigner_internal
